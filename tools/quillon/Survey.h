#pragma once

#include <KzXmlLib10/xml/CXmlElement.h>

#include <cstdint>
#include <set>
#include <string>

namespace quillon {

/// What there is in a document, found in one walk.
struct Survey {
    explicit Survey(const KzXmlLib10::CXmlElement& root);
    Survey(const Survey&) = delete;
    Survey& operator=(const Survey&) = delete;

    std::uint64_t m_elements = 0;
    std::uint64_t m_attributes = 0;
    /// The number of elements inside each other, the root included.
    std::uint64_t m_depth = 0;
    /// UTF-16 units of texts and attribute values, without indentation.
    std::uint64_t m_textLength = 0;
    /// Elements that have text beside child elements.
    std::uint64_t m_mixedElements = 0;
    /// Attribute values with a tab or carriage return, which do not survive as text.
    std::uint64_t m_unstableValues = 0;
    /// The namespaces of elements and of attributes; an empty one stands for none.
    std::set<std::u16string> m_elementNamespaces;
    std::set<std::u16string> m_attributeNamespaces;

private:
    void Count(const KzXmlLib10::CXmlElement& element);
    static void Note(const std::u16string& uri, std::set<std::u16string>& namespaces,
                     const std::u16string*& last);

    const std::u16string* m_lastOfElements = nullptr;
    const std::u16string* m_lastOfAttributes = nullptr;
};

/// The text of an element as it counts: white space beside child elements is indentation, and left out.
std::u16string SignificantText(const KzXmlLib10::CXmlElement& element);

} // namespace quillon
