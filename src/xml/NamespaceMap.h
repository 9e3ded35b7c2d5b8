#pragma once

#include "object/TextScan.h"
#include "xml/PersistentMap.h"

#include <KzXmlLib10/object/UniqueNumber.h>

#include <cstdint>
#include <string>

namespace KzXmlLib10 {

/// Orders texts by length, then by their bytes: quicker than by units where nobody sees the order, since
/// namespaces of different lengths often begin alike.
struct ByLengthThenBytes {
    int operator()(const std::u16string& a, const std::u16string& b) const {
        if (a.size() != b.size())
            return a.size() < b.size() ? -1 : 1;
        return CompareBytes(a, b);
    }
};

/// The namespace state of an element: the map from namespace to prefix, beside the default namespace that is
/// in force with it.
///
/// Elements that declare namespaces inside each other each have a map of their own, so copies must be cheap;
/// and they ask for a new prefix each, so the first free one is remembered.
class NamespaceMap {
public:
    /// An empty map. `defaultNamespace` belongs to the owner of the map and must outlive it.
    explicit NamespaceMap(const std::u16string& defaultNamespace) : m_defaultNamespace(defaultNamespace) {}
    /// A copy of the entries of `other`.
    NamespaceMap(const NamespaceMap& other, const std::u16string& defaultNamespace)
        : m_defaultNamespace(defaultNamespace), m_prefixes(other.m_prefixes), m_uses(other.m_uses),
          m_firstFree(other.m_firstFree) {}
    NamespaceMap(const NamespaceMap&) = delete;
    NamespaceMap& operator=(const NamespaceMap&) = delete;

    const std::u16string& DefaultNamespace() const { return m_defaultNamespace; }

    /// A number that no other state of any map has, so that what was found in a state can be kept with it.
    std::uint64_t State() const { return m_state.Get(); }
    /// To be called when the default namespace changes. Setting a prefix does so itself.
    void BeginState() { m_state.Renew(); }

    /// The prefix of a namespace, or null. Valid until the prefix of this namespace changes.
    const std::u16string* Find(const std::u16string& uri) const { return m_prefixes.Find(uri); }

    /// Maps a namespace to a prefix, in place of any it had.
    void Set(const std::u16string& uri, const std::u16string& prefix);

    /// The number of the first generated prefix that no namespace is mapped to.
    std::uint32_t FirstFreePrefix() const { return m_firstFree; }

private:
    void CountUse(const std::u16string& prefix, int change);

    const std::u16string& m_defaultNamespace;
    PersistentMap<std::u16string, std::u16string, ByLengthThenBytes> m_prefixes;
    PersistentMap<std::uint32_t, std::uint32_t> m_uses; // how many namespaces have the n-th generated prefix
    std::uint32_t m_firstFree = 0;
    UniqueNumber m_state;
};

} // namespace KzXmlLib10
