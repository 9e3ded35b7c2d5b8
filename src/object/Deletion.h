#pragma once

#include <KzXmlLib10/object/Fwd.h>

namespace KzXmlLib10 {

/// Deletes an object whose last reference is gone.
///
/// A destructor releases what the object held, which may end here again. Beyond 256 such levels the object
/// waits for the outermost call on its thread, so that a chain of any length needs no more stack than that.
void DeleteReleased(CXmlObjectBase* object) noexcept;

} // namespace KzXmlLib10
