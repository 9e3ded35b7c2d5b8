#include <KzXmlLib10/xml/Compression.h>

#include "support/Bytes.h"
#include "support/Failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace KzXmlLib10;
using namespace KzXmlLib10::support;

namespace {

constexpr CompressionType bothTypes[] = {CompressionType_GZip, CompressionType_ZLib};

std::string Compressed(const std::string& bytes, CompressionType type) {
    CBinaryData data = ToBinary(bytes);
    Compress(data, type);
    return FromBinary(data);
}

/// An array as Decompress takes it, freed at the end.
struct Array {
    explicit Array(const std::string& bytes) : data(new unsigned char[bytes.size()]), size(bytes.size()) {
        std::copy(bytes.begin(), bytes.end(), data);
    }
    Array(const Array&) = delete;
    Array& operator=(const Array&) = delete;
    ~Array() { delete[] data; }
    std::string Bytes() const { return std::string(reinterpret_cast<char*>(data), size); }

    unsigned char* data;
    unsigned long size;
};

std::string Decompressed(const std::string& bytes) {
    Array array(bytes);
    Decompress(&array.data, &array.size);
    return array.Bytes();
}

/// Text that shrinks, but not to nothing.
std::string Sample(std::size_t size) {
    std::string text;
    for (unsigned i = 1; text.size() < size; ++i)
        text += "<n>" + std::to_string(i * 2654435761u % 9973) + "</n>";
    return text.substr(0, size);
}

TEST(Compression, GoesThereAndBack) {
    for (const CompressionType type : bothTypes) {
        for (const std::size_t size : {100, 65535, 65536, 65537, 131072, 1000000}) {
            const std::string text = Sample(size);
            const std::string compressed = Compressed(text, type);
            EXPECT_LT(compressed.size(), text.size());
            EXPECT_TRUE(Decompressed(compressed) == text) << size;
        }
    }
    const std::string text = Sample(1000);
    EXPECT_EQ(Compressed(text, CompressionType_GZip).substr(0, 10),
              std::string("\x1F\x8B\x08\0\0\0\0\0\x04\x03", 10));
    EXPECT_EQ(Compressed(text, CompressionType_ZLib).substr(0, 2), "\x78\x01");
}

TEST(Compression, OtherTypesAndEmptyDataStay) {
    EXPECT_EQ(Compressed("abc", CompressionType_None), "abc");
    EXPECT_EQ(Compressed("abc", static_cast<CompressionType>(3)), "abc");
    CBinaryData none;
    Compress(none, CompressionType_GZip);
    EXPECT_EQ(none.GetData(), nullptr);
    EXPECT_EQ(Compressed("", CompressionType_ZLib), "");
}

TEST(Compression, WhatDoesNotShrinkFailsWithCodeZero) {
    std::string random; // cannot shrink at any length
    for (unsigned i = 0, state = 1; i < 3000; ++i)
        random += static_cast<char>((state = state * 1664525 + 1013904223) >> 24);
    for (const CompressionType type : bothTypes) {
        for (std::size_t size = 1; size < 24; ++size)
            EXPECT_EQ(Failure([&] { Compressed(random.substr(0, size), type); }),
                      "Failed to compress data. [Error Code: 0]");
        Array array(random);
        EXPECT_EQ(Failure([&] { CompressBuffer(&array.data, &array.size, type); }),
                  "Failed to compress data. [Error Code: 0]");
        EXPECT_EQ(array.Bytes(), random);
    }
}

TEST(Compression, WhatIsNoCompleteStreamStays) {
    const std::string text = Sample(200000);
    const std::string zlib = Compressed(text, CompressionType_ZLib);
    const std::string gzip = Compressed(text, CompressionType_GZip);
    const std::string rows[] = {
        "",
        "<a/>",
        "\x1F",
        "\x1F\x8B",
        std::string("\x78\xBB\0\0\0\x01", 6), // asks for a dictionary
        std::string(100, '\xFF'),
        gzip.substr(0, gzip.size() - 1),
        gzip.substr(0, gzip.size() / 2),
        zlib.substr(0, zlib.size() - 1),
        zlib.substr(0, 2),
        "\xFF\xFE" + gzip, // a mark before the stream
    };
    for (const std::string& row : rows)
        EXPECT_TRUE(Decompressed(row) == row) << row.size();
    for (const std::string& stream : {gzip, zlib}) {
        std::string damaged = stream;
        damaged[damaged.size() - 6] ^= 1;
        EXPECT_TRUE(Decompressed(damaged) == damaged);
    }
}

TEST(Compression, OnlyTheFirstStreamCounts) {
    const std::string first = Compressed(Sample(500), CompressionType_GZip);
    EXPECT_EQ(Decompressed(first + "junk"), Sample(500));
    EXPECT_EQ(Decompressed(first + first), Sample(500));
    const std::string twice =
        Compressed(Compressed(std::string(5000, 'a'), CompressionType_GZip) + std::string(5000, '\0'),
                   CompressionType_GZip);
    EXPECT_EQ(Decompressed(twice).substr(0, 2), "\x1F\x8B");
    // A gzip stream of nothing.
    EXPECT_EQ(Decompressed(std::string("\x1F\x8B\x08\0\0\0\0\0\0\x03\x03\0\0\0\0\0\0\0\0\0", 20)), "");
}

TEST(Compression, RefusesMoreThanTheLimit) {
    struct Restore {
        std::uint32_t limit = GetMaxInflatedSize();
        ~Restore() { SetMaxInflatedSize(limit); }
    } restore;
    EXPECT_EQ(restore.limit, 1u << 30);
    const std::string bomb = Compressed(std::string(1000000, ' '), CompressionType_GZip);
    SetMaxInflatedSize(1000000);
    EXPECT_EQ(Decompressed(bomb).size(), 1000000u);
    SetMaxInflatedSize(999999);
    Array array(bomb);
    EXPECT_EQ(Failure([&] { Decompress(&array.data, &array.size); }),
              "The content of the compressed stream is larger than the limit of 999999 bytes");
    EXPECT_EQ(array.Bytes(), bomb);
    array.size = 1ul << 32;
    EXPECT_EQ(Failure([&] { Decompress(&array.data, &array.size); }),
              "Streams of more than 4294967295 bytes are not supported");
    EXPECT_EQ(Failure([&] { CompressBuffer(&array.data, &array.size, CompressionType_GZip); }),
              "Streams of more than 4294967295 bytes are not supported");
}

} // namespace
