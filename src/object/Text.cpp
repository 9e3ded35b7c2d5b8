#include <KzXmlLib10/object/Text.h>

#include "object/Messages.h"
#include "object/Throw.h"
#include "object/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace KzXmlLib10 {

namespace {

bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

char* PutUtf8(char* to, char32_t point) {
    if (point < 0x80) {
        *to++ = static_cast<char>(point);
    } else if (point < 0x800) {
        *to++ = static_cast<char>(0xC0 | point >> 6);
        *to++ = static_cast<char>(0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
        *to++ = static_cast<char>(0xE0 | point >> 12);
        *to++ = static_cast<char>(0x80 | (point >> 6 & 0x3F));
        *to++ = static_cast<char>(0x80 | (point & 0x3F));
    } else {
        *to++ = static_cast<char>(0xF0 | point >> 18);
        *to++ = static_cast<char>(0x80 | (point >> 12 & 0x3F));
        *to++ = static_cast<char>(0x80 | (point >> 6 & 0x3F));
        *to++ = static_cast<char>(0x80 | (point & 0x3F));
    }
    return to;
}

/// The code point that starts at `at`, and how many units it takes; 0 units for a lone surrogate.
std::size_t ReadUtf16(std::u16string_view text, std::size_t at, char32_t& point) {
    point = text[at];
    if (IsLowSurrogate(point))
        return 0;
    if (!IsHighSurrogate(point))
        return 1;
    if (at + 1 == text.size() || !IsLowSurrogate(text[at + 1]))
        return 0;
    point = 0x10000 + ((point - 0xD800) << 10) + (text[at + 1] - 0xDC00u);
    return 2;
}

/// The code point that starts at `at`, and how many bytes it takes; 0 bytes for a malformed sequence.
std::size_t ReadUtf8(std::string_view text, std::size_t at, char32_t& point) {
    const auto lead = static_cast<unsigned char>(text[at]);
    if (lead < 0x80) {
        point = lead;
        return 1;
    }
    const std::size_t length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    if (length == 0 || text.size() - at < length)
        return 0;
    point = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[at + i]);
        if ((next & 0xC0) != 0x80)
            return 0;
        point = point << 6 | (next & 0x3F);
    }
    const bool overlong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    return overlong || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF) ? 0 : length;
}

// Runs of ASCII are looked for and copied in blocks of a fixed size, each of which the compiler does at once.
constexpr std::size_t blockSize = 16;

template <class Char>
using Block = std::array<Char, blockSize>;

template <class Char>
Block<Char> LoadBlock(const Char* from) {
    Block<Char> block;
    std::memcpy(block.data(), from, sizeof block);
    return block;
}

template <class Char>
bool IsAscii(const Block<Char>& block) {
    constexpr std::uint64_t others = sizeof(Char) == 1 ? 0x8080'8080'8080'8080 : 0xFF80'FF80'FF80'FF80;
    std::array<std::uint64_t, sizeof block / sizeof others> words;
    std::memcpy(words.data(), block.data(), sizeof words);
    std::uint64_t bits = 0;
    for (const std::uint64_t word : words)
        bits |= word;
    return (bits & others) == 0;
}

template <class Char>
bool IsAscii(Char unit) {
    return static_cast<std::make_unsigned_t<Char>>(unit) < 0x80;
}

