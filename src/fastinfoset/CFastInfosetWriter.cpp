#include <KzXmlLib10/fastinfoset/CFastInfosetWriter.h>

#include "fastinfoset/Algorithms.h"
#include "fastinfoset/Declarations.h"
#include "fastinfoset/IntegerRules.h"
#include "fastinfoset/Marks.h"
#include "fastinfoset/Messages.h"
#include "fastinfoset/RestrictedAlphabet.h"
#include "object/NotNull.h"
#include "object/TextScan.h"
#include "object/Throw.h"
#include "object/Utf8.h"
#include "xml/NamespaceMap.h"
#include "xml/XmlNamespaces.h"

#include <KzXmlLib10/fastinfoset/CFIVocabulary.h>
#include <KzXmlLib10/fastinfoset/CFastInfosetBinaryData.h>
#include <KzXmlLib10/fastinfoset/CFastInfosetContext.h>
#include <KzXmlLib10/xml/CBinaryStream.h>

#include <cstring>
#include <iterator>
#include <typeinfo>

// <a b="1"><c>x</c><c/></a>, from the first byte to the last:
//
//     E0 00 00 01  00                identification, no optional components
//     78 F0                          an element with attributes and an empty list of namespace attributes
//     3C 00 61                       its name, a literal: 1 byte, "a"
//     78 00 62  40 31  F0            attribute "b", value "1", which goes to the table; end of the attributes
//     3C 00 63  90 78  F0            element "c", character chunk "x", which goes to the table; end
//     01  FF                         element name 2, which is "c"; end of it and of "a"
//     F0                             end of the document

