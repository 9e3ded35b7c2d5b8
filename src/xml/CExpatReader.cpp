#include "xml/CExpatReader.h"

#include "object/Throw.h"
#include "xml/Messages.h"
#include "xml/TreeBuilding.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlDocument.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace KzXmlLib10 {

namespace {

/// The most that one call of XML_Parse is given: its length is an int, and what is left over of a slice goes
/// into a buffer of two and more of them, whose length is an int as well.
constexpr std::size_t SliceSize = 1u << 28;

/// The most of a text that enters the tree before it is charged.
constexpr std::size_t TextSliceSize = 1u << 14;

/// A line number as the message takes it.
std::int32_t Line(XML_Size line) {
    constexpr XML_Size greatest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::min(line, greatest));
}

} // namespace

CExpatReader::CExpatReader(CXmlDocument* document)
    : CInstanceMonitor(u"CExpatReader"), m_document(document) {}

CExpatReader::~CExpatReader() = default;

void CExpatReader::Initialize(const char* protocolEncoding) {
    static const bool givesUtf8 = expat::GivesUtf8();
    if (!givesUtf8)
        Throw<CKzException>(messages::ParserCharactersDiffer);
    static const bool boundsEntities = expat::BoundsEntities();
    if (!boundsEntities)
        Throw<CKzException>(messages::EntitiesUnbounded);

    const bool hasNamespaces = m_document->m_schemaType != SchemaType_NoNamespaces;
    m_parser.reset(XML_ParserCreate_MM(protocolEncoding, &expat::memory,
                                       hasNamespaces ? &ParserNames::Separator : nullptr));
    if (!m_parser)
        throw std::bad_alloc();

    XML_Parser parser = m_parser.get();
    XML_SetUserData(parser, this);
    XML_SetElementHandler(parser, StartRootHandler, EndElementHandler);
    XML_SetNamespaceDeclHandler(parser, StartNamespaceDeclHandler, EndNamespaceDeclHandler);
    XML_SetCharacterDataHandler(parser, CharacterDataHandler);
    XML_SetEntityDeclHandler(parser, EntityDeclHandler);
    if (!m_document->m_context->GetStripCDATA())
        XML_SetCdataSectionHandler(parser, StartCdataHandler, EndCdataHandler);
}

