#pragma once

#include "xml/TextArena.h"

#include <KzXmlLib10/object/Fwd.h>

namespace KzXmlLib10 {

/// What dropping an element takes when it ends, so that it needs no walk and gives its memory back.
struct OpenElement {
    CXmlElement* previous; ///< the sibling before it, or null
    TextArena::Mark texts; ///< those that are older
};

} // namespace KzXmlLib10
