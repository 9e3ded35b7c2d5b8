#include <KzXmlLib10/xml/CXmlWriter.h>

#include "object/TextScan.h"
#include "object/Throw.h"
#include "xml/Messages.h"
#include "xml/NamespaceMap.h"
#include "xml/XmlNamespaces.h"

namespace KzXmlLib10 {

CXmlWriter::CXmlWriter() : CInstanceMonitor(u"CXmlWriter"), m_namespaces{{xmlNamespace, u"xml"}} {}

CXmlWriter::CXmlWriter(const std::type_info& writerClass, LeafOperation writeLeaf) : CXmlWriter() {
    m_leafClass = &writerClass;
    m_writeLeaf = writeLeaf;
}

CXmlWriter::~CXmlWriter() = default;

void CXmlWriter::Open() {}

void CXmlWriter::Close() {
    if (m_context)
        Throw<CKzException>(messages::ElementNotClosed);
}

void CXmlWriter::SetDefaultNamespace(const std::u16string& uri) {
    if (m_context)
        m_context->SetContextDefaultNamespace(uri);
    else
        m_defaultNamespace = uri;
}

void CXmlWriter::AddNamespace(const std::u16string& alias, const std::u16string& uri) {
    if (m_context)
        m_context->AddContextNamespace(uri, alias);
    else
        m_namespaces[uri] = alias;
}

const std::u16string& CXmlWriter::KeepNamespace(std::u16string_view uri) {
    if (!SameText(uri, m_keptNamespace)) // which is rare
        m_keptNamespace = uri;
    return m_keptNamespace;
}

void CXmlWriter::WriteLeafByParts(const LeafName& name, const std::u16string& text, ItemType type) {
    StartElement(name.local, name.namespaceUri);
    WriteText(text, type);
    EndElement();
}

CXmlWriter::BoundPrefix CXmlWriter::BindPrefix(CXmlWriterContext& context, const std::u16string& uri) {
    if (const std::u16string* prefix = context.GetNamespaceMap().Find(uri))
        return {*prefix, false};
    context.AddContextNamespace(uri, GenerateAlias(context.GetNamespaceMap()));
    return {context.GetAlias(uri), true};
}

CXmlWriter::NamePrefix CXmlWriter::BindName(CXmlWriterContext& context) {
    if (context.IsPrefixKnown())
        return {context.Prefix(), false};
    if (!context.NeedsPrefix(context.m_namespaceUri)) {
        context.SetPrefix(nullptr);
        return {nullptr, false};
    }
    const BoundPrefix bound = BindPrefix(context, context.m_namespaceUri);
    context.SetPrefix(&bound.prefix);
    return {&bound.prefix, bound.isNew};
}

std::u16string CXmlWriter::GenerateAlias(const NamespaceMap& namespaces) {
    return MakeAlias(namespaces.FirstFreePrefix());
}

std::u16string CXmlWriter::MakeAlias(std::uint32_t n) {
    constexpr std::uint32_t firstSurrogate = 0xD800;
    const std::uint32_t first = u'A' + n / 26;
    if (first >= firstSurrogate)
        Throw<CKzException>(messages::NoPrefixLeft);
    return {static_cast<char16_t>(first), static_cast<char16_t>(u'A' + n % 26)};
}

std::unique_ptr<CXmlWriter::CXmlWriterContext> CXmlWriter::MakeContext(const std::u16string& name,
                                                                       const std::u16string& namespaceUri) {
    if (!m_context)
        return std::make_unique<CXmlWriterContext>(name, namespaceUri, m_defaultNamespace, m_namespaces);
    return std::make_unique<CXmlWriterContext>(name, namespaceUri, *m_context);
}

/// One with a namespace state of its own cannot serve again.
void CXmlWriter::DropSpareContext() {
    std::unique_ptr<CXmlWriterContext> dropped;
    dropped.swap(m_spareContexts);
    dropped->m_parent.swap(m_spareContexts);
}

CXmlWriter::CXmlWriterContext& CXmlWriter::OpenElement() const {
    if (!m_context)
        Throw<CKzInvalidStateException>(messages::NoOpenElement);
    return *m_context;
}

void CXmlWriter::RequireOpenStartTag() const {
    if (!OpenElement().m_startTagOpen)
        Throw<CKzException>(messages::AttributeAfterContent);
}

CXmlWriter::CXmlWriterContext::CXmlWriterContext(const std::u16string& name,
                                                 const std::u16string& namespaceUri,
                                                 const std::u16string& defaultNamespace,
                                                 const std::map<std::u16string, std::u16string>& namespaces)
    : CInstanceMonitor(u"CXmlWriterContext"), m_namespaceUri(namespaceUri), m_name(name),
      m_defaultNamespace(defaultNamespace) {
    auto map = std::make_unique<NamespaceMap>(m_defaultNamespace);
    for (const auto& [uri, prefix] : namespaces)
        map->Set(uri, prefix);
    m_namespaces = map.release();
    m_ownsMap = true;
}

CXmlWriter::CXmlWriterContext::CXmlWriterContext(const std::u16string& name,
                                                 const std::u16string& namespaceUri,
                                                 const CXmlWriterContext& parent)
    : CInstanceMonitor(u"CXmlWriterContext"), m_depth(parent.m_depth + 1), m_namespaceUri(namespaceUri),
      m_name(name), m_namespaces(parent.m_namespaces), m_inherits(true) {}

void CXmlWriter::CXmlWriterContext::Restart(const std::u16string& name, const std::u16string& namespaceUri,
                                            const CXmlWriterContext& parent) {
    m_childCount = 0;
    m_startTagOpen = true;
    m_depth = parent.m_depth + 1;
    if (!SameText(m_namespaceUri, namespaceUri)) { // which is rare
        m_namespaceUri = namespaceUri;
        m_stateOfPrefix = 0;
    }
    m_name = name;
    m_hasAttributes = false;
    m_namespaces = parent.m_namespaces;
}

bool CXmlWriter::CXmlWriterContext::IsPrefixKnown() const { return m_stateOfPrefix == m_namespaces->State(); }

void CXmlWriter::CXmlWriterContext::SetPrefix(const std::u16string* prefix) {
    m_prefix = prefix;
    m_stateOfPrefix = m_namespaces->State();
}

CXmlWriter::CXmlWriterContext::~CXmlWriterContext() {
    while (m_parent)
        m_parent = std::move(m_parent->m_parent);
    if (m_ownsMap)
        delete m_namespaces;
}

const std::u16string& CXmlWriter::CXmlWriterContext::GetDefaultNamespace() const {
    return m_namespaces->DefaultNamespace();
}

const std::u16string& CXmlWriter::CXmlWriterContext::GetAlias(const std::u16string& uri) {
    if (const std::u16string* prefix = m_namespaces->Find(uri))
        return *prefix;
    m_namespaces->Set(uri, u"");
    return *m_namespaces->Find(uri);
}

void CXmlWriter::CXmlWriterContext::AddContextNamespace(const std::u16string& uri,
                                                        const std::u16string& alias) {
    OwnNamespaces();
    m_namespaces->Set(uri, alias);
}

void CXmlWriter::CXmlWriterContext::SetContextDefaultNamespace(const std::u16string& uri) {
    OwnNamespaces();
    m_namespaces->BeginState();
    m_defaultNamespace = uri;
}

void CXmlWriter::CXmlWriterContext::OwnNamespaces() {
    if (!m_inherits)
        return;
    m_defaultNamespace = GetDefaultNamespace();
    m_namespaces = new NamespaceMap(*m_namespaces, m_defaultNamespace);
    m_ownsMap = true;
    m_inherits = false;
}

bool CXmlWriter::CXmlWriterContext::NeedsPrefix(const std::u16string& uri) const {
    return !uri.empty() && ByLengthThenBytes()(uri, GetDefaultNamespace()) != 0;
}

} // namespace KzXmlLib10
