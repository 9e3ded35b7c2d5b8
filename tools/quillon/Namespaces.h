#pragma once

#include "Survey.h"

#include <KzXmlLib10/xml/CXmlDocument.h>

#include <map>
#include <string>

namespace quillon {

/// The prefixes under which a document is written: those that it declares itself, so that names inside of
/// values such as xsi:type stay true, and made up ones for namespaces that have none. All are declared at the
/// root.
class Namespaces {
public:
    Namespaces(const KzXmlLib10::CXmlDocument& document, const Survey& survey);

    /// The default namespace; empty for none. There is none where an element is in no namespace, because
    /// nothing could take it back out of the default one.
    const std::u16string& GetDefault() const { return m_default; }
    /// From namespace to prefix.
    const std::map<std::u16string, std::u16string>& GetPrefixes() const { return m_prefixes; }

    /// An element's or attribute's name with its prefix.
    std::u16string ElementName(const std::u16string& localName, const std::u16string& uri) const;
    std::u16string AttributeName(const std::u16string& localName, const std::u16string& uri) const;

private:
    void AddDeclared(const std::map<std::u16string, std::u16string>& declared);
    void ChooseDefault(const std::map<std::u16string, std::u16string>& declared,
                       const std::u16string& rootUri);
    void AddMissing(const std::set<std::u16string>& uris,
                    const std::map<std::u16string, std::u16string>& declared);

    std::u16string m_default;
    std::map<std::u16string, std::u16string> m_prefixes;
    int m_madeUp = 0;
};

} // namespace quillon
