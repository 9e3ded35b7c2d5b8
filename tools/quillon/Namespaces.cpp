#include "Namespaces.h"

#include <KzXmlLib10/object/FormatString.h>

namespace quillon {

using namespace KzXmlLib10;

namespace {

constexpr char16_t xmlNamespace[] = u"http://www.w3.org/XML/1998/namespace";

} // namespace

Namespaces::Namespaces(const CXmlDocument& document, const Survey& survey)
    : m_prefixes{{xmlNamespace, u"xml"}} {
    const std::map<std::u16string, std::u16string> declared = document.GetNamespaceAliases();
    AddDeclared(declared);
    if (!survey.m_elementNamespaces.contains(u""))
        ChooseDefault(declared, document.GetDocumentElement()->GetNamespaceURI());
    std::set<std::u16string> elementUris = survey.m_elementNamespaces;
    elementUris.erase(m_default);
    AddMissing(elementUris, declared);
    AddMissing(survey.m_attributeNamespaces, declared);
}

void Namespaces::AddDeclared(const std::map<std::u16string, std::u16string>& declared) {
    for (const auto& [prefix, uri] : declared)
        if (!prefix.empty() && !uri.empty())
            m_prefixes.emplace(uri, prefix);
}

/// A document may declare several, one inside the other. The root's own is known by having no prefix.
void Namespaces::ChooseDefault(const std::map<std::u16string, std::u16string>& declared,
                               const std::u16string& rootUri) {
    if (!m_prefixes.contains(rootUri))
        m_default = rootUri;
    else if (const auto found = declared.find(u""); found != declared.end())
        m_default = found->second;
}

void Namespaces::AddMissing(const std::set<std::u16string>& uris,
                            const std::map<std::u16string, std::u16string>& declared) {
    for (const std::u16string& uri : uris) {
        if (uri.empty() || m_prefixes.contains(uri))
            continue;
        std::u16string prefix;
        do
            prefix = FormatString(u"ns%d", ++m_madeUp);
        while (declared.contains(prefix));
        m_prefixes.emplace(uri, prefix);
    }
}

std::u16string Namespaces::ElementName(const std::u16string& localName, const std::u16string& uri) const {
    return uri == m_default ? localName : AttributeName(localName, uri);
}

std::u16string Namespaces::AttributeName(const std::u16string& localName, const std::u16string& uri) const {
    return uri.empty() ? localName : m_prefixes.at(uri) + u":" + localName;
}

} // namespace quillon
