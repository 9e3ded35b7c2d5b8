#pragma once

#include <KzXmlLib10/object/Fwd.h>

namespace KzXmlLib10 {

/// Gives the content of a complete gzip or zlib stream. False for any other bytes. Throws CKzException at
/// Limits::inflatedBytes.
bool Inflate(const unsigned char* data, unsigned long size, CBinaryData& content);

} // namespace KzXmlLib10
