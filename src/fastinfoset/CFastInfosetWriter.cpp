#include <KzXmlLib10/fastinfoset/CFastInfosetWriter.h>

#include "fastinfoset/Algorithms.h"
#include "fastinfoset/Declarations.h"
#include "fastinfoset/IntegerRules.h"
#include "fastinfoset/Marks.h"
#include "fastinfoset/Messages.h"
#include "fastinfoset/RestrictedAlphabet.h"
#include "object/NotNull.h"
#include "object/Throw.h"
#include "object/Utf8.h"
#include "xml/NamespaceMap.h"
#include "xml/XmlNamespaces.h"

#include <KzXmlLib10/fastinfoset/CFIVocabulary.h>
#include <KzXmlLib10/fastinfoset/CFastInfosetBinaryData.h>
#include <KzXmlLib10/fastinfoset/CFastInfosetContext.h>
#include <KzXmlLib10/xml/CBinaryStream.h>

#include <iterator>

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

std::string_view AsText(const CBinaryData& data) {
    return {reinterpret_cast<const char*>(data.GetData()), data.GetLength()};
}

} // namespace

CFastInfosetWriter::CFastInfosetWriter(CBinaryStream* stream, const CFastInfosetContext* context)
    : m_stream(NotNull(stream, u"stream")), m_fiContext(NotNull(context, u"context")),
      m_vocabulary(context->GetUseGeneratedVocabulary() ? new CFIVocabulary(context->GetVocabulary())
                                                        : new CFIVocabulary) {}

CFastInfosetWriter::~CFastInfosetWriter() = default;

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
    if (!m_context) {
        WriteNamespaceAttributes(flag);
        flag = 0;
    }
    const std::u16string& uri = context.m_namespaceUri;
    // Deliberate: a prefix made up here is declared by no namespace attribute.
    if (context.NeedsPrefix(uri))
        WriteElementName(flag, BindPrefix(context, uri).prefix, uri, context.m_name);
    else
        WriteElementName(flag, u"", uri, context.m_name);
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

