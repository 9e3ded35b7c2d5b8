#include "xml/NamespaceMap.h"

#include <algorithm>
#include <optional>

namespace KzXmlLib10 {

namespace {

/// The n for which a prefix is the n-th generated one: 0 for AA, 25 for AZ, 26 for BA.
std::optional<std::uint32_t> GeneratedPrefixNumber(const std::u16string& prefix) {
    if (prefix.size() != 2 || prefix[0] < u'A' || prefix[1] < u'A' || prefix[1] > u'Z')
        return std::nullopt;
    return (prefix[0] - u'A') * 26u + (prefix[1] - u'A');
}

} // namespace

void NamespaceMap::Set(const std::u16string& uri, const std::u16string& prefix) {
    if (const std::u16string* old = Find(uri)) {
        if (*old == prefix)
            return;
        CountUse(*old, -1);
    }
    CountUse(prefix, +1);
    BeginState();
    m_prefixes.Set(uri, prefix);
}

void NamespaceMap::CountUse(const std::u16string& prefix, int change) {
    const std::optional<std::uint32_t> number = GeneratedPrefixNumber(prefix);
    if (!number)
        return;
    const std::uint32_t* before = m_uses.Find(*number);
    const std::uint32_t uses = (before ? *before : 0) + static_cast<std::uint32_t>(change);
    m_uses.Set(*number, uses);
    if (uses == 0)
        m_firstFree = std::min(m_firstFree, *number);
    for (const std::uint32_t* next; (next = m_uses.Find(m_firstFree)) && *next > 0;)
        ++m_firstFree;
}

} // namespace KzXmlLib10
