#pragma once

#include "object/Messages.h"
#include "object/Throw.h"

namespace KzXmlLib10 {

/// The pointer itself, or CKzInvalidParamException with the name of the argument if it is null.
template <class T>
T* NotNull(T* pointer, const char16_t* name) {
    if (!pointer)
        Throw<CKzInvalidParamException>(messages::NullArgument, name);
    return pointer;
}

/// The text itself, or the empty text for null.
inline const char16_t* EmptyIfNull(const char16_t* text) { return text ? text : u""; }

} // namespace KzXmlLib10
