#include <KzXmlLib10/xml/CXmlWriter.h>

#include "object/Throw.h"
#include "xml/Messages.h"
#include "xml/NamespaceMap.h"
#include "xml/XmlNamespaces.h"

namespace KzXmlLib10 {

CXmlWriter::CXmlWriter() : CInstanceMonitor(u"CXmlWriter"), m_namespaces{{xmlNamespace, u"xml"}} {}

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

CXmlWriter::BoundPrefix CXmlWriter::BindPrefix(CXmlWriterContext& context, const std::u16string& uri) {
    if (const std::u16string* prefix = context.GetNamespaceMap().Find(uri))
        return {*prefix, false};
    context.AddContextNamespace(uri, GenerateAlias(context.GetNamespaceMap()));
    return {context.GetAlias(uri), true};
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

std::unique_ptr<CXmlWriter::CXmlWriterContext> CXmlWriter::CreateContext(const std::u16string& name,
                                                                         const std::u16string& namespaceUri) {
    if (!m_context)
        return std::make_unique<CXmlWriterContext>(name, namespaceUri, m_defaultNamespace, m_namespaces);
    if (!m_spareContexts)
        return std::make_unique<CXmlWriterContext>(name, namespaceUri, *m_context);
    std::unique_ptr<CXmlWriterContext> context = std::move(m_spareContexts);
    m_spareContexts = std::move(context->m_parent);
    context->Restart(name, namespaceUri, *m_context);
    return context;
}

void CXmlWriter::EnterContext(std::unique_ptr<CXmlWriterContext> context) {
    context->m_parent = std::move(m_context);
    m_context = std::move(context);
}

void CXmlWriter::LeaveContext() {
    std::unique_ptr<CXmlWriterContext> left = std::move(m_context);
    m_context = std::move(left->m_parent);
    if (!left->InheritsNamespaces())
        return;
    left->m_parent = std::move(m_spareContexts);
    m_spareContexts = std::move(left);
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
    m_namespaceUri = namespaceUri;
    m_name = name;
    m_hasAttributes = false;
    m_namespaces = parent.m_namespaces;
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

void CXmlWriter::CXmlWriterContext::CountChild() {
    m_childCount = static_cast<std::int32_t>(static_cast<std::uint32_t>(m_childCount) + 1);
}

} // namespace KzXmlLib10
