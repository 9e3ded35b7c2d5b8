#include "fastinfoset/CFastInfosetReader.h"

#include "fastinfoset/Algorithms.h"
#include "fastinfoset/Declarations.h"
#include "fastinfoset/Messages.h"
#include "fastinfoset/RestrictedAlphabet.h"
#include "object/Throw.h"
#include "object/Utf8.h"
#include "xml/TreeBuilding.h"

#include <KzXmlLib10/fastinfoset/CFastInfosetBinaryData.h>
#include <KzXmlLib10/fastinfoset/CFastInfosetContext.h>
#include <KzXmlLib10/xml/CXmlDocument.h>
#include <KzXmlLib10/xml/CXmlElement.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace KzXmlLib10 {

using namespace fastinfoset;

namespace {

/// The entry of a table with an index from a document.
template <class T>
const T& EntryAt(const std::vector<T>& values, std::uint64_t index) {
    if (index - 1 >= values.size()) // 0 wraps
        Throw<CKzException>(messages::NoSuchIndex, static_cast<unsigned long long>(index));
    return values[index - 1];
}

std::string_view AsText(std::span<const Byte> octets) {
    return {reinterpret_cast<const char*>(octets.data()), octets.size()};
}

bool IsElement(Byte item) { return (item & ElementMask) == 0; }

bool IsOneOf(Byte byte, Byte markWithParts) { return (byte & ~PartsMask) == markWithParts; }

} // namespace

CFastInfosetReader::CFastInfosetReader(const CFastInfosetContext* context, CXmlDocument* document,
                                       std::uint64_t handedIn)
    : CInstanceMonitor(u"CFastInfosetReader"), m_fiContext(context), m_document(document),
      m_next(document->m_input), m_end(m_next + document->m_inputSize) {
    m_budget.Extend(handedIn, document->m_inputSize);
}

CFastInfosetReader::~CFastInfosetReader() = default;

bool CFastInfosetReader::IsFastInfoset() {
    if (SkipIdentification())
        return true;
    const std::string_view buffer = AsText({m_next, m_end});
    for (const std::string_view declaration : std::span(declarations).subspan<1>()) {
        if (!buffer.starts_with(declaration))
            continue;
        m_next += declaration.size();
        return SkipIdentification();
    }
    return false;
}

/// The identification is taken for one only where something follows it.
bool CFastInfosetReader::SkipIdentification() {
    if (static_cast<std::size_t>(m_end - m_next) <= std::size(identification) ||
        !std::ranges::equal(identification, std::span(m_next, std::size(identification))))
        return false;
    m_next += std::size(identification);
    return true;
}

void CFastInfosetReader::ReadHeader() {
    m_vocabulary.reset(m_fiContext->GetUseGeneratedVocabulary()
                           ? new CFIVocabulary(m_fiContext->GetVocabulary())
                           : new CFIVocabulary);
    const Byte components = ReadByte();
    if (components & AdditionalData)
        SkipAdditionalData();
    if (components & InitialVocabulary)
        SkipInitialVocabulary();
    if (components & Notations)
        SkipNotations();
    if (components & UnparsedEntities)
        SkipUnparsedEntities();
    if (components & CharacterEncodingScheme)
        SkipOctets();
    if (components & Standalone)
        ReadByte();
    if (components & Version)
        SkipNonIdentifyingString();
}

/// Each item is a URI and its data.
void CFastInfosetReader::SkipAdditionalData() {
    for (std::uint64_t left = ReadInteger(sequenceLength, ReadByte()); left > 0; --left) {
        SkipOctets();
        SkipOctets();
    }
}

void CFastInfosetReader::SkipInitialVocabulary() {
    unsigned components = ReadByte();
    components = components << 8 | ReadByte();
    if (components & ExternalVocabulary)
        SkipOctets();
    for (unsigned table = ExternalVocabulary >> 1; table > 0; table >>= 1) {
        if (!(components & table))
            continue;
        for (std::uint64_t left = ReadInteger(sequenceLength, ReadByte()); left > 0; --left) {
            if (table & OctetStringTables)
                SkipOctets();
            else if (table & ValueTables)
                SkipEncodedString(ReadByte());
            else
                SkipNameSurrogate();
        }
    }
}

