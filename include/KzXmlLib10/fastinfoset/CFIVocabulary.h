#pragma once

#include <KzXmlLib10/object/Export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace KzXmlLib10 {

/// The tables of a Fast Infoset document (ITU-T X.891): names and short values that are written once and
/// referred to by index from then on.
///
///     CFIVocabulary& vocabulary = context.GetFIContext().GetVocabulary();
///     vocabulary.AddElement(u"o", u"urn:o", u"order");
///     vocabulary.AddAttributeValue(u"EUR");
///     context.GetFIContext().SetUseGeneratedVocabulary(true);
///
/// Each table has two directions: text to index for writing, index to text for reading. Indices begin at 1;
/// 0 stands for the empty text. A table takes 2^20 entries; what comes later is not entered, without a
/// failure. Entering what is there already changes nothing. Nothing is ever removed.
///
/// A new vocabulary knows the prefix "xml", its namespace and two restricted alphabets, of numbers and of
/// dates and times. Deliberate: the first holds a lower-case e, where that of the standard has a capital.
///
/// A vocabulary that is being filled belongs to one thread. Each document is written and read with a copy.
class QUILLON_EXPORT CFIVocabulary {
public:
    /// The number of entries at which a table is full.
    static constexpr std::size_t MaxEntries = 0x100000;

    /// A qualified name, as indices into the tables of its parts. 0 stands for no prefix or no namespace.
    class QUILLON_EXPORT CQNameParts {
    public:
        CQNameParts(std::uint32_t prefix, std::uint32_t namespaceName, std::uint32_t localName)
            : m_prefix(prefix), m_namespaceName(namespaceName), m_localName(localName) {}

        std::uint32_t m_prefix;
        std::uint32_t m_namespaceName;
        std::uint32_t m_localName;
    };

    /// The texts of a table, in the order of their indices.
    class QUILLON_EXPORT CFIStringTable {
    public:
        virtual ~CFIStringTable();

        std::vector<std::u16string>::const_iterator begin() const { return m_values.begin(); }
        std::vector<std::u16string>::const_iterator end() const { return m_values.end(); }

    private:
        friend class CFIVocabulary;
        friend class CFastInfosetReader;

        std::vector<std::u16string> m_values;
    };

    /// The qualified names of a table, in the order of their indices.
    class QUILLON_EXPORT CFIQNameTable {
    public:
        virtual ~CFIQNameTable();

        std::vector<CQNameParts>::const_iterator begin() const { return m_values.begin(); }
        std::vector<CQNameParts>::const_iterator end() const { return m_values.end(); }

    private:
        friend class CFIVocabulary;
        friend class CFastInfosetReader;

        std::vector<CQNameParts> m_values;
    };

    CFIVocabulary();
    virtual ~CFIVocabulary();

    /// Enters a qualified name, and those of its parts that are new. The same name with another prefix is
    /// another entry. A name whose parts find no room is not entered.
    void AddElement(const std::u16string& prefix, const std::u16string& namespaceName,
                    const std::u16string& localName);
    void AddAttribute(const std::u16string& prefix, const std::u16string& namespaceName,
                      const std::u16string& localName);
    void AddAttributeValue(const std::u16string& value);
    /// Enters a piece of character content.
    void AddElementValue(const std::u16string& value);
    /// Enters a part of names. An empty prefix or namespace is index 0 and needs no entry.
    void AddPrefixName(const std::u16string& prefix);
    void AddNamespaceName(const std::u16string& namespaceName);
    void AddLocalName(const std::u16string& localName);

    const CFIQNameTable& GetAttributeNamesTable() const { return m_attributeNames; }
    const CFIStringTable& GetAttributeValuesTable() const { return m_attributeValues; }
    const CFIQNameTable& GetElementNamesTable() const { return m_elementNames; }
    const CFIStringTable& GetCharacterChunksTable() const { return m_characterChunks; }
    const CFIStringTable& GetLocalNamesTable() const { return m_localNames; }
    const CFIStringTable& GetNamespaceNamesTable() const { return m_namespaceNames; }
    const CFIStringTable& GetPrefixNamesTable() const { return m_prefixNames; }

private:
    friend class CFastInfosetContext;
    friend class CFastInfosetReader;
    friend class CFastInfosetWriter;

    /// Texts and their indices: 1, 2 and so on, in the order in which they came.
    ///
    /// A hash table whose texts lie one behind the other, so that a new one costs no allocation of its own.
    class QUILLON_EXPORT IndexMap {
    public:
        IndexMap();

        /// The index of a text, or 0.
        std::uint32_t Find(std::u16string_view text) const;
        /// Enters a text that is not there, unless the table is full.
        void Add(std::u16string_view text);
        /// The text of an index that Find has given. Valid until the next Add.
        std::u16string_view TextOf(std::uint32_t index) const {
            const Entry& entry = m_entries[index - 1];
            return {m_texts.data() + entry.start, entry.length};
        }

    private:
        struct Entry {
            std::size_t start;
            std::size_t length;
            std::uint64_t hash;
        };

        std::uint32_t Find(std::u16string_view text, std::uint64_t hash) const;

        std::uint64_t HashOf(std::u16string_view text) const;
        void Place(std::uint32_t index);

        std::u16string m_texts;
        std::vector<Entry> m_entries;
        std::vector<std::uint32_t> m_slots; ///< indices, or 0; twice as many as entries at least
        std::uint64_t m_seed;
    };

    CFIVocabulary(const CFIVocabulary& other);
    CFIVocabulary& operator=(const CFIVocabulary& other);

    bool FindPrefixNameIndex(const std::u16string& prefix, std::uint32_t& index) const;
    bool FindNamespaceNameIndex(const std::u16string& namespaceName, std::uint32_t& index) const;
    bool FindLocalNameIndex(const std::u16string& localName, std::uint32_t& index) const;
    static bool FindIndex(const IndexMap& map, std::u16string_view key, std::uint32_t& index);
    /// Makes the text that stands for a qualified name: local name, namespace name and prefix, separated by
    /// the code unit 1.
    static void MakeKey(std::u16string_view prefix, std::u16string_view namespaceName,
                        std::u16string_view localName, std::u16string& key);

    /// Whether a key is that of a local name without a namespace and a prefix.
    static bool IsKeyOf(std::u16string_view localName, std::u16string_view key);

    static void AddValueToMap(std::u16string_view value, IndexMap& map);
    static void AddValueToVector(std::u16string_view value, std::vector<std::u16string>& vector);
    static void AddQNameToVector(std::uint32_t prefix, std::uint32_t namespaceName, std::uint32_t localName,
                                 std::vector<CQNameParts>& vector);
    void AddQName(const std::u16string& prefix, const std::u16string& namespaceName,
                  const std::u16string& localName, IndexMap& map, std::vector<CQNameParts>& vector);

    static bool Enter(const std::u16string& value, IndexMap& map, CFIStringTable& table,
                      std::uint32_t& index);

    std::vector<std::u16string> m_alphabets;
    IndexMap m_attributeNameIndex;
    IndexMap m_attributeValueIndex;
    IndexMap m_elementNameIndex;
    IndexMap m_characterChunkIndex;
    IndexMap m_localNameIndex;
    IndexMap m_namespaceNameIndex;
    IndexMap m_prefixNameIndex;
    CFIQNameTable m_attributeNames;
    CFIStringTable m_attributeValues;
    CFIQNameTable m_elementNames;
    CFIStringTable m_characterChunks;
    CFIStringTable m_localNames;
    CFIStringTable m_namespaceNames;
    CFIStringTable m_prefixNames;
};

} // namespace KzXmlLib10
