#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// How much of a text has a UTF-8 form, up to the first surrogate without its partner.
struct Utf8Extent {
    std::size_t units; ///< code units of the text
    std::size_t bytes; ///< bytes of their UTF-8 form
};

Utf8Extent MeasureUtf8(std::u16string_view text);

/// Writes the UTF-8 form of a text up to its first surrogate without its partner, where there is room for
/// what MeasureUtf8 would find, or for three bytes a unit.
Utf8Extent WriteUtf8(char* to, std::u16string_view text);

/// Appends the UTF-8 form of `text` up to the first surrogate without its partner.
/// Returns the number of code units converted.
std::size_t AppendUtf8(std::string& out, std::u16string_view text);

/// The UTF-8 form of `text`, with U+FFFD for each surrogate without its partner.
std::string ToUtf8WithReplacements(std::u16string_view text);

/// Appends the 16-bit form of `text` up to the first malformed sequence. Returns the number of bytes
/// converted.
std::size_t AppendUtf16(std::u16string& out, std::string_view text);

/// Writes the bytes of a word of four or eight as code units. Returns the word.
template <class Word>
inline Word WidenBytes(char16_t* to, const char* from) {
    typedef unsigned char Bytes __attribute__((vector_size(16)));
    typedef std::uint64_t Words __attribute__((vector_size(16)));
    Word word;
    std::memcpy(&word, from, sizeof word);
    constexpr bool littleEndian = std::endian::native == std::endian::little;
    constexpr int shift = littleEndian || sizeof word == 8 ? 0 : 32;
    const Bytes bytes = reinterpret_cast<Bytes>(Words{std::uint64_t{word} << shift, 0}), zeros = {};
    const Bytes units =
        littleEndian
            ? __builtin_shufflevector(bytes, zeros, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23)
            : __builtin_shufflevector(zeros, bytes, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
    std::memcpy(to, &units, 2 * sizeof word);
    return word;
}

/// What WriteUtf16 has taken and made.
struct Utf16Extent {
    std::size_t bytes; ///< of the UTF-8 text
    std::size_t units; ///< code units written
};

/// Writes the 16-bit form of `text` up to the first malformed sequence, where there is room for as many code
/// units as the text has bytes.
Utf16Extent WriteUtf16(char16_t* to, std::string_view text);

/// Eight code units.
typedef std::uint16_t UnitsOfAscii __attribute__((vector_size(16)));

/// The low bytes of eight code units.
inline std::uint64_t NarrowUnits(UnitsOfAscii units) {
    typedef unsigned char Bytes __attribute__((vector_size(8)));
    return std::bit_cast<std::uint64_t>(__builtin_convertvector(units, Bytes));
}

/// Writes a text that is ASCII as bytes, by blocks that overlap at the end. False for any other text, and
/// what was written is of no use then. Inline, since the texts of documents are short.
inline bool WriteAscii(char* to, std::u16string_view text) {
    const char16_t* from = text.data();
    const std::size_t size = text.size();
    std::uint64_t words[2]{};
    if (size >= 8) {
        UnitsOfAscii found{};
        const auto narrow = [&](std::size_t at) {
            UnitsOfAscii units;
            std::memcpy(&units, from + at, sizeof units);
            found |= units;
            const std::uint64_t bytes = NarrowUnits(units);
            std::memcpy(to + at, &bytes, sizeof bytes);
        };
        for (std::size_t at = 0; at + 8 < size; at += 8)
            narrow(at);
        narrow(size - 8);
        std::memcpy(words, &found, sizeof words);
    } else if (size >= 4) {
        std::memcpy(&words[0], from, sizeof words[0]);
        std::memcpy(&words[1], from + size - 4, sizeof words[1]);
        const std::uint64_t bytes = NarrowUnits(std::bit_cast<UnitsOfAscii>(words));
        std::memcpy(to, &bytes, 4);
        std::memcpy(to + size - 4, reinterpret_cast<const char*>(&bytes) + 4, 4);
    } else {
        for (std::size_t at = 0; at < size; ++at) {
            to[at] = static_cast<char>(from[at]);
            words[0] |= from[at];
        }
    }
    return ((words[0] | words[1]) & 0xFF80'FF80'FF80'FF80) == 0;
}

/// Writes the 16-bit form of a text that is ASCII, by blocks that overlap at the end. False for any other
/// text, and what was written is of no use then. Inline, since the texts of documents are short.
inline bool WriteAscii(char16_t* to, std::string_view text) {
    const char* from = text.data();
    const std::size_t size = text.size();
    std::uint64_t found = 0;
    if (size >= 8) {
        for (std::size_t at = 0; at + 8 < size; at += 8)
            found |= WidenBytes<std::uint64_t>(to + at, from + at);
        found |= WidenBytes<std::uint64_t>(to + size - 8, from + size - 8);
    } else if (size >= 4) {
        found =
            WidenBytes<std::uint32_t>(to, from) | WidenBytes<std::uint32_t>(to + size - 4, from + size - 4);
    } else {
        for (std::size_t at = 0; at < size; ++at) {
            const auto byte = static_cast<unsigned char>(from[at]);
            to[at] = byte;
            found |= byte;
        }
    }
    return (found & 0x8080'8080'8080'8080) == 0;
}

} // namespace KzXmlLib10