void CFastInfosetReader::SkipNameSurrogate() {
    const Byte parts = ReadByte();
    if (parts & HasPrefix)
        ReadInteger(integerBit2, ReadByte());
    if (parts & HasNamespace)
        ReadInteger(integerBit2, ReadByte());
    ReadInteger(integerBit2, ReadByte());
}

void CFastInfosetReader::SkipNotations() {
    Byte item = ReadByte();
    for (; IsOneOf(item, Notation); item = ReadByte()) {
        SkipIdentifyingString();
        SkipExternalIdentifier(item);
    }
    RequireEnd(item);
}

/// Each has a name, a system identifier, perhaps a public one, and the name of a notation.
void CFastInfosetReader::SkipUnparsedEntities() {
    Byte item = ReadByte();
    for (; (item & ~HasPublicIdentifier) == UnparsedEntity; item = ReadByte()) {
        SkipIdentifyingString();
        SkipIdentifyingString();
        SkipExternalIdentifier(item & HasPublicIdentifier);
        SkipIdentifyingString();
    }
    RequireEnd(item);
}

void CFastInfosetReader::RequireEnd(Byte byte) {
    if (byte != End)
        Throw<CKzException>(messages::ListNotEnded);
}

void CFastInfosetReader::ParseDocument() {
    for (;;) {
        const Byte item = ReadByte();
        if (IsElement(item)) {
            m_document->StartTree();
            ParseElement(item);
            while (!m_document->m_elementStack.empty())
                ParseItem(ReadByte());
            return;
        }
        if (item == End || item == DoubleEnd)
            return;
        if (item == ProcessingInstruction)
            SkipProcessingInstruction();
        else if (item == Comment)
            SkipNonIdentifyingString();
        else if (IsOneOf(item, DocumentType))
            SkipDocumentType(item);
        // Deliberate: any other item is passed over.
    }
}

/// The instructions of a document type and its end belong to it; where they are missing, what follows is the
/// next item of the document.
void CFastInfosetReader::SkipDocumentType(Byte first) {
    SkipExternalIdentifier(first);
    while (m_next != m_end && *m_next == ProcessingInstruction) {
        ++m_next;
        SkipProcessingInstruction();
    }
    if (m_next != m_end && *m_next == End)
        ++m_next;
}

/// Reads the start of an element and its attributes. It stays open unless it ends together with them.
void CFastInfosetReader::ParseElement(Byte first) {
    const bool hasAttributes = (first & HasAttributes) != 0;
    if ((first & ElementNameMask) == NamespaceAttributesFollow)
        first = ParseNamespaceAttributes();
    const SharedName& name = ParseName(first, LiteralElementName, ElementNameMask, integerBit3,
                                       m_vocabulary->m_elementNames, m_elementNames);
    m_budget.Charge(name.Size(), sizeof(CXmlElement));
    if (!m_document->m_documentElement)
        m_document->AddDocElement(name);
    else
        m_document->AddChildElement(name);
    if (hasAttributes && ParseAttributes())
        PopElement();
}

/// Reads one item of the content of the innermost element.
void CFastInfosetReader::ParseItem(Byte item) {
    if (IsElement(item))
        return ParseElement(item);
    if ((item & CharacterChunkMask) == CharacterChunk)
        return ParseCharacterChunk(item);
    if (IsOneOf(item, UnexpandedEntity)) {
        SkipIdentifyingString();
        return SkipExternalIdentifier(item);
    }
    switch (item) {
    case End:
        return PopElement();
    case DoubleEnd:
        PopElement();
        if (!m_document->m_elementStack.empty())
            PopElement();
        return;
    case ProcessingInstruction:
        return SkipProcessingInstruction();
    case Comment:
        return SkipNonIdentifyingString();
    default:
        Throw<CKzException>(messages::InvalidItem);
    }
}

