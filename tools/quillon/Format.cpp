#include "Format.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/xml/Compression.h>

#include <zlib.h>

#include <algorithm>
#include <new>

namespace quillon {

using namespace KzXmlLib10;
using namespace std::string_view_literals;

namespace {

/// Takes an ending away, if the name has it.
bool Strip(std::string_view& name, std::string_view ending) {
    if (!name.ends_with(ending))
        return false;
    name.remove_suffix(ending.size());
    return true;
}

std::string_view AsText(const CBinaryData& bytes) {
    return {reinterpret_cast<const char*>(bytes.GetData()), bytes.GetLength()};
}

/// Whether a document starts like Fast Infoset (ITU-T X.891, clause 12.6), where a declaration may come
/// first.
bool IsFastInfoset(std::string_view document) {
    if (document.starts_with("<?xml"sv)) {
        const std::size_t end = document.find("?>"sv);
        if (end == document.npos || document.substr(0, end).find("'finf'"sv) == document.npos)
            return false;
        document.remove_prefix(end + 2);
    }
    return document.starts_with("\xE0\x00\x00\x01"sv);
}

} // namespace

Format FormatOfName(std::string_view file) {
    Format format;
    if (Strip(file, ".gz"))
        format.compression = CompressionType_GZip;
    else if (Strip(file, ".zz") || Strip(file, ".zlib"))
        format.compression = CompressionType_ZLib;
    if (Strip(file, ".finf") || Strip(file, ".fi"))
        format.syntax = Syntax::FastInfoset;
    return format;
}

std::string Describe(Format format) {
    const std::string syntax = format.syntax == Syntax::Text ? "text" : "Fast Infoset";
    switch (format.compression) {
    case CompressionType_GZip:
        return syntax + " under gzip";
    case CompressionType_ZLib:
        return syntax + " under zlib";
    default:
        return syntax;
    }
}

Format Recognize(CBinaryData& bytes) {
    Format format;
    if (bytes.GetLength() == 0)
        return format;
    constexpr unsigned char firstOfGzip = 0x1F;
    unsigned long size = bytes.GetLength();
    unsigned char* const original = bytes.ReleaseData();
    const unsigned char first = *original;
    unsigned char* content = original;
    try {
        Decompress(&content, &size);
    } catch (...) {
        delete[] original;
        throw;
    }
    bytes = CBinaryData(content, size, true);
    if (content != original)
        format.compression = first == firstOfGzip ? CompressionType_GZip : CompressionType_ZLib;
    else if (first == firstOfGzip) // which no document begins with
        throw CKzException(u"The compressed stream is damaged or ends too early");
    if (IsFastInfoset(AsText(bytes)))
        format.syntax = Syntax::FastInfoset;
    return format;
}

std::string Compressed(const CBinaryData& bytes, CompressionType type) {
    if (type == CompressionType_None)
        return std::string(AsText(bytes));
    constexpr int zlibFormat = 15;
    constexpr int gzipFormat = 15 + 16;
    z_stream stream{};
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED,
                     type == CompressionType_GZip ? gzipFormat : zlibFormat, 8, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::bad_alloc();
    std::string result;
    stream.next_in = bytes.GetData();
    stream.avail_in = bytes.GetLength();
    int state;
    do {
        char block[0x10000];
        stream.next_out = reinterpret_cast<unsigned char*>(block);
        stream.avail_out = sizeof block;
        state = deflate(&stream, Z_FINISH);
        result.append(block, sizeof block - stream.avail_out);
    } while (state == Z_OK);
    deflateEnd(&stream);
    return result;
}

} // namespace quillon
