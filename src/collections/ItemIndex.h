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

} // namespace KzXmlLib10
