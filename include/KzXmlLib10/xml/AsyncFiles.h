#pragma once

#include <KzXmlLib10/object/Export.h>

namespace KzXmlLib10 {

/// Selects, for the whole process, how CXmlDocument::Load reads files; false at start.
///
/// With true a file goes to the parser in blocks of 131072 bytes, the next of which the system fetches while
/// the parser works, so it never stands in memory as a whole. This road takes text only: nothing is
/// decompressed.
///
/// Deliberate: on this road a file whose length is an exact multiple of 131072 cannot be loaded, and a second
/// load by the same document goes on where the first one ended.
///
/// A plain flag without a lock, meant to be set once at start.
QUILLON_EXPORT void AsyncFromXmlFile(bool async);

/// Selects, for the whole process, how CXmlObjectBase::ToXmlFile writes files without compression; false at
/// start.
///
/// With true the text goes into the file in blocks as it comes, through CFileTextStream, and never stands in
/// memory as a whole. The bytes of the file are the same.
///
/// A plain flag without a lock, meant to be set once at start.
QUILLON_EXPORT void AsyncToXmlFile(bool async);

} // namespace KzXmlLib10
