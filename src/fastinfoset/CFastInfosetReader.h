#pragma once

#include "fastinfoset/IntegerRules.h"
#include "fastinfoset/Marks.h"
#include "xml/TreeBudget.h"

#include <KzXmlLib10/fastinfoset/CFIVocabulary.h>
#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/xml/SharedName.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KzXmlLib10 {

/// Builds the tree of a CXmlDocument from a Fast Infoset document (ITU-T X.891) in its buffer.
///
///     CFastInfosetReader reader(&context.GetFIContext(), this);
///     if (reader.IsFastInfoset()) {
///         reader.ReadHeader();
///         reader.ParseDocument();
///     }
///
/// Reads all that may stand in a document, from any writer, but strings in UTF-16BE; what leaves a trace are
/// elements, attributes, character data and namespace declarations. Never reads outside the buffer, and
/// takes constant stack whatever the depth. All failures are CKzException.
///
/// Deliberate: an initial vocabulary in the document has no effect, only the one of the settings has; the
/// callback for elements is not called; malformed UTF-8 ends its string, without a failure.
class CFastInfosetReader : public CInstanceMonitor {
public:
    /// `handedIn` is the size that the document's buffer had before decompression.
    CFastInfosetReader(const CFastInfosetContext* context, CXmlDocument* document, std::uint64_t handedIn);
    ~CFastInfosetReader() override;

    /// Whether the buffer holds a Fast Infoset document, with or without a declaration. Moves behind its
    /// identification.
    bool IsFastInfoset();
    /// Moves behind the optional components of the document.
    void ReadHeader();
    /// Reads up to the end of the root. A document without one leaves the tree empty.
    void ParseDocument();

private:
    bool SkipIdentification();
    void SkipAdditionalData();
    void SkipInitialVocabulary();
    void SkipNotations();
    void SkipUnparsedEntities();
    void SkipNameSurrogate();
    void SkipDocumentType(fastinfoset::Byte first);
    void SkipProcessingInstruction();
    void SkipExternalIdentifier(fastinfoset::Byte parts);
    void SkipIdentifyingString();
    void SkipNonIdentifyingString();
    void SkipEncodedString(fastinfoset::Byte first);
    void SkipOctets();
    void RequireEnd(fastinfoset::Byte byte);

    void ParseElement(fastinfoset::Byte first);
    void ParseItem(fastinfoset::Byte item);
    fastinfoset::Byte ParseNamespaceAttributes();
    void ParseNamespaceAttribute(fastinfoset::Byte first);
    bool ParseAttributes();
    void ParseAttribute(fastinfoset::Byte first);
    void ParseCharacterChunk(fastinfoset::Byte first);
    bool AppendPlainText(std::string_view text);
    void PopElement();

    const SharedName& ParseName(fastinfoset::Byte first, fastinfoset::Byte literal, fastinfoset::Byte mask,
                                const fastinfoset::IntegerRule& rule, CFIVocabulary::CFIQNameTable& table,
                                std::vector<const SharedName*>& shared);
    const SharedName& ShareEntry(std::uint64_t index, const CFIVocabulary::CFIQNameTable& table,
                                 std::vector<const SharedName*>& shared);
    const SharedName& ParseQName(fastinfoset::Byte first, CFIVocabulary::CFIQNameTable& table);
    std::uint32_t ParseIdentifyingString(CFIVocabulary::CFIStringTable& table, std::u16string& text);
    std::u16string_view ParseNonIdentifyingString();
    void ParseEncodedString(const fastinfoset::EncodedStringForm& form, fastinfoset::Byte first);
    void DecodeUtf8(std::span<const fastinfoset::Byte> octets);
    void ParseRestrictedAlphabet(std::uint32_t number, std::span<const fastinfoset::Byte> octets);
    void ParseAlgorithm(std::uint32_t number, std::span<const fastinfoset::Byte> octets);

    fastinfoset::Byte ReadByte();
    std::span<const fastinfoset::Byte> ReadBytes(std::uint64_t count);
    std::uint64_t ReadInteger(const fastinfoset::IntegerRule& rule, fastinfoset::Byte first);
    std::uint64_t ReadLongInteger(const fastinfoset::IntegerRule& rule, fastinfoset::Byte first);

    const CFastInfosetContext* m_fiContext;
    CXmlDocument* m_document;
    const fastinfoset::Byte* m_next;
    const fastinfoset::Byte* m_end;
    std::u16string m_prefix;
    std::u16string m_namespaceName;
    std::u16string m_localName;
    std::u16string_view m_value; ///< the string read last, which lies in one of these
    char16_t m_short[256];
    std::u16string m_long;
    std::unique_ptr<CFIVocabulary> m_vocabulary;
    std::vector<const SharedName*> m_elementNames;
    std::vector<const SharedName*> m_attributeNames;
    TreeBudget m_budget;
};

} // namespace KzXmlLib10
