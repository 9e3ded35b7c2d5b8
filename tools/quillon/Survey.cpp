#include "Survey.h"

#include "Tree.h"

#include <KzXmlLib10/xml/CXmlAttribute.h>

#include <algorithm>

namespace quillon {

using namespace KzXmlLib10;

Survey::Survey(const CXmlElement& root) {
    std::uint64_t depth = 0;
    WalkTree(
        root,
        [&](const CXmlElement& element) {
            m_depth = std::max(m_depth, ++depth);
            Count(element);
        },
        [&](const CXmlElement&) { --depth; });
}

void Survey::Count(const CXmlElement& element) {
    ++m_elements;
    Note(element.GetNamespaceURI(), m_elementNamespaces, m_lastOfElements);
    const std::u16string text = SignificantText(element);
    m_textLength += text.size();
    if (!text.empty() && element.GetFirstElement())
        ++m_mixedElements;
    for (const CXmlAttribute* attribute : element.GetAttributes()) {
        ++m_attributes;
        Note(attribute->GetNamespaceURI(), m_attributeNamespaces, m_lastOfAttributes);
        m_textLength += attribute->GetValue().size();
        if (attribute->GetValue().find_first_of(u"\t\r") != std::u16string::npos)
            ++m_unstableValues;
    }
}

/// Most namespaces are the one before, which spares the search.
void Survey::Note(const std::u16string& uri, std::set<std::u16string>& namespaces,
                  const std::u16string*& last) {
    if (!last || *last != uri)
        last = &*namespaces.insert(uri).first;
}

std::u16string SignificantText(const CXmlElement& element) {
    std::u16string text = element.GetText();
    if (element.GetFirstElement() && text.find_first_not_of(u" \t\r\n") == std::u16string::npos)
        return {};
    return text;
}

} // namespace quillon
