#include <KzXmlLib10/xml/Compression.h>

#include "object/CurrentLimit.h"
#include "object/NotNull.h"
#include "object/Throw.h"
#include "xml/Inflate.h"
#include "xml/Messages.h"

#include <zlib.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <new>

namespace KzXmlLib10 {

namespace {

constexpr int level = 1; // speed before size
constexpr int gzipFormat = 15 + 16;
constexpr int eitherFormat = 15 + 32; // inflate finds out by the first bytes
constexpr unsigned long blockSize = 0x10000;

using ByteArray = std::unique_ptr<unsigned char[]>;

/// A stream of zlib that ends with its owner.
template <int (*End)(z_stream*)>
class Stream : public z_stream {
public:
    Stream(const unsigned char* input, unsigned long size) : z_stream{} {
        next_in = const_cast<unsigned char*>(input); // zlib changes nothing there
        avail_in = static_cast<uInt>(size);
    }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;
    ~Stream() { End(this); }

    void SetOutput(unsigned char* output, unsigned long size) {
        next_out = output;
        avail_out = static_cast<uInt>(size);
    }
};

/// Passes a result of zlib on, but for want of memory.
int Checked(int result) {
    if (result == Z_MEM_ERROR)
        throw std::bad_alloc();
    return result;
}

void RequireArray(unsigned char** data, const unsigned long* size) {
    NotNull(data, u"data");
    if (*NotNull(size, u"size") > 0)
        NotNull(*data, u"data");
    if (*size > std::numeric_limits<std::uint32_t>::max())
        Throw<CKzException>(messages::StreamTooLong);
}

/// Whether the first byte is that of gzip or tells the method of zlib. Most inputs need no more than this
/// look.
bool MayBeCompressed(const unsigned char* data, unsigned long size) {
    return size > 0 && (data[0] == 0x1F || (data[0] & 0x0F) == Z_DEFLATED);
}

/// How long the content will be if the rest is as dense as what was read: room that is made once is not
/// copied again and again. What stands already vouches for four times its length.
std::uint64_t ExpectedLength(const z_stream& stream, std::uint64_t inputSize, std::uint64_t limit) {
    const std::uint64_t content = stream.total_out * inputSize / std::max(stream.total_in, 1UL);
    return std::min({content, 4 * std::uint64_t{stream.total_out}, limit});
}

[[noreturn]] void FailToCompress(int code) { Throw<CKzException>(messages::CompressionFailed, code); }

} // namespace

void Compress(CBinaryData& data, CompressionType type) {
    if (data.GetLength() == 0)
        return;
    unsigned long size = data.GetLength();
    unsigned char* array = data.ReleaseData();
    try {
        CompressBuffer(&array, &size, type);
        data = CBinaryData(array, size, true);
    } catch (...) {
        delete[] array;
        throw;
    }
}

void CompressBuffer(unsigned char** data, unsigned long* size, CompressionType type) {
    if (type != CompressionType_GZip && type != CompressionType_ZLib)
        return;
    RequireArray(data, size);
    ByteArray output(new unsigned char[*size]);
    Stream<deflateEnd> stream(*data, *size);
    stream.SetOutput(output.get(), *size);
    int result = type == CompressionType_GZip
                     ? deflateInit2(&stream, level, Z_DEFLATED, gzipFormat, 8, Z_DEFAULT_STRATEGY)
                     : deflateInit(&stream, level);
    if (Checked(result) != Z_OK)
        FailToCompress(result);
    deflate(&stream, Z_NO_FLUSH);
    result = Checked(deflate(&stream, Z_FINISH));
    // Deliberate: no room is reported as 0 in all its forms, also where the header alone has filled it.
    if (result != Z_STREAM_END)
        FailToCompress(result == Z_BUF_ERROR ? Z_OK : result);
    delete[] * data;
    *data = output.release();
    *size = stream.total_out;
}

bool Inflate(const unsigned char* data, unsigned long size, CBinaryData& content) {
    if (!MayBeCompressed(data, size))
        return false;
    const std::uint64_t limit = CurrentLimit(&Limits::inflatedBytes);
    Stream<inflateEnd> stream(data, size);
    if (Checked(inflateInit2(&stream, eitherFormat)) != Z_OK)
        return false;
    const ByteArray block(new unsigned char[blockSize]);
    std::uint64_t room = 0;
    int result;
    do { // anything but Z_OK ends it: a stream that asks for a dictionary would ask for ever
        stream.SetOutput(block.get(), blockSize);
        result = Checked(inflate(&stream, Z_NO_FLUSH));
        if (stream.total_out > limit)
            Throw<CKzException>(messages::InflatedTooLong, limit);
        if (stream.total_out > room) {
            room = ExpectedLength(stream, size, limit);
            if (room / 2 > content.GetLength())
                content.Reserve(room / 2 - content.GetLength()); // which makes room for twice as much
        }
        content.Append(block.get(), blockSize - stream.avail_out);
    } while (result == Z_OK);
    return result == Z_STREAM_END;
}

void Decompress(unsigned char** data, unsigned long* size) {
    RequireArray(data, size);
    CBinaryData content;
    if (!Inflate(*data, *size, content))
        return;
    delete[] * data;
    *size = content.GetLength();
    *data = content.ReleaseData();
}

} // namespace KzXmlLib10
