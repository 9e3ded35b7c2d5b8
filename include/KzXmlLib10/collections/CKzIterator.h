#pragma once

#include <KzXmlLib10/collections/CXmlCollection.h>

#include <cstddef>
#include <iterator>

namespace KzXmlLib10 {

/// A forward iterator over a CXmlCollection whose items are all of class T.
///
///     for (CElement& child : *element->GetChildElements())
///         child.SetText(u"");
///
/// Stays valid while the item that it stands at is in the collection. A default one is the end of any
/// collection.
template <class T>
class CKzIterator {
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = T*;
    using reference = T&;

    CKzIterator() = default;
    explicit CKzIterator(CNode* node) : m_node(node) {}

    T& operator*() const { return static_cast<T&>(*m_node->m_item); }
    T* operator->() const { return &**this; }

    CKzIterator& operator++() {
        m_node = m_node->m_next;
        return *this;
    }
    CKzIterator operator++(int) {
        CKzIterator before = *this;
        ++*this;
        return before;
    }

    friend bool operator==(const CKzIterator&, const CKzIterator&) = default;

private:
    CNode* m_node = nullptr;
};

inline CKzIterator<CXmlObjectBase> CXmlCollection::begin() const {
    return CKzIterator<CXmlObjectBase>(m_head);
}

inline CKzIterator<CXmlObjectBase> CXmlCollection::end() const { return {}; }

} // namespace KzXmlLib10
