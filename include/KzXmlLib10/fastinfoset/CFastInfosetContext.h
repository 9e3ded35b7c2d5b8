#pragma once

#include <KzXmlLib10/fastinfoset/CFIVocabulary.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/ItemType.h>

#include <cstdint>
#include <string>

namespace KzXmlLib10 {

/// The settings of Fast Infoset output and input: how values of each kind are represented, which values go
/// to the tables, and which vocabulary both ends share.
///
///     CFastInfosetContext& fastInfoset = context.GetFIContext();
///     fastInfoset.SetSuggestedValues();
///     fastInfoset.SetAttributeMaxAddLength(32);
///
/// As it comes, all values are written as plain UTF-8 strings, those of up to 5 characters into the tables,
/// and no vocabulary is shared.
///
/// Set up before use; documents only read it, from any number of threads.
class QUILLON_EXPORT CFastInfosetContext {
public:
    /// The kinds of encoded character string of ITU-T X.891.
    enum EncodingType : std::int32_t {
        EncodingType_Default = 0,            ///< a string in the default encoding
        EncodingType_RestrictedAlphabet = 1, ///< positions in an alphabet: 1 numbers, 2 dates and times
        EncodingType_Algorithm = 2,          ///< a built-in encoding algorithm, 1 to 10
    };

    /// How values of one kind are represented.
    struct EncodedCharacterString {
        EncodingType m_type = EncodingType_Default;
        /// The number of the alphabet or of the algorithm.
        std::uint32_t m_index = 0;
    };

    CFastInfosetContext();
    CFastInfosetContext(const CFastInfosetContext& other);
    CFastInfosetContext& operator=(const CFastInfosetContext& other);
    ~CFastInfosetContext();

    /// The length in characters, 6 at first, from which attribute values stay out of the tables; a shorter
    /// one is written once and referred to by index from then on. Throws CKzInvalidParamException for
    /// 2^32 and more.
    std::uint32_t GetAttributeMaxAddLength() const { return m_attributeMaxAddLength; }
    void SetAttributeMaxAddLength(unsigned long length);
    /// The same for character content.
    std::uint32_t GetElementMaxAddLength() const { return m_elementMaxAddLength; }
    void SetElementMaxAddLength(unsigned long length);

    /// 0 for UTF-8, the only one there is; 1 would be UTF-16BE, which cannot be written.
    std::uint8_t GetDefaultStringEncoding() const { return m_defaultStringEncoding; }

    /// The representation of values of an ItemType. Throws CKzInvalidParamException for any other number.
    const EncodedCharacterString& GetEncoding(unsigned long itemType) const;
    void SetEncoding(unsigned long itemType, EncodedCharacterString encoding);

    /// Whether documents are written and read with a copy of GetVocabulary, rather than with empty tables.
    bool GetUseGeneratedVocabulary() const { return m_useGeneratedVocabulary; }
    void SetUseGeneratedVocabulary(bool use) { m_useGeneratedVocabulary = use; }

    /// What both ends know in advance. Must not be changed while documents are written or read.
    const CFIVocabulary& GetVocabulary() const { return m_vocabulary; }
    CFIVocabulary& GetVocabulary() { return m_vocabulary; }

    /// The name under which a document refers to the vocabulary. Readers do not look at it. If empty,
    /// "urn:quillon:vocabulary:none" is written.
    std::u16string GetExternalVocabularyURI() const { return m_externalVocabularyUri; }
    void SetExternalVocabularyURI(const std::u16string& uri) { m_externalVocabularyUri = uri; }

    /// Sets a representation by algorithm or alphabet for each kind that has one, except for characters,
    /// strings and durations, which stay as they are.
    ///
    /// Deliberate: values that do not fit then fail to be written, with no way back to a plain string. Such
    /// are decimals with a capital E, dates and times with a fraction or a positive offset, and ui8 values
    /// from 2^63 on. An r4 value does not come back as it went, see CFastInfosetBinaryData.
    void SetSuggestedValues();

private:
    static constexpr unsigned long itemTypeCount = ItemType_xmlCollection + 1;

    std::uint8_t m_defaultStringEncoding = 0;
    EncodedCharacterString m_encodings[itemTypeCount];
    std::uint32_t m_attributeMaxAddLength = 6;
    std::uint32_t m_elementMaxAddLength = 6;
    bool m_useGeneratedVocabulary = false;
    CFIVocabulary m_vocabulary;
    std::u16string m_externalVocabularyUri;
};

} // namespace KzXmlLib10
