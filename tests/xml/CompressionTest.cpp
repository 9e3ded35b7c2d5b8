#include "support/Test.h"

namespace {

constexpr CompressionType bothTypes[] = {CompressionType_GZip, CompressionType_ZLib};

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
    for (const CompressionType type : bothTypes)
        for (const std::size_t size : {100, 65535, 65536, 65537, 131072})
            EXPECT_TRUE(Decompressed(Compressed(Sample(size), type)) == Sample(size)) << size;
    EXPECT_EQ(Compressed(Sample(1000), CompressionType_GZip).substr(0, 10),
              std::string("\x1F\x8B\x08\0\0\0\0\0\x04\x03", 10));
    EXPECT_EQ(Compressed(Sample(1000), CompressionType_ZLib).substr(0, 2), "\x78\x01");
    // Other types and empty data stay.
    EXPECT_EQ(Compressed("abc", CompressionType_None), "abc");
    EXPECT_EQ(Compressed("abc", static_cast<CompressionType>(3)), "abc");
    EXPECT_EQ(Compressed("", CompressionType_ZLib), "");
}

TEST(Compression, WhatDoesNotShrinkFailsWithCodeZero) {
    std::string random; // cannot shrink at any length
    for (unsigned i = 0, state = 1; i < 3000; ++i)
        random += static_cast<char>((state = state * 1664525 + 1013904223) >> 24);
    for (const CompressionType type : bothTypes)
        for (const std::size_t size : {1, 2, 7, 8, 9, 17, 18, 19, 23, 3000}) {
            Array array(random.substr(0, size));
            EXPECT_EQ(Failure([&] { CompressBuffer(&array.data, &array.size, type); }),
                      "Failed to compress data. [Error Code: 0]");
            EXPECT_EQ(array.Bytes(), random.substr(0, size));
        }
}

TEST(Compression, WhatIsNoCompleteStreamStays) {
    const std::string dictionaryWanted("\x78\xBB\0\0\0\x01", 6);
    std::vector<std::string> rows = {"", "<a/>", dictionaryWanted, std::string(100, '\xFF')};
    for (const CompressionType type : bothTypes) {
        const std::string stream = Compressed(Sample(200000), type);
        for (const std::size_t size : {std::size_t{1}, std::size_t{2}, stream.size() / 2, stream.size() - 1})
            rows.push_back(stream.substr(0, size));
        rows.push_back("\xFF\xFE" + stream); // a mark before the stream
        std::string damaged = stream;
        damaged[damaged.size() - 6] ^= 1;
        rows.push_back(damaged);
    }
    for (const std::string& row : rows)
        EXPECT_TRUE(Decompressed(row) == row) << row.size();
}

TEST(Compression, OnlyTheFirstStreamCounts) {
    const std::string first = Compressed(Sample(500), CompressionType_GZip);
    EXPECT_EQ(Decompressed(first + first), Sample(500));
    const std::string twice =
        Compressed(Compressed(std::string(5000, 'a'), CompressionType_GZip) + std::string(5000, '\0'),
                   CompressionType_GZip);
    EXPECT_EQ(Decompressed(twice).substr(0, 2), "\x1F\x8B");
    // A gzip stream of nothing.
    EXPECT_EQ(Decompressed(std::string("\x1F\x8B\x08\0\0\0\0\0\0\x03\x03\0\0\0\0\0\0\0\0\0", 20)), "");
}

TEST(Compression, RefusesMoreThanTheLimit) {
    const std::string bomb = Compressed(std::string(1000000, ' '), CompressionType_GZip);
    Array array(bomb);
    LimitsScope limits(&Limits::inflatedBytes, 1000000);
    EXPECT_EQ(Decompressed(bomb).size(), 1000000u);
    limits.Set(&Limits::inflatedBytes, 999999);
    EXPECT_EQ(Failure([&] { Decompress(&array.data, &array.size); }),
              "The content of the compressed stream is larger than the limit of 999999 bytes");
    EXPECT_EQ(array.Bytes(), bomb);
    array.size = 1ul << 32;
    const std::string tooLong = "Streams of more than 4294967295 bytes are not supported";
    EXPECT_EQ(Failure([&] { Decompress(&array.data, &array.size); }), tooLong);
    EXPECT_EQ(Failure([&] { CompressBuffer(&array.data, &array.size, CompressionType_GZip); }), tooLong);
    unsigned char* null = nullptr;
    unsigned long none = 0;
    Decompress(&null, &none); // as there is nothing to read
    EXPECT_THROW(Decompress(&null, &array.size), CKzInvalidParamException);
    EXPECT_THROW(CompressBuffer(&array.data, nullptr, CompressionType_GZip), CKzInvalidParamException);
}

} // namespace
