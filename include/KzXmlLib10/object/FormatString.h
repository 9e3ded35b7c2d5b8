#pragma once

#include <KzXmlLib10/object/Export.h>

#include <cstdarg>
#include <string>

namespace KzXmlLib10 {

/// Formats text by the rules of printf, for 16-bit text and free of the locale.
///
/// `%s` takes a zero-terminated 16-bit text, a null one gives "(null)"; the flag 0 pads it with zeros.
/// `%c` takes one code unit. `%d %i %u %x %X %o` are 32 bits wide, also with the modifier l;
/// the modifier h cuts them to 16 bits, and I64 makes them 64 bits wide. `%e %E %f %g %G` take a double,
/// `%p` a pointer, and `*` takes a width or precision from the arguments. Nothing is truncated.
QUILLON_EXPORT std::u16string FormatString(const char16_t* format, ...);

} // namespace KzXmlLib10
