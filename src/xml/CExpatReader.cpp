#include "xml/CExpatReader.h"

#include "object/TextScan.h"
#include "object/Throw.h"
#include "xml/Messages.h"
#include "xml/TreeMemory.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlDocument.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <string_view>
#include <utility>

namespace KzXmlLib10 {

namespace {

constexpr char16_t NamespaceSeparator = u'|';

/// The most that one call of XML_Parse is given: its length is an int.
constexpr std::uint32_t SliceSize = 1u << 30;

struct Name {
    std::u16string_view namespaceUri;
    std::u16string_view localName;
};

/// Splits a name as expat gives it, URI, separator and local name or the local name alone, at the first
/// separator. If the URI is the likely one, it is that very text.
Name SplitName(const char16_t* name, std::u16string_view likely) {
    std::size_t alike = 0;
    while (alike < likely.size() && name[alike] == likely[alike])
        ++alike;
    if (alike == likely.size() && name[alike] == NamespaceSeparator)
        return {likely, std::u16string_view(name + alike + 1)};
    const char16_t* at = name;
    while (*at != u'\0' && *at != NamespaceSeparator)
        ++at;
    if (*at == u'\0')
        return {{}, {name, at}};
    return {{name, at}, std::u16string_view(at + 1)};
}

/// A line number as the message takes it.
std::int32_t Line(XML_Size line) {
    constexpr XML_Size greatest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::min(line, greatest));
}

} // namespace

CExpatReader::CExpatReader(CXmlDocument* document)
    : CInstanceMonitor(u"CExpatReader"), m_document(document) {}

CExpatReader::~CExpatReader() = default;

void CExpatReader::Initialize(const char16_t* protocolEncoding) {
    static const bool hasWideCharacters = expat::HasWideCharacters();
    if (!hasWideCharacters)
        Throw<CKzException>(messages::ParserCharactersDiffer);
    static const bool boundsEntities = expat::BoundsEntities();
    if (!boundsEntities)
        Throw<CKzException>(messages::EntitiesUnbounded);

    m_buffer = std::make_unique<unsigned char[]>(m_bufferSize);
    const XML_Char* encoding = expat::Text(protocolEncoding);
    const bool hasNamespaces = m_document->m_schemaType != SchemaType_NoNamespaces;
    m_parser.reset(XML_ParserCreate_MM(encoding, &expat::memory,
                                       hasNamespaces ? expat::Text(&NamespaceSeparator) : nullptr));
    if (!m_parser)
        throw std::bad_alloc();

    XML_Parser parser = m_parser.get();
    XML_SetUserData(parser, this);
    XML_SetElementHandler(parser, StartElementHandler, EndElementHandler);
    XML_SetNamespaceDeclHandler(parser, StartNamespaceDeclHandler, EndNamespaceDeclHandler);
    XML_SetCharacterDataHandler(parser, CharacterDataHandler);
    if (!m_document->m_context->GetStripCDATA())
        XML_SetCdataSectionHandler(parser, StartCdataHandler, EndCdataHandler);
}

void CExpatReader::ParseChunk(bool isFinal, std::uint64_t handedIn) {
    const char* next = reinterpret_cast<const char*>(m_document->m_buffer.get());
    std::uint32_t left = m_document->m_bufferSize;
    m_budget.Extend(handedIn, left);
    expat::wasRefusedMemory = false;
    do {
        const std::uint32_t slice = std::min(left, SliceSize);
        left -= slice;
        const bool isLast = isFinal && left == 0;
        if (XML_Parse(m_parser.get(), next, static_cast<int>(slice), isLast) != XML_STATUS_OK || m_failure)
            Fail();
        next += slice;
    } while (left > 0);
    if (isFinal)
        m_parser.reset();
}

void CExpatReader::RenewBudget(std::uint64_t handedIn, std::uint64_t parsed) {
    m_budget = TreeBudget();
    m_budget.Extend(handedIn, parsed);
}

/// Throws what a handler threw, or else expat's error.
void CExpatReader::Fail() {
    if (m_failure)
        std::rethrow_exception(std::exchange(m_failure, nullptr));
    if (std::exchange(expat::wasRefusedMemory, false))
        throw std::bad_alloc();
    const std::u16string error = expat::ErrorText(XML_GetErrorCode(m_parser.get()));
    const std::int32_t line = Line(XML_GetCurrentLineNumber(m_parser.get()));
    m_buffer.reset();
    m_parser.reset();
    Throw<CKzException>(messages::ParserFailed, error, line);
}

