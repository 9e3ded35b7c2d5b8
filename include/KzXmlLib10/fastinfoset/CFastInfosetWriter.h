#pragma once

#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/xml/CXmlWriter.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace KzXmlLib10 {

namespace fastinfoset {
struct EncodedStringForm;
struct IntegerRule;
} // namespace fastinfoset

/// Writes a Fast Infoset document (ITU-T X.891): the binary form of what CXmlTextWriter writes as text.
///
///     CBinaryData bytes = order->ToFastInfosetStream(FInfoDecl_None, context, CompressionType_None);
///
/// What the format is used for: one document with at most a reference to an external vocabulary, elements,
/// attributes, character chunks, and namespace attributes of the root. Strings are in UTF-8 or in the form
/// that the settings name for the kind of value. Comments, instructions and schemas leave no trace.
///
/// Stream and settings stay the property of the caller and must outlive the writer, which serves one document
/// and one thread; its vocabulary is its own.
///
/// All failures are CKzException. A value that does not fit the form chosen for its kind fails; it never
/// becomes a plain string. So do names and namespaces without any character that UTF-8 can hold.
///
/// Deliberate, and to be known by who reads the bytes: text behind a child element comes without the mark
/// that ends the child, so that a reader takes it for the text of the child; a prefix made up below the root
/// has no namespace attribute, and neither has one of WriteXsiType, whose attribute then has the name of the
/// type; where the namespace of a type has a prefix, that of xsi:type itself is the same one.
class QUILLON_EXPORT CFastInfosetWriter : public CXmlWriter {
public:
    /// Null throws CKzInvalidParamException.
    CFastInfosetWriter(CBinaryStream* stream, const CFastInfosetContext* context);
    ~CFastInfosetWriter() override;

    /// Does nothing.
    void WriteComment(const std::u16string& text) override;
    /// Writes nothing.
    void WriteProcessingInstruction(const std::u16string& text) override;
    /// Does nothing.
    void WriteInlineSchema(const std::u16string& text) override;
    /// Writes nothing of the new element yet: its first byte depends on whether attributes follow.
    void StartElement(const std::u16string& name, const std::u16string& namespaceUri) override;
    void WriteText(const std::u16string& text, ItemType type) override;
    void EndElement() override;
    void WriteAttribute(const std::u16string& name, const std::u16string& namespaceUri,
                        const std::u16string& value, ItemType type) override;
    void WriteXsiType(const std::u16string& namespaceUri, const std::u16string& typeName,
                      ItemType type) override;
    void WriteXsiNil() override;

private:
    friend class CXmlObjectBase;
    /// An element name that was found in its table. In one namespace state the prefix tells the namespace,
    /// so that only the local name needs to be compared.
    struct RecentName {
        std::uint32_t index = 0;
        std::uint64_t namespaceState = 0;
        const std::u16string* prefix = nullptr;
        bool hasNamespace = false;
        std::size_t localLength = 0;
    };

    /// The name of a leaf that was found in its table.
    struct KnownLeaf {
        std::uint64_t nameNumber = 0;
        std::uint64_t namespaceState = 0;
        std::uint32_t index = 0;
    };

    void WritePlainLeaf(const LeafName& name, const std::u16string& text, ItemType type);
    void WriteLeafName(KnownLeaf& known, const LeafName& name);
    RecentName& RecentNameOf(const std::u16string& localName);
    bool IsRecent(const RecentName& recent, const std::u16string* prefix, const std::u16string& uri,
                  const std::u16string& localName, std::uint64_t namespaceState) const;

    void WriteHeader(FInfoDecl declaration);
    void WriteDocumentEnd();

    void FlushPendingElement(bool hasAttribute);
    void WriteNamespaceAttributes(unsigned char flag);
    void WriteNamespaceAttribute(const std::u16string& prefix, const std::u16string& uri);
    void CloseStartTag();

    void WriteElementName(unsigned char flag, const std::u16string* prefix, const std::u16string& uri,
                          const std::u16string& localName, std::uint64_t namespaceState);
    void WriteOtherElementName(unsigned char flag, const std::u16string* prefix, const std::u16string& uri,
                               const std::u16string& localName, std::uint64_t namespaceState);
    void WritePlainAttributeName(const std::u16string& name);
    void WriteAttributeName(const std::u16string& prefix, const std::u16string& uri,
                            const std::u16string& localName);
    void WriteQName(unsigned char literal, const std::u16string& prefix, const std::u16string& uri,
                    const std::u16string& localName);
    void WritePrefixName(const std::u16string& prefix);
    void WriteNamespaceName(const std::u16string& uri);
    void WriteLocalName(const std::u16string& localName);

    void WriteAttributeValue(const std::u16string& value, ItemType type);
    void WriteCharacterChunk(const std::u16string& text, ItemType type);
    bool EncodedCharacterStringBit5(unsigned char bits, const std::u16string& value, ItemType type);
    bool EncodedCharacterStringBit7(unsigned char bits, const std::u16string& text, ItemType type);
    template <const fastinfoset::EncodedStringForm& form>
    bool EncodedCharacterString(unsigned char bits, const std::u16string& text, ItemType type);
    bool WriteInEncoding(const fastinfoset::EncodedStringForm& form, unsigned char bits,
                         const std::u16string& text, ItemType type);
    bool WriteEncoded(const fastinfoset::EncodedStringForm& form, unsigned kind, unsigned char bits,
                      std::uint32_t index, std::string_view octets);
    void AppendRestrictedAlphabetString(std::uint32_t index, const std::u16string& text);

    void WriteIdentifyingString(const std::u16string& text);
    template <const fastinfoset::IntegerRule& rule>
    bool WriteUtf8String(unsigned char bits, const std::u16string& text);
    void WriteOctets(const fastinfoset::IntegerRule& rule, unsigned char bits, std::string_view octets);
    void WriteIntegerBit2(unsigned char bits, std::uint32_t value);
    void WriteIntegerBit3(unsigned char bits, std::uint32_t value);
    void WriteIntegerBit4(std::uint32_t value);
    void WriteInteger(const fastinfoset::IntegerRule& rule, unsigned char bits, std::uint64_t value);
    void WriteByte(unsigned char byte);

    CBinaryStream* m_stream;
    const CFastInfosetContext* m_fiContext;
    std::unique_ptr<CXmlWriterContext> m_pendingContext;
    bool m_pendingTerminator = false;
    std::unique_ptr<CFIVocabulary> m_vocabulary;
    /// Each at a place that its local name tells: nearly all elements have a name that was there before.
    std::array<RecentName, 128> m_recentNames;
    /// Each at a place that the number of its name tells.
    std::array<KnownLeaf, 64> m_knownLeaves;
    /// The indices of attributes in no namespace, each at a place that its name tells; 0 for none.
    std::array<std::uint32_t, 64> m_recentAttributes{};
    std::u16string m_key; ///< of the name that is looked up, kept for its memory
    /// The bytes of the string that is being written, kept for their memory.
    std::string m_octets;
};

} // namespace KzXmlLib10
