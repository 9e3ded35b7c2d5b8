#pragma once

#include <KzXmlLib10/object/Export.h>

namespace KzXmlLib10 {

/// Tells the library the version of the generator that made the classes; generated code calls it at start-up,
/// before any object is used and before the first thread uses the library.
///
/// Only the first call counts. This library works with version 10.1; with any other, or without a call, every
/// entry point throws CKzException.
QUILLON_EXPORT void Register(int generatorMajor, int generatorMinor);

} // namespace KzXmlLib10