template <class Action>
void CExpatReader::Handle(void* userData, Action action) noexcept {
    auto& reader = *static_cast<CExpatReader*>(userData);
    // Expat may report a little more after it was stopped.
    if (reader.m_failure)
        return;
    try {
        action(reader);
    } catch (...) {
        reader.m_failure = std::current_exception();
        XML_StopParser(reader.m_parser.get(), XML_FALSE);
    }
}

void CExpatReader::StartElement(const char16_t* name, const XML_Char** attributes) {
    PassTextOn();
    const auto [uri, local] = SplitName(name, LikelyNamespace());
    m_budget.Charge(uri.size() + local.size(), sizeof(CXmlElement));
    CXmlElement* element = m_document->m_documentElement ? m_document->AddChildElement(uri, local)
                                                         : m_document->AddDocElement(uri, local);
    if (*attributes)
        AddAttributes(*element, attributes);
}

void CExpatReader::AddAttributes(CXmlElement& element, const XML_Char** attributes) {
    std::size_t count = 0;
    while (attributes[2 * count])
        ++count;
    element.m_attributes.reserve(count);
    // A document type can give each element any number of attributes, so they count even if they are empty.
    constexpr std::size_t attributeUnits = sizeof(CXmlAttribute) / sizeof(char16_t);
    for (; *attributes; attributes += 2) {
        const auto [attributeUri, attributeLocal] = SplitName(expat::Text(attributes[0]), LikelyNamespace());
        const std::u16string_view value = expat::Text(attributes[1]);
        m_budget.Charge(attributeUri.size() + attributeLocal.size() + value.size() + attributeUnits);
        element.AddAttribute(attributeLocal, value, attributeUri);
    }
}

std::u16string_view CExpatReader::LikelyNamespace() const {
    return m_document->m_memory ? m_document->m_memory->namespaces.Last() : std::u16string_view();
}

/// Expat reports each line end by itself, so pieces of text are gathered as far as the buffer takes them.
inline void CExpatReader::AppendText(std::u16string_view text) {
    const std::size_t capacity = m_bufferSize / sizeof(char16_t);
    if (text.size() > capacity - m_textSize) {
        PassTextOn();
        if (text.size() > capacity)
            return PassOn(text);
    }
    std::memcpy(m_buffer.get() + m_textSize * sizeof(char16_t), text.data(), text.size() * sizeof(char16_t));
    m_textSize += text.size();
}

/// Gives the gathered text to the innermost element.
void CExpatReader::PassTextOn() {
    if (const std::size_t size = std::exchange(m_textSize, 0))
        PassOn({reinterpret_cast<const char16_t*>(m_buffer.get()), size});
}

void CExpatReader::PassOn(std::u16string_view text) {
    m_budget.Charge(text.size());
    CXmlElement* element = m_document->m_elementStack.back();
    // There is no NUL in XML, which would have to be looked for too.
    if (MayHold(text, '\r'))
        m_document->AppendTextExcludingCR(element, text.data(), text.size());
    else
        element->AppendText(text.data(), text.size());
}

void XMLCALL CExpatReader::StartElementHandler(void* reader, const XML_Char* name,
                                               const XML_Char** attributes) {
    Handle(reader, [=](CExpatReader& self) { self.StartElement(expat::Text(name), attributes); });
}

void XMLCALL CExpatReader::EndElementHandler(void* reader, const XML_Char*) {
    Handle(reader, [](CExpatReader& self) {
        self.PassTextOn();
        self.m_document->EndElement();
    });
}

void XMLCALL CExpatReader::StartNamespaceDeclHandler(void* reader, const XML_Char* prefix,
                                                     const XML_Char* uri) {
    Handle(reader, [=](CExpatReader& self) {
        const std::u16string_view alias = prefix ? expat::Text(prefix) : u"";
        const std::u16string_view value = uri ? expat::Text(uri) : u"";
        self.m_budget.Charge(alias.size() + value.size());
        // Deliberate: one flat map for the document, where a later declaration replaces an earlier one.
        self.m_document->m_namespaceAliases[std::u16string(alias)] = value;
    });
}

void XMLCALL CExpatReader::EndNamespaceDeclHandler(void*, const XML_Char*) {}

void XMLCALL CExpatReader::CharacterDataHandler(void* reader, const XML_Char* text, int length) {
    if (length != 0)
        Handle(reader, [=](CExpatReader& self) {
            self.AppendText({expat::Text(text), static_cast<std::size_t>(length)});
        });
}

void XMLCALL CExpatReader::StartCdataHandler(void* reader) {
    Handle(reader, [](CExpatReader& self) { self.AppendText(u"<![CDATA["); });
}

void XMLCALL CExpatReader::EndCdataHandler(void* reader) {
    Handle(reader, [](CExpatReader& self) { self.AppendText(u"]]>"); });
}

} // namespace KzXmlLib10
