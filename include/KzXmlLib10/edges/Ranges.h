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
/// They are forward ranges, valid as long as the element is. Collections are ranges themselves: those of
/// primitive values give values, those of objects, CAttributeCol and CElementCol give references.
namespace KzXmlLib10 {

/// Walks elements from sibling to sibling. A default one is the end of any list of children.
class SiblingIterator {
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = CXmlElement;
    using difference_type = std::ptrdiff_t;
    using pointer = CXmlElement*;
    using reference = CXmlElement&;

    SiblingIterator() = default;
    explicit SiblingIterator(CXmlElement* element) : m_element(element) {}

    CXmlElement& operator*() const { return *m_element; }
    CXmlElement* operator->() const { return m_element; }
    SiblingIterator& operator++() {
        m_element = m_element->GetNextSiblingElement();
        return *this;
    }
    SiblingIterator operator++(int) {
        SiblingIterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const SiblingIterator&, const SiblingIterator&) = default;

private:
    CXmlElement* m_element = nullptr;
};

/// Walks the attributes of one element.
class AttributeIterator {
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = CXmlAttribute;
    using difference_type = std::ptrdiff_t;
    using pointer = const CXmlAttribute*;
    using reference = const CXmlAttribute&;
    using Base = std::vector<CXmlAttribute*>::const_iterator;

    AttributeIterator() = default;
    explicit AttributeIterator(Base attribute) : m_attribute(attribute) {}

    const CXmlAttribute& operator*() const { return **m_attribute; }
    const CXmlAttribute* operator->() const { return *m_attribute; }
    AttributeIterator& operator++() {
        ++m_attribute;
        return *this;
    }
    AttributeIterator operator++(int) {
        AttributeIterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const AttributeIterator&, const AttributeIterator&) = default;

private:
    Base m_attribute;
};

/// The two ends of a range.
template <class Iterator>
class IteratorRange : public std::ranges::view_base {
public:
    IteratorRange() = default;
    IteratorRange(Iterator first, Iterator last) : m_first(first), m_last(last) {}

    Iterator begin() const { return m_first; }
    Iterator end() const { return m_last; }

private:
    Iterator m_first, m_last;
};

using ElementChildren = IteratorRange<SiblingIterator>;
using ElementAttributes = IteratorRange<AttributeIterator>;

/// The children of an element of a document, in document order.
inline ElementChildren Children(const CXmlElement& element) {
    return {SiblingIterator(element.GetFirstElement()), SiblingIterator()};
}

/// The attributes of an element of a document, in document order.
inline ElementAttributes Attributes(const CXmlElement& element) {
    return {AttributeIterator(element.GetAttributes().begin()),
            AttributeIterator(element.GetAttributes().end())};
}

} // namespace KzXmlLib10

/// @cond
template <class Iterator>
inline constexpr bool std::ranges::enable_borrowed_range<KzXmlLib10::IteratorRange<Iterator>> = true;
/// @endcond
