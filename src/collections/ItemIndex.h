#pragma once

#include "collections/Messages.h"
#include "object/Throw.h"

#include <limits>

namespace KzXmlLib10 {

/// Throws unless a value can be inserted at the index.
inline void RequireInsertIndex(int index, int count) {
    if (index < 0 || index > count)
        Throw<CKzInvalidParamException>(messages::InsertIndexOutOfRange);
    if (count == std::numeric_limits<int>::max())
        Throw<CKzException>(messages::CollectionFull, count);
}

/// Throws unless there is a value at the index.
inline void RequireItemIndex(int index, int count) {
    if (index < 0 || index > count - 1)
        // Deliberate: the second number is one above the highest valid index.
        Throw<CKzInvalidParamException>(messages::ItemIndexOutOfRange, index, count);
}

/// Removes the first item until none is left. A removal may be in vain, where a listener adds an item again;
/// throws CKzInvalidStateException where it always is, as under a derived Remove that does nothing.
template <class Collection>
void RemoveAll(Collection& collection) {
    constexpr int patience = 1'000'000;
    int inVain = 0;
    const auto countItems = [&] { return collection.Collection::GetCount(); }; // whatever is derived from it
    for (int count; (count = countItems()) > 0;) {
        collection.Remove(0);
        if (countItems() >= count && ++inVain == patience)
            Throw<CKzInvalidStateException>(messages::ItemsStay, count);
    }
}

} // namespace KzXmlLib10
