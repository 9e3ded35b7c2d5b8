#pragma once

#include <KzXmlLib10/xml/CXmlAttribute.h>
#include <KzXmlLib10/xml/CXmlElement.h>

#include <cstddef>
#include <iterator>
#include <ranges>
#include <vector>

/// The children and attributes of an element of a document as ranges.
///
///     for (const CXmlElement& item : Children(*order))
///         for (const CXmlAttribute& attribute : Attributes(item))
///             std::cout << ToUtf8(attribute.GetLocalName()) << '\n';
///
/// Collections are ranges themselves: those of primitive values give values, those of objects, CAttributeCol
/// and CElementCol give references.
namespace KzXmlLib10 {

/// The children of an element, in document order. Valid as long as the element is.
class ElementChildren : public std::ranges::view_base {
public:
    /// A forward iterator. A default one is the end of any list of children.
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = CXmlElement;
        using difference_type = std::ptrdiff_t;
        using pointer = CXmlElement*;
        using reference = CXmlElement&;

        Iterator() = default;
        explicit Iterator(CXmlElement* element) : m_element(element) {}

        CXmlElement& operator*() const { return *m_element; }
        CXmlElement* operator->() const { return m_element; }
        Iterator& operator++() {
            m_element = m_element->GetNextSiblingElement();
            return *this;
        }
        Iterator operator++(int) {
            Iterator before = *this;
            ++*this;
            return before;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        CXmlElement* m_element = nullptr;
    };

    ElementChildren() = default;
    explicit ElementChildren(const CXmlElement& parent) : m_first(parent.GetFirstElement()) {}

    Iterator begin() const { return m_first; }
    Iterator end() const { return {}; }

private:
    Iterator m_first;
};

/// The attributes of an element, in document order. Valid as long as the element is.
class ElementAttributes : public std::ranges::view_base {
public:
    /// A forward iterator.
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = CXmlAttribute;
        using difference_type = std::ptrdiff_t;
        using pointer = const CXmlAttribute*;
        using reference = const CXmlAttribute&;

        Iterator() = default;
        explicit Iterator(CXmlAttribute* const* attribute) : m_attribute(attribute) {}

        const CXmlAttribute& operator*() const { return **m_attribute; }
        const CXmlAttribute* operator->() const { return *m_attribute; }
        Iterator& operator++() {
            ++m_attribute;
            return *this;
        }
        Iterator operator++(int) {
            Iterator before = *this;
            ++*this;
            return before;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        CXmlAttribute* const* m_attribute = nullptr;
    };

    ElementAttributes() = default;
    explicit ElementAttributes(const CXmlElement& element)
        : m_begin(element.GetAttributes().data()),
          m_end(element.GetAttributes().data() + element.GetAttributes().size()) {}

    Iterator begin() const { return m_begin; }
    Iterator end() const { return m_end; }

private:
    Iterator m_begin, m_end;
};

/// The children of an element of a document.
inline ElementChildren Children(const CXmlElement& element) { return ElementChildren(element); }

/// The attributes of an element of a document.
inline ElementAttributes Attributes(const CXmlElement& element) { return ElementAttributes(element); }

} // namespace KzXmlLib10

template <>
inline constexpr bool std::ranges::enable_borrowed_range<KzXmlLib10::ElementChildren> = true;
template <>
inline constexpr bool std::ranges::enable_borrowed_range<KzXmlLib10::ElementAttributes> = true;