void CFastInfosetWriter::WriteAttribute(const std::u16string& name, const std::u16string& namespaceUri,
                                        const std::u16string& value, ItemType type) {
    FlushPendingElement(true);
    RequireOpenStartTag();
    if (namespaceUri.empty())
        WriteAttributeName(u"", u"", name);
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

template <class Table, class Name>
bool CFastInfosetWriter::FindName(const Table& table, RecentNames& recent, const Name& name,
                                  std::uint32_t& index) {
    const std::u16string_view local = name.localName;
    const std::size_t place = local.empty() ? 0
                                            : local.size() + 3u * local.front() + 11u * local.back() +
                                                  23u * local[local.size() / 2];
    auto*& entry = recent[place % recent.size()];
    if (!entry || entry->first.size() != name.KeyLength() || name.CompareKey(entry->first) != 0) {
        const auto found = table.find(name);
        if (found == table.end())
            return false;
        entry = &*found; // which stays where it is
    }
    index = entry->second;
    return true;
}

void CFastInfosetWriter::WriteElementName(unsigned char flag, const std::u16string& prefix,
                                          const std::u16string& uri, const std::u16string& localName) {
    const CFIVocabulary::CQName name{prefix, uri, localName};
    std::uint32_t index;
    if (FindName(m_vocabulary->m_elementNameIndex, m_recentElementNames, name, index))
        return WriteIntegerBit3(flag, index);
    WriteQName(flag | LiteralElementName, prefix, uri, localName);
    CFIVocabulary::AddValueToMap(name.Key(), m_vocabulary->m_elementNameIndex);
}

void CFastInfosetWriter::WriteAttributeName(const std::u16string& prefix, const std::u16string& uri,
                                            const std::u16string& localName) {
    const CFIVocabulary::CQName name{prefix, uri, localName};
    std::uint32_t index;
    if (FindName(m_vocabulary->m_attributeNameIndex, m_recentAttributeNames, name, index))
        return WriteIntegerBit2(0, index);
    WriteQName(LiteralAttributeName, prefix, uri, localName);
    CFIVocabulary::AddValueToMap(name.Key(), m_vocabulary->m_attributeNameIndex);
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
    m_vocabulary->AddPrefixName(prefix);
}

void CFastInfosetWriter::WriteNamespaceName(const std::u16string& uri) {
    if (uri.empty())
        return;
    std::uint32_t index;
    if (m_vocabulary->FindNamespaceNameIndex(uri, index))
        return WriteIntegerBit2(StringIndex, index);
    WriteIdentifyingString(uri);
    m_vocabulary->AddNamespaceName(uri);
}

void CFastInfosetWriter::WriteLocalName(const std::u16string& localName) {
    std::uint32_t index;
    if (m_vocabulary->FindLocalNameIndex(localName, index))
        return WriteIntegerBit2(StringIndex, index);
    WriteIdentifyingString(localName);
    m_vocabulary->AddLocalName(localName);
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
    return EncodedCharacterString(attributeValueForm, bits, value, type);
}

/// In character chunks the string starts on the fifth bit, and its length on the seventh.
bool CFastInfosetWriter::EncodedCharacterStringBit7(unsigned char bits, const std::u16string& text,
                                                    ItemType type) {
    return EncodedCharacterString(characterChunkForm, bits, text, type);
}

/// Writes a text in the form for its kind. False, and nothing written, if that form has no bytes.
bool CFastInfosetWriter::EncodedCharacterString(const EncodedStringForm& form, unsigned char bits,
                                                const std::u16string& text, ItemType type) {
    const auto& encoding = m_fiContext->GetEncoding(static_cast<unsigned long>(type));
    CFastInfosetBinaryData encoded;
    std::string_view octets;
    EncodedStringKind kind;
    switch (encoding.m_type) {
    case CFastInfosetContext::EncodingType_Default:
        if (m_fiContext->GetDefaultStringEncoding() != 0)
            Throw<CKzException>(messages::Utf16NotWritten);
        kind = KindUtf8;
        m_octets.clear();
        AppendUtf8(m_octets, text);
        octets = m_octets;
        break;
    case CFastInfosetContext::EncodingType_RestrictedAlphabet:
        kind = KindRestrictedAlphabet;
        AppendRestrictedAlphabetString(encoding.m_index, text);
        octets = m_octets;
        break;
    case CFastInfosetContext::EncodingType_Algorithm:
        kind = KindAlgorithm;
        if (encoding.m_index < AlgorithmHexadecimal || encoding.m_index > AlgorithmCdata)
            Throw<CKzException>(messages::WrittenAlgorithm, encoding.m_index);
        encoded.SetAsEncodedString(encoding.m_index, text.c_str());
        octets = AsText(encoded);
        break;
    default:
        throw CKzException(form.unknownEncoding);
    }
    if (octets.empty())
        return false;
    if (kind != KindUtf8) {
        WriteByte(bits | form.FirstByte(kind, encoding.m_index));
        bits = form.SecondByte(encoding.m_index);
    }
    WriteOctets(form.length, bits, octets);
    return true;
}

void CFastInfosetWriter::AppendRestrictedAlphabetString(std::uint32_t index, const std::u16string& text) {
    if (index != AlphabetNumeric && index != AlphabetDateAndTime)
        Throw<CKzException>(messages::WrittenAlphabet, index);
    m_octets = PackRestrictedAlphabetString(m_vocabulary->m_alphabets[index - 1], text);
}

void CFastInfosetWriter::WriteIdentifyingString(const std::u16string& text) {
    m_octets.clear();
    AppendUtf8(m_octets, text);
    if (m_octets.empty())
        Throw<CKzException>(messages::EmptyNameWritten);
    WriteOctets(octetsBit2, 0, m_octets);
}

void CFastInfosetWriter::WriteOctets(const IntegerRule& rule, unsigned char bits, std::string_view octets) {
    WriteInteger(rule, bits, octets.size());
    m_stream->m_data.Append(reinterpret_cast<const unsigned char*>(octets.data()), octets.size());
}

void CFastInfosetWriter::WriteIntegerBit2(unsigned char bits, std::uint32_t value) {
    WriteInteger(integerBit2, bits, value);
}

void CFastInfosetWriter::WriteIntegerBit3(unsigned char bits, std::uint32_t value) {
    WriteInteger(integerBit3, bits, value);
}

void CFastInfosetWriter::WriteIntegerBit4(std::uint32_t value) {
    WriteInteger(integerBit4, CharacterChunk | CharacterChunkIndex, value);
}

void CFastInfosetWriter::WriteInteger(const IntegerRule& rule, unsigned char bits, std::uint64_t value) {
    Byte octets[IntegerRule::MaxOctets];
    const unsigned count = rule.Encode(value, bits, octets);
    if (count == 1)
        return WriteByte(octets[0]);
    m_stream->m_data.Append(octets, count);
}

void CFastInfosetWriter::WriteByte(unsigned char byte) { m_stream->m_data.Append(byte); }

} // namespace KzXmlLib10