/// Writes some blocks of ASCII as bytes. False if there is anything else among them.
template <std::size_t blocks>
bool NarrowAscii(char* to, const char16_t* from) {
    typedef std::uint16_t Units __attribute__((vector_size(2 * blockSize)));
    typedef std::uint8_t Bytes __attribute__((vector_size(blockSize)));
    Units units, all{};
    for (std::size_t i = 0; i < blocks; ++i) {
        std::memcpy(&units, from + i * blockSize, sizeof units);
        all |= units;
    }
    std::uint64_t words[4];
    std::memcpy(words, &all, sizeof words);
    if (((words[0] | words[1] | words[2] | words[3]) & 0xFF80'FF80'FF80'FF80) != 0)
        return false;
    for (std::size_t i = 0; i < blocks; ++i) {
        std::memcpy(&units, from + i * blockSize, sizeof units);
        const Bytes bytes = __builtin_convertvector(units, Bytes);
        std::memcpy(to + i * blockSize, &bytes, sizeof bytes);
    }
    return true;
}

/// Copies the ASCII at the head of a text to the other form. Returns how much there was.
template <class To, class From>
std::size_t CopyLeadingAscii(To* to, std::basic_string_view<From> text) {
    std::size_t count = 0;
    for (; text.size() - count >= blockSize; count += blockSize) {
        const Block<From> from = LoadBlock(text.data() + count);
        if (!IsAscii(from))
            break;
        Block<To> block;
        for (std::size_t i = 0; i < blockSize; ++i)
            block[i] = static_cast<To>(from[i]);
        std::memcpy(to + count, block.data(), sizeof block);
    }
    for (; count < text.size() && IsAscii(text[count]); ++count)
        to[count] = static_cast<To>(text[count]);
    return count;
}

} // namespace

Utf8Extent MeasureUtf8(std::u16string_view text) {
    std::size_t at = 0;
    std::size_t more = 0; // bytes than units
    while (at < text.size()) {
        if (text.size() - at >= blockSize && IsAscii(LoadBlock(text.data() + at))) {
            at += blockSize;
            continue;
        }
        for (const std::size_t end = std::min(text.size(), at + blockSize); at < end;) {
            char32_t point;
            const std::size_t units = ReadUtf16(text, at, point);
            if (units == 0)
                return {at, at + more};
            at += units;
            more += point < 0x80 ? 0 : point < 0x800 ? 1 : 2; // a pair has two units already
        }
    }
    return {at, at + more};
}

Utf8Extent WriteUtf8(char* to, std::u16string_view text) {
    const char* const start = to;
    std::size_t at = 0;
    while (at < text.size()) {
        for (; text.size() - at >= 4 * blockSize && NarrowAscii<4>(to, text.data() + at); at += 4 * blockSize)
            to += 4 * blockSize;
        if (text.size() - at >= blockSize && NarrowAscii<1>(to, text.data() + at)) {
            at += blockSize;
            to += blockSize;
            continue;
        }
        for (const std::size_t end = std::min(text.size(), at + blockSize); at < end;) {
            char32_t point;
            const std::size_t units = ReadUtf16(text, at, point);
            if (units == 0)
                return {at, static_cast<std::size_t>(to - start)};
            at += units;
            to = PutUtf8(to, point);
        }
    }
    return {at, static_cast<std::size_t>(to - start)};
}

std::size_t AppendUtf8(std::string& out, std::u16string_view text) {
    constexpr std::size_t longestShort = 256;
    const std::size_t start = out.size();
    if (text.size() <= longestShort) {
        out.resize(start + text.size());
        if (WriteAscii(out.data() + start, text))
            return text.size();
    }
    const Utf8Extent extent = MeasureUtf8(text);
    out.resize(start + extent.bytes);
    WriteUtf8(out.data() + start, text.substr(0, extent.units));
    return extent.units;
}

std::string ToUtf8WithReplacements(std::u16string_view text) {
    std::string bytes;
    for (text.remove_prefix(AppendUtf8(bytes, text)); !text.empty();
         text.remove_prefix(AppendUtf8(bytes, text))) {
        bytes += "\xEF\xBF\xBD";
        text.remove_prefix(1);
    }
    return bytes;
}

Utf16Extent WriteUtf16(char16_t* to, std::string_view text) {
    const char16_t* const start = to;
    std::size_t at = 0;
    for (;;) {
        const std::size_t ascii = CopyLeadingAscii(to, text.substr(at));
        to += ascii;
        at += ascii;
        char32_t point;
        std::size_t bytes;
        // Letters beyond ASCII mostly come together.
        while ((bytes = at < text.size() ? ReadUtf8(text, at, point) : 0) > 1) {
            if (point < 0x10000) {
                *to++ = static_cast<char16_t>(point);
            } else {
                *to++ = static_cast<char16_t>(0xD7C0 + (point >> 10));
                *to++ = static_cast<char16_t>(0xDC00 + (point & 0x3FF));
            }
            at += bytes;
        }
        if (bytes == 0)
            return {at, static_cast<std::size_t>(to - start)};
    }
}

std::size_t AppendUtf16(std::u16string& out, std::string_view text) {
    const std::size_t start = out.size();
    out.resize(start + text.size()); // no form of a character has more units than bytes
    const Utf16Extent extent = WriteUtf16(out.data() + start, text);
    out.resize(start + extent.units);
    return extent.bytes;
}

std::string ConvertToUtf8(std::u16string_view text) {
    std::string result;
    AppendUtf8(result, text);
    return result;
}

std::string ToUtf8(std::u16string_view text) {
    std::string result;
    if (const std::size_t done = AppendUtf8(result, text); done < text.size())
        Throw<CKzInvalidValueException>(messages::LoneSurrogate, static_cast<unsigned long long>(done));
    return result;
}

std::u16string FromUtf8(std::string_view text) {
    std::u16string result;
    result.reserve(text.size());
    if (const std::size_t done = AppendUtf16(result, text); done < text.size())
        Throw<CKzInvalidValueException>(messages::MalformedUtf8, static_cast<unsigned long long>(done));
    return result;
}

} // namespace KzXmlLib10