void CExpatReader::ParseChunk(bool isFinal, std::uint64_t handedIn) {
    m_budget.Extend(handedIn, m_document->m_inputSize);
    std::span<const unsigned char> left =
        m_surrogates.Take({m_document->m_input, m_document->m_inputSize}, isFinal);
    expat::wasRefusedMemory = false;
    do {
        const std::span<const unsigned char> slice = left.first(std::min(left.size(), SliceSize));
        left = left.subspan(slice.size());
        const bool isLast = isFinal && left.empty();
        const XML_Status status = XML_Parse(m_parser.get(), reinterpret_cast<const char*>(slice.data()),
                                            static_cast<int>(slice.size()), isLast);
        const std::size_t units = m_texts ? CommitText() : 0;
        if (status != XML_STATUS_OK || m_failure)
            Fail();
        m_budget.Charge(units);
    } while (!left.empty());
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

void CExpatReader::StartRoot(const XML_Char* name, const XML_Char** attributes) {
    XML_SetStartElementHandler(m_parser.get(), StartElementHandler);
    m_document->StartTree();
    m_texts = &m_document->m_memory->texts;
    const SharedName& shared = m_names.Find(name, m_document->m_memory->names);
    m_budget.Charge(shared.Size(), sizeof(CXmlElement));
    AddAttributes(*m_document->AddDocElement(shared), attributes);
}

inline void CExpatReader::StartElement(const XML_Char* name, const XML_Char** attributes) {
    const std::size_t units = CommitText();
    const SharedName& shared = m_names.Find(name, m_document->m_memory->names);
    m_budget.Charge(units + shared.Size(), sizeof(CXmlElement));
    CXmlElement* element = m_document->AddChildElement(shared);
    if (*attributes)
        AddAttributes(*element, attributes);
}

void CExpatReader::AddAttributes(CXmlElement& element, const XML_Char** attributes) {
    std::size_t count = 0;
    while (attributes[2 * count])
        ++count;
    if (count == 0)
        return;
    element.ReserveAttributes(count);
    // A document type can give each element any number of attributes, so they count even if they are empty.
    constexpr std::size_t attributeUnits = sizeof(CXmlAttribute) / sizeof(char16_t);
    for (; *attributes; attributes += 2) {
        const SharedName& name = m_names.Find(attributes[0], m_document->m_memory->names);
        std::u16string value = expat::Text(attributes[1]);
        m_budget.Charge(name.Size() + value.size() + attributeUnits);
        element.AddAttribute(name, std::move(value));
    }
}

/// Appends to the text of the innermost element.
inline void CExpatReader::AppendText(std::string_view text) {
    if (m_texts->HasRoom(text.size()))
        m_texts->WriteUtf8(text);
    else
        AppendTextWithoutRoom(text);
}

/// Appends it in slices, each of which is charged before the next one.
void CExpatReader::AppendTextWithoutRoom(std::string_view text) {
    while (!text.empty()) {
        std::size_t size = std::min(text.size(), TextSliceSize);
        while (size < text.size() && (text[size] & 0xC0) == 0x80) // within a character
            --size;
        ChargeText();
        m_texts->MakeRoom(size);
        m_texts->WriteUtf8(text.substr(0, size));
        text.remove_prefix(size);
    }
}

/// Makes what was appended part of the tree. Returns the number of its code units.
inline std::size_t CExpatReader::CommitText() {
    return m_texts->HasText() ? m_texts->Commit(m_document->m_elementStack.back()->m_text) : 0;
}

inline void CExpatReader::ChargeText() {
    if (const std::size_t units = CommitText())
        m_budget.Charge(units);
}

void XMLCALL CExpatReader::StartRootHandler(void* reader, const XML_Char* name, const XML_Char** attributes) {
    Handle(reader, [=](CExpatReader& self) { self.StartRoot(name, attributes); });
}

void XMLCALL CExpatReader::StartElementHandler(void* reader, const XML_Char* name,
                                               const XML_Char** attributes) {
    Handle(reader, [=](CExpatReader& self) { self.StartElement(name, attributes); });
}

void XMLCALL CExpatReader::EndElementHandler(void* reader, const XML_Char*) {
    Handle(reader, [](CExpatReader& self) {
        self.ChargeText();
        self.m_document->EndElement();
    });
}

void XMLCALL CExpatReader::StartNamespaceDeclHandler(void* reader, const XML_Char* prefix,
                                                     const XML_Char* uri) {
    Handle(reader, [=](CExpatReader& self) {
        std::u16string alias = expat::Text(prefix ? prefix : ""), value = expat::Text(uri ? uri : "");
        self.m_budget.Charge(alias.size() + value.size());
        // Deliberate: one flat map for the document, where a later declaration replaces an earlier one.
        self.m_document->m_namespaceAliases[std::move(alias)] = std::move(value);
    });
}

void XMLCALL CExpatReader::EndNamespaceDeclHandler(void*, const XML_Char*) {}

/// Deliberate: all carriage returns are left out. Expat has normalised line ends already, so one that comes
/// here came from a character reference. Each of those is a text of its own, unless it stands in the text of
/// an entity.
void XMLCALL CExpatReader::CharacterDataHandler(void* reader, const XML_Char* text, int length) {
    const std::string_view piece(text, static_cast<std::size_t>(length));
    TextArena& texts = *static_cast<CExpatReader*>(reader)->m_texts;
    if (!texts.HasRoom(piece.size()))
        return TakeOtherData(reader, text, length);
    if (length != 1) {
        if (!texts.TryWriteAscii(piece))
            TakeOtherData(reader, text, length);
    } else if (*text != '\r') { // a line feed mostly, which is ASCII as all that is one byte
        texts.WriteUnit(static_cast<unsigned char>(*text));
    }
}

/// The same for any text. Apart, since what is usual takes only a few instructions.
[[gnu::noinline]] void CExpatReader::TakeOtherData(void* reader, const XML_Char* text, int length) {
    const std::string_view piece(text, static_cast<std::size_t>(length));
    if (piece != "\r")
        Handle(reader, [piece](CExpatReader& self) { self.AppendText(piece); });
}

/// The same for a text that may hold carriage returns in its midst.
void XMLCALL CExpatReader::MixedDataHandler(void* reader, const XML_Char* text, int length) {
    for (std::string_view left(text, static_cast<std::size_t>(length)); !left.empty();) {
        const std::string_view line = left.substr(0, left.find('\r'));
        if (!line.empty())
            CharacterDataHandler(reader, line.data(), static_cast<int>(line.size()));
        left.remove_prefix(std::min(line.size() + 1, left.size()));
    }
}

void XMLCALL CExpatReader::EntityDeclHandler(void* reader, const XML_Char*, int, const XML_Char* text,
                                             int length, const XML_Char*, const XML_Char*, const XML_Char*,
                                             const XML_Char*) {
    if (text && std::string_view(text, static_cast<std::size_t>(length)).find('\r') != std::string_view::npos)
        XML_SetCharacterDataHandler(static_cast<CExpatReader*>(reader)->m_parser.get(), MixedDataHandler);
}

void XMLCALL CExpatReader::StartCdataHandler(void* reader) {
    Handle(reader, [](CExpatReader& self) { self.AppendText("<![CDATA["); });
}

void XMLCALL CExpatReader::EndCdataHandler(void* reader) {
    Handle(reader, [](CExpatReader& self) { self.AppendText("]]>"); });
}

} // namespace KzXmlLib10