namespace KzXmlLib10 {

using namespace fastinfoset;

namespace {

constexpr char16_t noVocabularyUri[] = u"urn:quillon:vocabulary:none";

/// Which of two optional parts of a name there are.
Byte PartsOf(const std::u16string& prefix, const std::u16string& uri) {
    return static_cast<Byte>((prefix.empty() ? 0 : HasPrefix) | (uri.empty() ? 0 : HasNamespace));
}

std::size_t PlaceOf(std::u16string_view localName) {
    return localName.empty() ? 0
                             : localName.size() + 3u * localName.front() + 11u * localName.back() +
                                   23u * localName[localName.size() / 2];
}

[[gnu::noinline]] void AppendLongInteger(CBinaryData& out, const IntegerRule& rule, Byte bits,
                                         std::uint64_t value) {
    Byte* const octets = out.Reserve(IntegerRule::MaxOctets);
    out.Commit(octets + rule.Encode(value, bits, octets));
}

/// Inline, so that what is known of the rule is known here.
inline void AppendInteger(CBinaryData& out, const IntegerRule& rule, Byte bits, std::uint64_t value) {
    if (value < rule.bands[1].first) // as most are
        out.Append(static_cast<Byte>(bits | (value - 1)));
    else
        AppendLongInteger(out, rule, bits, value);
}

std::string_view AsText(const CBinaryData& data) {
    return {reinterpret_cast<const char*>(data.GetData()), data.GetLength()};
}

} // namespace

CFastInfosetWriter::CFastInfosetWriter(CBinaryStream* stream, const CFastInfosetContext* context)
    : CXmlWriter(typeid(CFastInfosetWriter), static_cast<LeafOperation>(&CFastInfosetWriter::WritePlainLeaf)),
      m_stream(NotNull(stream, u"stream")), m_fiContext(NotNull(context, u"context")),
      m_vocabulary(context->GetUseGeneratedVocabulary() ? new CFIVocabulary(context->GetVocabulary())
                                                        : new CFIVocabulary) {}

CFastInfosetWriter::~CFastInfosetWriter() = default;

/// False, and nothing written, if the text has no bytes.
template <const IntegerRule& rule>
bool CFastInfosetWriter::WriteUtf8String(unsigned char bits, const std::u16string& text) {
    constexpr std::size_t longestShort = 256;
    constexpr std::size_t bytesPerUnit = 3;
    if (text.empty())
        return false;
    if (text.size() > longestShort) {
        m_octets.clear();
        AppendUtf8(m_octets, text);
        if (!m_octets.empty())
            WriteOctets(rule, bits, m_octets);
        return !m_octets.empty();
    }
    // Most texts are ASCII, so that the length is known before the bytes are.
    CBinaryData& out = m_stream->m_data;
    Byte* const start = out.Reserve(IntegerRule::MaxOctets + bytesPerUnit * text.size());
    std::size_t count = text.size();
    Byte* to = start + rule.Encode(count, bits, start);
    if (!WriteAscii(reinterpret_cast<char*>(to), text)) {
        count = MeasureUtf8(text).bytes;
        if (count == 0)
            return false;
        to = start + rule.Encode(count, bits, start);
        WriteUtf8(reinterpret_cast<char*>(to), text);
    }
    out.Commit(to + count);
    return true;
}

/// Writes a text in the form for its kind. False, and nothing written, if that form has no bytes.
template <const EncodedStringForm& form>
bool CFastInfosetWriter::EncodedCharacterString(unsigned char bits, const std::u16string& text,
                                                ItemType type) {
    const auto& encoding = m_fiContext->GetEncoding(static_cast<unsigned long>(type));
    if (encoding.m_type != CFastInfosetContext::EncodingType_Default)
        return WriteInEncoding(form, bits, text, type);
    if (m_fiContext->GetDefaultStringEncoding() != 0)
        Throw<CKzException>(messages::Utf16NotWritten);
    return WriteUtf8String<form.length>(bits, text);
}

void CFastInfosetWriter::WriteHeader(FInfoDecl declaration) {
    if (declaration < 0 || static_cast<std::size_t>(declaration) >= std::size(declarations))
        Throw<CKzInvalidParamException>(messages::NoSuchDeclaration, declaration);
    for (const char c : declarations[declaration])
        WriteByte(static_cast<Byte>(c));
    for (const Byte byte : identification)
        WriteByte(byte);
    if (!m_fiContext->GetUseGeneratedVocabulary())
        return WriteByte(0);
    WriteByte(InitialVocabulary);
    WriteByte(ExternalVocabulary >> 8);
    WriteByte(0);
    const std::u16string uri = m_fiContext->GetExternalVocabularyURI();
    WriteIdentifyingString(uri.empty() ? noVocabularyUri : uri);
}

void CFastInfosetWriter::WriteDocumentEnd() {
    FlushPendingElement(false); // so that Close sees it
    WriteByte(m_pendingTerminator ? DoubleEnd : End);
}

void CFastInfosetWriter::WriteComment(const std::u16string&) {}

void CFastInfosetWriter::WriteProcessingInstruction(const std::u16string&) { FlushPendingElement(false); }

void CFastInfosetWriter::WriteInlineSchema(const std::u16string&) {}

void CFastInfosetWriter::StartElement(const std::u16string& name, const std::u16string& namespaceUri) {
    FlushPendingElement(false);
    if (m_pendingTerminator) {
        WriteByte(End);
        m_pendingTerminator = false;
    }
    if (m_context) {
        m_context->CountChild();
        CloseStartTag();
    }
    m_pendingContext = CreateContext(name, namespaceUri);
}

/// Writes the start of the element that is pending, if there is one, and makes it current.
void CFastInfosetWriter::FlushPendingElement(bool hasAttribute) {
    if (!m_pendingContext)
        return;
    CXmlWriterContext& context = *m_pendingContext;
    context.m_hasAttributes = hasAttribute;
    Byte flag = hasAttribute ? HasAttributes : 0;
    if (m_context) {
        context.InheritAgain(*m_context);
    } else {
        WriteNamespaceAttributes(flag);
        flag = 0;
    }
    // Deliberate: a prefix made up here is declared by no namespace attribute.
    const NamePrefix prefix = BindName(context);
    WriteElementName(flag, prefix.prefix, context.m_namespaceUri, context.m_name, context.StateOfPrefix());
    EnterContext(std::move(m_pendingContext));
}

/// The list is never left out: the map always holds the prefix of the XML namespace.
void CFastInfosetWriter::WriteNamespaceAttributes(unsigned char flag) {
    WriteByte(flag | NamespaceAttributesFollow);
    if (!m_defaultNamespace.empty())
        WriteNamespaceAttribute(u"", m_defaultNamespace);
    for (const auto& [uri, prefix] : m_namespaces)
        if (!uri.starts_with(xmlNamespace))
            WriteNamespaceAttribute(prefix, uri);
    WriteByte(End);
}

void CFastInfosetWriter::WriteNamespaceAttribute(const std::u16string& prefix, const std::u16string& uri) {
    WriteByte(NamespaceAttribute | PartsOf(prefix, uri));
    WritePrefixName(prefix);
    WriteNamespaceName(uri);
}

/// Ends the attributes of the current element, if it still takes any.
///
/// Deliberate: with a byte of their own, never shared with another end.
void CFastInfosetWriter::CloseStartTag() {
    if (!m_context->m_startTagOpen)
        return;
    m_context->m_startTagOpen = false;
    if (m_context->m_hasAttributes)
        WriteByte(End);
}

/// Deliberate: the mark that ends a child just before stays pending.
void CFastInfosetWriter::WriteText(const std::u16string& text, ItemType type) {
    FlushPendingElement(false);
    (void)OpenElement();
    CloseStartTag();
    if (!text.empty())
        WriteCharacterChunk(text, type);
}

void CFastInfosetWriter::EndElement() {
    FlushPendingElement(false);
    (void)OpenElement();
    CloseStartTag();
    if (m_pendingTerminator)
        WriteByte(DoubleEnd);
    m_pendingTerminator = !m_pendingTerminator;
    LeaveContext();
}

/// Writes an element in the namespace of its parent without a context of its own, and any other by its parts.
void CFastInfosetWriter::WritePlainLeaf(const LeafName& name, const std::u16string& text, ItemType type) {
    if (m_pendingContext)
        FlushPendingElement(false);
    if (!m_context)
        return WriteLeafByParts(name, text, type);
    const std::uint64_t state = m_context->GetNamespaceMap().State();
    KnownLeaf& known = m_knownLeaves[name.number % m_knownLeaves.size()];
    const bool isKnown = known.nameNumber == name.number && known.namespaceState == state;
    if (!isKnown &&
        (m_context->StateOfPrefix() != state || !SameText(name.namespaceUri, m_context->m_namespaceUri)))
        return WriteLeafByParts(name, text, type);
    if (m_pendingTerminator) {
        WriteByte(End);
        m_pendingTerminator = false;
    }
    m_context->CountChild();
    CloseStartTag();
    bool isNamed = false;
    try {
        if (isKnown)
            WriteIntegerBit3(0, known.index);
        else
            WriteLeafName(known, name);
        isNamed = true;
        if (!text.empty())
            WriteCharacterChunk(text, type);
    } catch (...) { // which leaves the element open, or still pending
        m_pendingContext = CreateContext(name.local, name.namespaceUri);
        if (isNamed) {
            m_pendingContext->m_startTagOpen = false;
            EnterContext(std::move(m_pendingContext));
        }
        throw;
    }
    m_pendingTerminator = true;
}

/// Writes the name of a leaf in the namespace of its parent, and remembers it once it is in its table.
[[gnu::noinline]] void CFastInfosetWriter::WriteLeafName(KnownLeaf& known, const LeafName& name) {
    const std::uint64_t state = m_context->StateOfPrefix();
    WriteElementName(0, m_context->Prefix(), name.namespaceUri, name.local, state);
    const RecentName& recent = RecentNameOf(name.local);
    if (name.number != 0 && IsRecent(recent, m_context->Prefix(), name.namespaceUri, name.local, state))
        known = {name.number, state, recent.index};
}

void CFastInfosetWriter::WriteAttribute(const std::u16string& name, const std::u16string& namespaceUri,
                                        const std::u16string& value, ItemType type) {
    FlushPendingElement(true);
    RequireOpenStartTag();
    if (namespaceUri.empty())
        WritePlainAttributeName(name);
    else
        WriteAttributeName(BindPrefix(*m_context, namespaceUri).prefix, namespaceUri, name);
    WriteAttributeValue(value, type);
}

void CFastInfosetWriter::WriteXsiType(const std::u16string& namespaceUri, const std::u16string& typeName,
                                      ItemType type) {
    FlushPendingElement(true);
    RequireOpenStartTag();
    if (!m_context->NeedsPrefix(namespaceUri))
        return WriteAttribute(u"type", schemaInstanceNamespace, typeName, type);
    const BoundPrefix bound = BindPrefix(*m_context, namespaceUri);
    if (bound.isNew) // Deliberate: the attribute takes the name of the type.
        WriteAttributeName(bound.prefix, namespaceUri, typeName);
    else // Deliberate: the prefix of xsi:type is that of the type.
        WriteAttributeName(bound.prefix, schemaInstanceNamespace, u"type");
    WriteAttributeValue(bound.prefix + u":" + typeName, type);
}

void CFastInfosetWriter::WriteXsiNil() {
    FlushPendingElement(true);
    RequireOpenStartTag();
    WriteAttribute(u"nil", schemaInstanceNamespace, u"true", ItemType_boolean);
}

CFastInfosetWriter::RecentName& CFastInfosetWriter::RecentNameOf(const std::u16string& localName) {
    return m_recentNames[PlaceOf(localName) % m_recentNames.size()];
}

bool CFastInfosetWriter::IsRecent(const RecentName& recent, const std::u16string* prefix,
                                  const std::u16string& uri, const std::u16string& localName,
                                  std::uint64_t namespaceState) const {
    return recent.namespaceState == namespaceState && recent.prefix == prefix &&
           recent.hasNamespace != uri.empty() && recent.localLength == localName.size() &&
           SameText({m_vocabulary->m_elementNameIndex.TextOf(recent.index).data(), localName.size()},
                    localName);
}

void CFastInfosetWriter::WriteElementName(unsigned char flag, const std::u16string* prefix,
                                          const std::u16string& uri, const std::u16string& localName,
                                          std::uint64_t namespaceState) {
    const RecentName& recent = RecentNameOf(localName);
    if (IsRecent(recent, prefix, uri, localName, namespaceState))
        AppendInteger(m_stream->m_data, integerBit3, flag, recent.index);
    else
        WriteOtherElementName(flag, prefix, uri, localName, namespaceState);
}

void CFastInfosetWriter::WriteOtherElementName(unsigned char flag, const std::u16string* prefix,
                                               const std::u16string& uri, const std::u16string& localName,
                                               std::uint64_t namespaceState) {
    auto& map = m_vocabulary->m_elementNameIndex;
    static const std::u16string none;
    const std::u16string& shownPrefix = prefix ? *prefix : none;
    CFIVocabulary::MakeKey(shownPrefix, uri, localName, m_key);
    std::uint32_t index;
    if (CFIVocabulary::FindIndex(map, m_key, index)) {
        RecentNameOf(localName) = {index, namespaceState, prefix, !uri.empty(), localName.size()};
        return WriteIntegerBit3(flag, index);
    }
    WriteQName(flag | LiteralElementName, shownPrefix, uri, localName);
    CFIVocabulary::AddValueToMap(m_key, map);
}

/// The name of an attribute in no namespace.
void CFastInfosetWriter::WritePlainAttributeName(const std::u16string& name) {
    const auto& map = m_vocabulary->m_attributeNameIndex;
    std::uint32_t& recent = m_recentAttributes[PlaceOf(name) % m_recentAttributes.size()];
    if (recent == 0 || !CFIVocabulary::IsKeyOf(name, map.TextOf(recent))) {
        CFIVocabulary::MakeKey({}, {}, name, m_key);
        recent = map.Find(m_key);
    }
    if (recent != 0)
        WriteIntegerBit2(0, recent);
    else
        WriteAttributeName(u"", u"", name);
}

void CFastInfosetWriter::WriteAttributeName(const std::u16string& prefix, const std::u16string& uri,
                                            const std::u16string& localName) {
    CFIVocabulary::MakeKey(prefix, uri, localName, m_key);
    std::uint32_t index;
    if (CFIVocabulary::FindIndex(m_vocabulary->m_attributeNameIndex, m_key, index))
        return WriteIntegerBit2(0, index);
    WriteQName(LiteralAttributeName, prefix, uri, localName);
    CFIVocabulary::AddValueToMap(m_key, m_vocabulary->m_attributeNameIndex);
}

void CFastInfosetWriter::WriteQName(unsigned char literal, const std::u16string& prefix,
                                    const std::u16string& uri, const std::u16string& localName) {
    WriteByte(literal | PartsOf(prefix, uri));
    WritePrefixName(prefix);
    WriteNamespaceName(uri);
    WriteLocalName(localName);
}

void CFastInfosetWriter::WritePrefixName(const std::u16string& prefix) {
    if (prefix.empty())
        return;
    std::uint32_t index;
    if (m_vocabulary->FindPrefixNameIndex(prefix, index))
        return WriteIntegerBit2(StringIndex, index);
    WriteIdentifyingString(prefix);
    CFIVocabulary::AddValueToMap(prefix, m_vocabulary->m_prefixNameIndex);
}

void CFastInfosetWriter::WriteNamespaceName(const std::u16string& uri) {
    if (uri.empty())
        return;
    std::uint32_t index;
    if (m_vocabulary->FindNamespaceNameIndex(uri, index))
        return WriteIntegerBit2(StringIndex, index);
    WriteIdentifyingString(uri);
    CFIVocabulary::AddValueToMap(uri, m_vocabulary->m_namespaceNameIndex);
}

void CFastInfosetWriter::WriteLocalName(const std::u16string& localName) {
    std::uint32_t index;
    if (m_vocabulary->FindLocalNameIndex(localName, index))
        return WriteIntegerBit2(StringIndex, index);
    WriteIdentifyingString(localName);
    CFIVocabulary::AddValueToMap(localName, m_vocabulary->m_localNameIndex);
}

void CFastInfosetWriter::WriteAttributeValue(const std::u16string& value, ItemType type) {
    if (value.empty())
        return WriteByte(EmptyString);
    const bool isShort = value.size() < m_fiContext->GetAttributeMaxAddLength();
    std::uint32_t index;
    if (isShort && CFIVocabulary::FindIndex(m_vocabulary->m_attributeValueIndex, value, index))
        return WriteIntegerBit2(StringIndex, index);
    if (!EncodedCharacterStringBit5(isShort ? AddToTable : 0, value, type))
        return WriteByte(EmptyString);
    if (isShort)
        CFIVocabulary::AddValueToMap(value, m_vocabulary->m_attributeValueIndex);
}

/// A value once in the table is written by its index whatever its kind.
void CFastInfosetWriter::WriteCharacterChunk(const std::u16string& text, ItemType type) {
    const bool isShort = text.size() < m_fiContext->GetElementMaxAddLength();
    std::uint32_t index;
    if (isShort && CFIVocabulary::FindIndex(m_vocabulary->m_characterChunkIndex, text, index))
        return WriteIntegerBit4(index);
    const Byte bits = CharacterChunk | (isShort ? AddChunkToTable : 0);
    if (EncodedCharacterStringBit7(bits, text, type) && isShort)
        CFIVocabulary::AddValueToMap(text, m_vocabulary->m_characterChunkIndex);
}

/// In attribute values the string starts on the third bit, and its length on the fifth.
bool CFastInfosetWriter::EncodedCharacterStringBit5(unsigned char bits, const std::u16string& value,
                                                    ItemType type) {
    return EncodedCharacterString<attributeValueForm>(bits, value, type);
}

/// In character chunks the string starts on the fifth bit, and its length on the seventh.
bool CFastInfosetWriter::EncodedCharacterStringBit7(unsigned char bits, const std::u16string& text,
                                                    ItemType type) {
    return EncodedCharacterString<characterChunkForm>(bits, text, type);
}

/// The same for a form other than the plain string.
bool CFastInfosetWriter::WriteInEncoding(const EncodedStringForm& form, unsigned char bits,
                                         const std::u16string& text, ItemType type) {
    const auto& encoding = m_fiContext->GetEncoding(static_cast<unsigned long>(type));
    const std::uint32_t index = encoding.m_index;
    switch (encoding.m_type) {
    case CFastInfosetContext::EncodingType_RestrictedAlphabet:
        AppendRestrictedAlphabetString(index, text);
        return WriteEncoded(form, KindRestrictedAlphabet, bits, index, m_octets);
    case CFastInfosetContext::EncodingType_Algorithm: {
        if (index < AlgorithmHexadecimal || index > AlgorithmCdata)
            Throw<CKzException>(messages::WrittenAlgorithm, index);
        CFastInfosetBinaryData encoded;
        encoded.SetAsEncodedString(index, text.c_str());
        return WriteEncoded(form, KindAlgorithm, bits, index, AsText(encoded));
    }
    default:
        throw CKzException(form.unknownEncoding);
    }
}

bool CFastInfosetWriter::WriteEncoded(const EncodedStringForm& form, unsigned kind, unsigned char bits,
                                      std::uint32_t index, std::string_view octets) {
    if (octets.empty())
        return false;
    WriteByte(bits | form.FirstByte(kind, index));
    WriteOctets(form.length, form.SecondByte(index), octets);
    return true;
}

void CFastInfosetWriter::AppendRestrictedAlphabetString(std::uint32_t index, const std::u16string& text) {
    if (index != AlphabetNumeric && index != AlphabetDateAndTime)
        Throw<CKzException>(messages::WrittenAlphabet, index);
    m_octets = PackRestrictedAlphabetString(m_vocabulary->m_alphabets[index - 1], text);
}

void CFastInfosetWriter::WriteIdentifyingString(const std::u16string& text) {
    if (!WriteUtf8String<octetsBit2>(0, text))
        Throw<CKzException>(messages::EmptyNameWritten);
}

void CFastInfosetWriter::WriteOctets(const IntegerRule& rule, unsigned char bits, std::string_view octets) {
    WriteInteger(rule, bits, octets.size());
    m_stream->m_data.Append(reinterpret_cast<const unsigned char*>(octets.data()), octets.size());
}

void CFastInfosetWriter::WriteIntegerBit2(unsigned char bits, std::uint32_t value) {
    AppendInteger(m_stream->m_data, integerBit2, bits, value);
}

void CFastInfosetWriter::WriteIntegerBit3(unsigned char bits, std::uint32_t value) {
    AppendInteger(m_stream->m_data, integerBit3, bits, value);
}

void CFastInfosetWriter::WriteIntegerBit4(std::uint32_t value) {
    AppendInteger(m_stream->m_data, integerBit4, CharacterChunk | CharacterChunkIndex, value);
}

void CFastInfosetWriter::WriteInteger(const IntegerRule& rule, unsigned char bits, std::uint64_t value) {
    AppendInteger(m_stream->m_data, rule, bits, value);
}

void CFastInfosetWriter::WriteByte(unsigned char byte) { m_stream->m_data.Append(byte); }

} // namespace KzXmlLib10