void CFastInfosetReader::PopElement() {
    m_document->m_elementStack.pop_back();
    if (m_document->m_elementCallback) // not called here, but an open element is noted for it
        m_document->m_openElements.pop_back();
}

/// Returns the byte behind the list, with which the name of the element starts.
Byte CFastInfosetReader::ParseNamespaceAttributes() {
    for (Byte item = ReadByte(); IsOneOf(item, NamespaceAttribute); item = ReadByte())
        ParseNamespaceAttribute(item);
    return ReadByte();
}

void CFastInfosetReader::ParseNamespaceAttribute(Byte first) {
    m_prefix.clear();
    m_namespaceName.clear();
    if (first & HasPrefix)
        ParseIdentifyingString(m_vocabulary->m_prefixNames, m_prefix);
    if (first & HasNamespace)
        ParseIdentifyingString(m_vocabulary->m_namespaceNames, m_namespaceName);
    m_budget.Charge(m_prefix.size() + m_namespaceName.size());
    m_document->m_namespaceAliases[m_prefix] = m_namespaceName;
}

/// True if the end of the attributes is that of the element as well.
bool CFastInfosetReader::ParseAttributes() {
    Byte item = ReadByte();
    for (; (item & StringIndex) == 0; item = ReadByte())
        ParseAttribute(item);
    return item == DoubleEnd;
}

void CFastInfosetReader::ParseAttribute(Byte first) {
    const SharedName& name = ParseName(first, LiteralAttributeName, AttributeNameMask, integerBit2,
                                       m_vocabulary->m_attributeNames, m_attributeNames);
    const std::u16string_view value = ParseNonIdentifyingString();
    m_budget.Charge(name.Size() + value.size(), sizeof(CXmlAttribute));
    m_document->m_elementStack.back()->AddAttribute(name, std::u16string(value));
}

void CFastInfosetReader::ParseCharacterChunk(Byte first) {
    std::u16string_view text;
    if ((first & ~CharacterChunkLength) == CharacterChunk) { // UTF-8 that enters no table
        const std::span<const Byte> octets = ReadBytes(ReadInteger(characterChunkForm.length, first));
        if (AppendPlainText(AsText(octets)))
            return;
        DecodeUtf8(octets);
        text = m_value;
    } else if (first & CharacterChunkIndex) {
        text = EntryAt(m_vocabulary->m_characterChunks.m_values, ReadInteger(integerBit4, first));
    } else {
        ParseEncodedString(characterChunkForm, first);
        if (first & AddChunkToTable)
            CFIVocabulary::AddValueToVector(m_value, m_vocabulary->m_characterChunks.m_values);
        text = m_value;
    }
    m_budget.Charge(text.size());
    CXmlDocument::AppendTextExcludingCR(m_document->m_elementStack.back(), text);
}

/// Appends a text that becomes the element's as it is. False for any other, and nothing is changed.
bool CFastInfosetReader::AppendPlainText(std::string_view text) {
    TextArena& texts = m_document->m_memory->texts;
    if (text.size() > std::size(m_short) || text.find('\r') != text.npos || text.find('\0') != text.npos)
        return false;
    texts.MakeRoom(text.size());
    if (!texts.TryWriteAscii(text))
        return false;
    m_budget.Charge(text.size());
    texts.Commit(m_document->m_elementStack.back()->m_text);
    return true;
}

/// Reads a qualified name, an index or a literal. `shared` are the names in the tree for those entries of the
/// table that were met.
inline const SharedName& CFastInfosetReader::ParseName(Byte first, Byte literal, Byte mask,
                                                       const IntegerRule& rule,
                                                       CFIVocabulary::CFIQNameTable& table,
                                                       std::vector<const SharedName*>& shared) {
    if ((first & mask) == literal)
        return ParseQName(first, table);
    const std::uint64_t index = ReadInteger(rule, first);
    const bool wasMet = index - 1 < shared.size() && shared[index - 1]; // as is usual; 0 wraps
    return wasMet ? *shared[index - 1] : ShareEntry(index, table, shared);
}

