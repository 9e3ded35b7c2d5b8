#pragma once

#include <KzXmlLib10/object/Export.h>

#include <map>
#include <string>

namespace KzXmlLib10 {

/// The namespaces to declare at the root of a document, each with the prefix (alias) it gets.
///
///     context.GetNamespaceAliases().Add(u"o", u"urn:example:orders");
///
/// The pairs are ordered by namespace URI, code unit by code unit, whatever the order in which they were
/// added.
class QUILLON_EXPORT CNamespaceAliasMap {
public:
    CNamespaceAliasMap() = default;
    CNamespaceAliasMap(const CNamespaceAliasMap&) = default;
    CNamespaceAliasMap& operator=(const CNamespaceAliasMap&) = default;
    virtual ~CNamespaceAliasMap();

    /// Sets the alias of a namespace, in place of an earlier one. Two namespaces may have one alias.
    void Add(const char16_t* alias, const char16_t* namespaceUri);
    /// Removes the pair of a namespace, if there is one.
    void RemoveNamespace(const char16_t* namespaceUri);

    int GetNamespaceCount() const;
    /// The namespace at a position in the order of URIs; a position below 1 gives the first.
    /// Throws CKzInvalidParamException at or above the count.
    std::u16string GetNamespaceAt(int index) const;
    /// The alias of a namespace.
    /// Deliberate: an unknown namespace is entered with an empty alias, although the operation is const.
    std::u16string GetAliasFromNamespace(const char16_t* namespaceUri) const;
    /// The first namespace, in the order of URIs, that has the alias. Throws CKzException if none has.
    std::u16string GetNamespaceFromAlias(const char16_t* alias) const;

    bool DoesNamespaceExist(const char16_t* namespaceUri) const;
    bool DoesAliasExist(const char16_t* alias) const;

private:
    mutable std::map<std::u16string, std::u16string> m_aliases;
};

} // namespace KzXmlLib10
