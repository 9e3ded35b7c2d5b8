#include "edges/Deflate.h"

#include "object/Throw.h"
#include "xml/Messages.h"

#include <zlib.h>

#include <limits>
#include <memory>
#include <new>

namespace KzXmlLib10 {

namespace {

constexpr int level = 1; // speed before size, as in Compress
constexpr int zlibFormat = 15;
constexpr int gzipFormat = 15 + 16;

} // namespace

CBinaryData Deflate(std::string_view bytes, CompressionType type) {
    if (bytes.size() > std::numeric_limits<std::uint32_t>::max())
        Throw<CKzException>(messages::StreamTooLong);
    z_stream stream = {};
    const int format = type == CompressionType_GZip ? gzipFormat : zlibFormat;
    if (deflateInit2(&stream, level, Z_DEFLATED, format, 8, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::bad_alloc(); // all arguments are valid
    const std::unique_ptr<z_stream, int (*)(z_stream*)> owner(&stream, deflateEnd);

    const uLong bound = deflateBound(&stream, bytes.size());
    auto output = std::make_unique_for_overwrite<unsigned char[]>(bound);
    stream.next_in = reinterpret_cast<unsigned char*>(const_cast<char*>(bytes.data())); // zlib only reads it
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = output.get();
    stream.avail_out = static_cast<uInt>(bound);
    if (const int result = deflate(&stream, Z_FINISH); result != Z_STREAM_END)
        Throw<CKzException>(messages::CompressionFailed, result);
    const CBinaryData result(output.get(), stream.total_out, true);
    (void)output.release();
    return result;
}

} // namespace KzXmlLib10