const SharedName& CFastInfosetReader::ShareEntry(std::uint64_t index,
                                                 const CFIVocabulary::CFIQNameTable& table,
                                                 std::vector<const SharedName*>& shared) {
    const CFIVocabulary::CQNameParts& parts = EntryAt(table.m_values, index);
    const std::vector<std::u16string>& namespaces = m_vocabulary->m_namespaceNames.m_values;
    const std::u16string none;
    const SharedName& name = m_document->m_memory->names.Share(
        parts.m_namespaceName == 0 ? none : EntryAt(namespaces, parts.m_namespaceName),
        EntryAt(m_vocabulary->m_localNames.m_values, parts.m_localName));
    shared.resize(table.m_values.size());
    shared[index - 1] = &name;
    return name;
}

const SharedName& CFastInfosetReader::ParseQName(Byte first, CFIVocabulary::CFIQNameTable& table) {
    if ((first & PartsMask) == HasPrefix)
        Throw<CKzException>(messages::PrefixWithoutNamespace);
    std::uint32_t prefix = 0;
    std::uint32_t namespaceName = 0;
    m_namespaceName.clear();
    if (first & HasPrefix)
        prefix = ParseIdentifyingString(m_vocabulary->m_prefixNames, m_prefix);
    if (first & HasNamespace)
        namespaceName = ParseIdentifyingString(m_vocabulary->m_namespaceNames, m_namespaceName);
    const std::uint32_t localName = ParseIdentifyingString(m_vocabulary->m_localNames, m_localName);
    CFIVocabulary::AddQNameToVector(prefix, namespaceName, localName, table.m_values);
    return m_document->m_memory->names.Share(m_namespaceName, m_localName);
}

/// Reads an index into a table or a literal, which is entered there. Returns its index.
///
/// Deliberate: once the table is full a literal goes by the index of its last entry.
std::uint32_t CFastInfosetReader::ParseIdentifyingString(CFIVocabulary::CFIStringTable& table,
                                                         std::u16string& text) {
    const Byte first = ReadByte();
    if (first & StringIndex) {
        const std::uint64_t index = ReadInteger(integerBit2, first);
        text = EntryAt(table.m_values, index);
        return static_cast<std::uint32_t>(index);
    }
    DecodeUtf8(ReadBytes(ReadInteger(octetsBit2, first)));
    text = m_value.substr(0, m_value.find(u'\0')); // Deliberate: names end at a zero.
    CFIVocabulary::AddValueToVector(text, table.m_values);
    return static_cast<std::uint32_t>(table.m_values.size());
}

/// Reads the value of an attribute. The result is valid until the next string is read.
std::u16string_view CFastInfosetReader::ParseNonIdentifyingString() {
    const Byte first = ReadByte();
    if (first == EmptyString)
        return {};
    std::vector<std::u16string>& values = m_vocabulary->m_attributeValues.m_values;
    if (first & StringIndex)
        return EntryAt(values, ReadInteger(integerFrom0Bit2, first));
    ParseEncodedString(attributeValueForm, first);
    if (first & AddToTable)
        CFIVocabulary::AddValueToVector(m_value, values);
    return m_value;
}

/// Reads a string in any of its kinds into the current value.
void CFastInfosetReader::ParseEncodedString(const EncodedStringForm& form, Byte first) {
    const unsigned kind = form.KindOf(first);
    if (kind == KindUtf16BE)
        Throw<CKzException>(messages::Utf16NotRead);
    if (kind == KindUtf8)
        return DecodeUtf8(ReadBytes(ReadInteger(form.length, first)));
    const Byte second = ReadByte();
    const unsigned number = form.NumberIn(first, second);
    const std::span<const Byte> octets = ReadBytes(ReadInteger(form.length, second));
    if (kind == KindRestrictedAlphabet)
        ParseRestrictedAlphabet(number, octets);
    else
        ParseAlgorithm(number, octets);
}

