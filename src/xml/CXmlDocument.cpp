#include <KzXmlLib10/xml/CXmlDocument.h>

#include "object/AddressSanitizer.h"
#include "object/CurrentLimit.h"
#include "object/NotNull.h"
#include "object/TextScan.h"
#include "object/Throw.h"
#include "xml/AsyncFiles.h"
#include "xml/CExpatReader.h"
#include "xml/Messages.h"
#include "xml/TreeBuilding.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>

#include <cstring>
#include <utility>

namespace KzXmlLib10 {

CXmlDocument::CXmlDocument() : CXmlDocument(nullptr, CXmlSerializationContext::GetDefaultContext()) {}

CXmlDocument::CXmlDocument(const CXmlSerializationContext& context) : CXmlDocument(nullptr, context) {}

CXmlDocument::CXmlDocument(bool (*elementCallback)(CXmlElement*))
    : CXmlDocument(elementCallback, CXmlSerializationContext::GetDefaultContext()) {}

CXmlDocument::CXmlDocument(bool (*elementCallback)(CXmlElement*), const CXmlSerializationContext& context)
    : CInstanceMonitor(u"CXmlDocument"), m_schemaType(context.GetSchemaType()),
      m_elementCallback(elementCallback), m_context(&context) {}

CXmlDocument::~CXmlDocument() { DropTree(); }

void CXmlDocument::Cleanup() {
    DropTree();
    ReleaseBuffer();
    m_namespaceAliases.clear();
}

void CXmlDocument::Init() {
    m_readOffset = 0;
    DropTree();
    ReleaseBuffer();
    m_schemaType = m_context->GetSchemaType();
}

void CXmlDocument::LoadXml(const char* text) {
    NotNull(text, u"text");
    Cleanup();
    const std::size_t size = std::strlen(text);
    if (size == 0)
        Throw<CKzException>(messages::XmlStringIsEmpty);
    std::memcpy(SetBuffer(NewBuffer(size), size), text, size);
    ParseText(size);
}

void CXmlDocument::LoadXml(const char16_t* text) {
    NotNull(text, u"text");
    constexpr char16_t byteOrderMark = 0xFEFF;
    const std::size_t textSize = sizeof *text * std::char_traits<char16_t>::length(text);
    const std::size_t size = sizeof byteOrderMark + textSize;
    std::unique_ptr<unsigned char[]> buffer = NewBuffer(size);
    std::memcpy(buffer.get(), &byteOrderMark, sizeof byteOrderMark);
    std::memcpy(buffer.get() + sizeof byteOrderMark, text, textSize);
    Cleanup(); // not earlier, since the text may stand in the tree
    SetBuffer(std::move(buffer), size);
    // The parser would refuse a declaration of another encoding, had it only the mark to go by.
    ParseText(size, "UTF-16");
}

void CXmlDocument::RequireInputSize(std::uint64_t size) {
    if (const std::uint64_t limit = CurrentLimit(&Limits::inputBytes); size > limit)
        Throw<CKzException>(messages::InputTooLarge, size, limit);
}

/// An array for an input of `size` bytes.
std::unique_ptr<unsigned char[]> CXmlDocument::NewBuffer(std::uint64_t size) {
    RequireInputSize(size);
    return std::make_unique_for_overwrite<unsigned char[]>(size);
}

unsigned char* CXmlDocument::SetBuffer(std::unique_ptr<unsigned char[]> buffer, std::uint64_t size) {
    m_buffer = std::move(buffer);
    SetInput(m_buffer.get(), size);
    return m_buffer.get();
}

void CXmlDocument::SetInput(const unsigned char* input, std::uint64_t size) {
    m_input = input;
    m_inputSize = static_cast<std::uint32_t>(size);
}

/// The tree does not refer to the input.
void CXmlDocument::ReleaseBuffer() {
    m_buffer.reset();
    SetInput(nullptr, 0);
}

void CXmlDocument::ParseText(std::uint64_t handedIn, const char* protocolEncoding) {
    CExpatReader reader(this);
    reader.Initialize(protocolEncoding);
    reader.ParseChunk(true, handedIn);
    ReleaseBuffer();
}

std::u16string CXmlDocument::LookupNamespaceFromAlias(const char16_t* alias) const {
    const auto found = m_namespaceAliases.find(std::u16string_view(NotNull(alias, u"alias")));
    return found == m_namespaceAliases.end() ? std::u16string() : found->second;
}

std::map<std::u16string, std::u16string> CXmlDocument::GetNamespaceAliases() const {
    return {m_namespaceAliases.begin(), m_namespaceAliases.end()};
}

/// The elements need no destructors: what they hold is in the memory of the tree, and goes with it. Under the
/// address sanitizer each of them is a block of its own.
void CXmlDocument::DropTree() {
    if constexpr (hasAddressSanitizer)
        m_documentElement.reset();
    (void)m_documentElement.release();
    m_elementStack.clear();
    m_openElements.clear();
    m_memory.reset();
}

void CXmlDocument::StartTree() {
    constexpr std::size_t usualDepth = 16;
    DropTree(); // where the Cleanup of a derived class has left it
    m_memory = std::make_unique<TreeMemory>();
    m_elementStack.reserve(usualDepth);
}

CXmlElement* CXmlDocument::AddDocElement(const SharedName& name) {
    m_documentElement.reset(CXmlElement::Create(this, name));
    CXmlElement* root = m_documentElement.get();
    if (m_elementCallback)
        m_openElements.push_back({nullptr, m_memory->texts.GetMark()});
    m_elementStack.push_back(root);
    return root;
}

/// Lets the callback decide on an element that has ended.
void CXmlDocument::OfferElement(CXmlElement* element) {
    const OpenElement open = m_openElements.back();
    m_openElements.pop_back();
    if (!m_elementCallback(element) || m_elementStack.empty())
        return;
    m_elementStack.back()->RemoveLastChildElement(open.previous);
    m_memory->texts.Rewind(open.texts);
}

/// Appends a text up to its first zero.
///
/// Deliberate: all carriage returns are left out.
void CXmlDocument::AppendTextExcludingCR(CXmlElement* element, std::u16string_view text) {
    if (!HoldsZeroOr(u'\r', text)) // as is usual
        return element->AppendText(text);
    for (std::size_t start = 0, at = 0;; start = ++at) {
        while (at < text.size() && text[at] != u'\0' && text[at] != u'\r')
            ++at;
        if (at > start)
            element->AppendText(text.substr(start, at - start));
        if (at == text.size() || text[at] == u'\0')
            return;
    }
}

} // namespace KzXmlLib10
