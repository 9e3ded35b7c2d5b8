#include <KzXmlLib10/object/CNamespaceAliasMap.h>

#include "object/NotNull.h"

#include <algorithm>
#include <iterator>

namespace KzXmlLib10 {

CNamespaceAliasMap::~CNamespaceAliasMap() = default;

void CNamespaceAliasMap::Add(const char16_t* alias, const char16_t* namespaceUri) {
    m_aliases[NotNull(namespaceUri, u"namespaceUri")] = NotNull(alias, u"alias");
}

void CNamespaceAliasMap::RemoveNamespace(const char16_t* namespaceUri) {
    m_aliases.erase(NotNull(namespaceUri, u"namespaceUri"));
}

int CNamespaceAliasMap::GetNamespaceCount() const { return static_cast<int>(m_aliases.size()); }

std::u16string CNamespaceAliasMap::GetNamespaceAt(int index) const {
    const int position = std::max(index, 0);
    if (position >= GetNamespaceCount())
        Throw<CKzInvalidParamException>(messages::NamespaceIndexOutOfRange, index);
    return std::next(m_aliases.begin(), position)->first;
}

std::u16string CNamespaceAliasMap::GetAliasFromNamespace(const char16_t* namespaceUri) const {
    return m_aliases[NotNull(namespaceUri, u"namespaceUri")];
}

std::u16string CNamespaceAliasMap::GetNamespaceFromAlias(const char16_t* alias) const {
    const std::u16string wanted = NotNull(alias, u"alias");
    const auto found = std::ranges::find(m_aliases, wanted, &decltype(m_aliases)::value_type::second);
    if (found == m_aliases.end())
        Throw<CKzException>(messages::AliasNotFound, wanted);
    return found->first;
}

bool CNamespaceAliasMap::DoesNamespaceExist(const char16_t* namespaceUri) const {
    return m_aliases.contains(NotNull(namespaceUri, u"namespaceUri"));
}

bool CNamespaceAliasMap::DoesAliasExist(const char16_t* alias) const {
    const std::u16string wanted = NotNull(alias, u"alias");
    return std::ranges::any_of(m_aliases, [&](const auto& pair) { return pair.second == wanted; });
}

} // namespace KzXmlLib10
