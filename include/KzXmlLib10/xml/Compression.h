#pragma once

#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/values/CBinaryData.h>

namespace KzXmlLib10 {

/// Compression of finished byte streams: gzip (RFC 1952) and zlib (RFC 1950), with no framing of its own.
///
///     CBinaryData data = order->ToXmlStream(...);
///     Compress(data, CompressionType_GZip);
///
/// Arrays come from `new unsigned char[]`, and they hold up to 2^32 - 1 bytes: more throws CKzException.
/// Want of memory throws std::bad_alloc, a null argument CKzInvalidParamException.

/// Replaces the data by its compressed form. Empty data stays empty.
/// After a failure the data is empty.
QUILLON_EXPORT void Compress(CBinaryData& data, CompressionType type);

/// Replaces an array by a new one with its compressed form. A type other than gzip and zlib changes nothing.
///
/// Deliberate: there is no more room for the result than the input has, so what does not shrink, as most
/// documents of a few bytes, throws CKzException with "Failed to compress data. [Error Code: 0]". The array
/// is then unchanged.
QUILLON_EXPORT void CompressBuffer(unsigned char** data, unsigned long* size, CompressionType type);

/// Replaces an array that holds a complete gzip or zlib stream by a new one with its content. What comes
/// behind the stream is ignored. Any other array stays as it is, since it may simply not be compressed.
///
/// Throws CKzException where the content would be larger than Limits::inflatedBytes; the array is then
/// unchanged.
QUILLON_EXPORT void Decompress(unsigned char** data, unsigned long* size);

} // namespace KzXmlLib10
