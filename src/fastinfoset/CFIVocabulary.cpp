#include <KzXmlLib10/fastinfoset/CFIVocabulary.h>

#include "object/TextScan.h"
#include "xml/XmlNamespaces.h"

// A new vocabulary, to which <o:order xmlns:o="urn:o"/> has been added:
//
//     prefixes     1 "xml"                                   2 "o"
//     namespaces   1 "http://www.w3.org/XML/1998/namespace"  2 "urn:o"
//     local names  1 "order"
//     elements     1 {prefix 2, namespace 2, local name 1}
//
// The maps hold the same with the text first; for a qualified name that is its key, with 1 between the parts.

namespace KzXmlLib10 {

namespace {

constexpr char16_t separator = 1;

} // namespace

CFIVocabulary::CFIStringTable::~CFIStringTable() = default;
CFIVocabulary::CFIQNameTable::~CFIQNameTable() = default;

CFIVocabulary::CFIVocabulary() : m_alphabets{u"0123456789-+.e ", u"0123456789-:TZ "} {
    AddPrefixName(u"xml");
    AddNamespaceName(xmlNamespace);
}
CFIVocabulary::CFIVocabulary(const CFIVocabulary& other) = default;
CFIVocabulary& CFIVocabulary::operator=(const CFIVocabulary& other) = default;
CFIVocabulary::~CFIVocabulary() = default;

void CFIVocabulary::AddElement(const std::u16string& prefix, const std::u16string& namespaceName,
                               const std::u16string& localName) {
    AddQName(prefix, namespaceName, localName, m_elementNameIndex, m_elementNames.m_values);
}

void CFIVocabulary::AddAttribute(const std::u16string& prefix, const std::u16string& namespaceName,
                                 const std::u16string& localName) {
    AddQName(prefix, namespaceName, localName, m_attributeNameIndex, m_attributeNames.m_values);
}

void CFIVocabulary::AddAttributeValue(const std::u16string& value) {
    std::uint32_t index;
    Enter(value, m_attributeValueIndex, m_attributeValues, index);
}

void CFIVocabulary::AddElementValue(const std::u16string& value) {
    std::uint32_t index;
    Enter(value, m_characterChunkIndex, m_characterChunks, index);
}

void CFIVocabulary::AddPrefixName(const std::u16string& prefix) {
    std::uint32_t index;
    if (!prefix.empty())
        Enter(prefix, m_prefixNameIndex, m_prefixNames, index);
}

void CFIVocabulary::AddNamespaceName(const std::u16string& namespaceName) {
    std::uint32_t index;
    if (!namespaceName.empty())
        Enter(namespaceName, m_namespaceNameIndex, m_namespaceNames, index);
}

void CFIVocabulary::AddLocalName(const std::u16string& localName) {
    std::uint32_t index;
    Enter(localName, m_localNameIndex, m_localNames, index);
}

bool CFIVocabulary::FindPrefixNameIndex(const std::u16string& prefix, std::uint32_t& index) const {
    return FindIndex(m_prefixNameIndex, prefix, index);
}

bool CFIVocabulary::FindNamespaceNameIndex(const std::u16string& namespaceName, std::uint32_t& index) const {
    return FindIndex(m_namespaceNameIndex, namespaceName, index);
}

bool CFIVocabulary::FindLocalNameIndex(const std::u16string& localName, std::uint32_t& index) const {
    return FindIndex(m_localNameIndex, localName, index);
}

bool CFIVocabulary::FindIndex(const IndexMap& map, std::u16string_view key, std::uint32_t& index) {
    index = map.Find(key);
    return index != 0;
}

void CFIVocabulary::MakeKey(std::u16string_view prefix, std::u16string_view namespaceName,
                            std::u16string_view localName, std::u16string& key) {
    key = localName;
    key += separator;
    key += namespaceName;
    key += separator;
    key += prefix;
}

bool CFIVocabulary::IsKeyOf(std::u16string_view localName, std::u16string_view key) {
    return key.size() == localName.size() + 2 && key[localName.size()] == separator &&
           key.back() == separator && SameText(key.substr(0, localName.size()), localName);
}

void CFIVocabulary::AddValueToMap(std::u16string_view value, IndexMap& map) { map.Add(value); }

void CFIVocabulary::AddValueToVector(std::u16string_view value, std::vector<std::u16string>& vector) {
    if (vector.size() < MaxEntries)
        vector.emplace_back(value);
}

void CFIVocabulary::AddQNameToVector(std::uint32_t prefix, std::uint32_t namespaceName,
                                     std::uint32_t localName, std::vector<CQNameParts>& vector) {
    if (vector.size() < MaxEntries)
        vector.emplace_back(prefix, namespaceName, localName);
}

/// Finds a value, or enters it in both directions. False if it is in neither and there is no room.
bool CFIVocabulary::Enter(const std::u16string& value, IndexMap& map, CFIStringTable& table,
                          std::uint32_t& index) {
    if (FindIndex(map, value, index))
        return true;
    AddValueToMap(value, map);
    AddValueToVector(value, table.m_values);
    return FindIndex(map, value, index);
}

void CFIVocabulary::AddQName(const std::u16string& prefix, const std::u16string& namespaceName,
                             const std::u16string& localName, IndexMap& map,
                             std::vector<CQNameParts>& vector) {
    std::u16string key;
    MakeKey(prefix, namespaceName, localName, key);
    if (map.Find(key) != 0)
        return;
    std::uint32_t prefixIndex = 0;
    std::uint32_t namespaceIndex = 0;
    std::uint32_t localNameIndex = 0;
    if (!prefix.empty() && !Enter(prefix, m_prefixNameIndex, m_prefixNames, prefixIndex))
        return;
    if (!namespaceName.empty() &&
        !Enter(namespaceName, m_namespaceNameIndex, m_namespaceNames, namespaceIndex))
        return;
    if (!Enter(localName, m_localNameIndex, m_localNames, localNameIndex))
        return;
    AddValueToMap(key, map);
    AddQNameToVector(prefixIndex, namespaceIndex, localNameIndex, vector);
}

} // namespace KzXmlLib10