void CFastInfosetReader::ParseRestrictedAlphabet(std::uint32_t number, std::span<const Byte> octets) {
    const std::vector<std::u16string>& alphabets = m_vocabulary->m_alphabets;
    if (number > alphabets.size())
        Throw<CKzException>(messages::ReadAlphabetSize);
    m_long = UnpackRestrictedAlphabetString(alphabets[number - 1], octets);
    m_value = m_long;
}

void CFastInfosetReader::ParseAlgorithm(std::uint32_t number, std::span<const Byte> octets) {
    if (number == AlgorithmCdata)
        return DecodeUtf8(octets);
    CFastInfosetBinaryData data;
    data.SetBuffer(octets.data(), octets.size());
    m_long = data.GetAsString(number);
    m_value = m_long;
}

/// Deliberate: malformed UTF-8 ends the text.
void CFastInfosetReader::DecodeUtf8(std::span<const Byte> octets) {
    const std::string_view bytes = AsText(octets);
    if (bytes.size() > std::size(m_short)) {
        m_long.clear();
        AppendUtf16(m_long, bytes);
        m_value = m_long;
        return;
    }
    const bool isAscii = WriteAscii(m_short, bytes);
    m_value = {m_short, isAscii ? bytes.size() : WriteUtf16(m_short, bytes).units};
}

/// A target and its data.
void CFastInfosetReader::SkipProcessingInstruction() {
    SkipIdentifyingString();
    SkipNonIdentifyingString();
}

void CFastInfosetReader::SkipExternalIdentifier(Byte parts) {
    if (parts & HasSystemIdentifier)
        SkipIdentifyingString();
    if (parts & HasPublicIdentifier)
        SkipIdentifyingString();
}

/// What is dropped may refer to tables that are not kept, so nothing is looked up.
void CFastInfosetReader::SkipIdentifyingString() {
    const Byte first = ReadByte();
    if (first & StringIndex)
        ReadInteger(integerBit2, first);
    else
        ReadBytes(ReadInteger(octetsBit2, first));
}

void CFastInfosetReader::SkipNonIdentifyingString() {
    const Byte first = ReadByte();
    if (first == EmptyString)
        return;
    if (first & StringIndex)
        ReadInteger(integerFrom0Bit2, first);
    else
        SkipEncodedString(first);
}

void CFastInfosetReader::SkipEncodedString(Byte first) {
    const unsigned kind = attributeValueForm.KindOf(first);
    const bool isPlain = kind == KindUtf8 || kind == KindUtf16BE;
    ReadBytes(ReadInteger(attributeValueForm.length, isPlain ? first : ReadByte()));
}

void CFastInfosetReader::SkipOctets() { ReadBytes(ReadInteger(octetsBit2, ReadByte())); }

Byte CFastInfosetReader::ReadByte() {
    if (m_next == m_end)
        Throw<CKzException>(messages::UnexpectedEnd);
    return *m_next++;
}

std::span<const Byte> CFastInfosetReader::ReadBytes(std::uint64_t count) {
    if (count > static_cast<std::uint64_t>(m_end - m_next))
        Throw<CKzException>(messages::UnexpectedEnd);
    const std::span<const Byte> bytes(m_next, count);
    m_next += count;
    return bytes;
}

/// Reads an integer that starts in a byte read already.
inline std::uint64_t CFastInfosetReader::ReadInteger(const IntegerRule& rule, Byte first) {
    const Byte pattern = first & rule.mask;
    return pattern < rule.bands[1].mark ? pattern + 1u : ReadLongInteger(rule, first); // mostly the first
}

std::uint64_t CFastInfosetReader::ReadLongInteger(const IntegerRule& rule, Byte first) {
    const Band& second = rule.bands[1];
    if ((first & rule.mask) == second.mark && second.followingBytes == 1 && m_next != m_end)
        return second.first + *m_next++; // as is usual
    const Band* band = rule.AnnouncedBy(first);
    if (!band)
        throw CKzException(rule.failure);
    return rule.Decode(*band, first, ReadBytes(band->followingBytes));
}

} // namespace KzXmlLib10
