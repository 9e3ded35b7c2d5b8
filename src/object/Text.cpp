#include <KzXmlLib10/object/Text.h>

#include "object/Messages.h"
#include "object/Throw.h"
#include "object/Utf8.h"

#include <algorithm>
#include <cstdint>

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

std::size_t CountLeadingAscii(std::u16string_view text) {
    std::size_t count = 0;
    for (; text.size() - count >= 16; count += 16) { // sixteen at a time, which the compiler can do at once
        unsigned bits = 0;
        for (std::size_t i = 0; i < 16; ++i)
            bits |= text[count + i];
        if (bits >= 0x80)
            break;
    }
    while (count < text.size() && text[count] < 0x80)
        ++count;
    return count;
}

} // namespace

Utf8Extent MeasureUtf8(std::u16string_view text) {
    const std::size_t ascii = CountLeadingAscii(text);
    Utf8Extent extent{ascii, ascii};
    while (extent.units < text.size()) {
        char32_t point;
        const std::size_t units = ReadUtf16(text, extent.units, point);
        if (units == 0)
            break;
        extent.units += units;
        extent.bytes += point < 0x80 ? 1 : point < 0x800 ? 2 : point < 0x10000 ? 3 : 4;
    }
    return extent;
}

void WriteUtf8(char* to, std::u16string_view text, Utf8Extent extent) {
    text = text.substr(0, extent.units);
    if (extent.bytes == extent.units) {
        std::ranges::transform(text, to, [](char16_t unit) { return static_cast<char>(unit); });
        return;
    }
    for (std::size_t at = 0; at < text.size();) {
        char32_t point;
        at += ReadUtf16(text, at, point);
        to = PutUtf8(to, point);
    }
}

std::size_t AppendUtf8(std::string& out, std::u16string_view text) {
    const Utf8Extent extent = MeasureUtf8(text);
    const std::size_t start = out.size();
    out.resize(start + extent.bytes);
    WriteUtf8(out.data() + start, text, extent);
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

std::size_t AppendUtf16(std::u16string& out, std::string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        char32_t point;
        const std::size_t bytes = ReadUtf8(text, at, point);
        if (bytes == 0)
            break;
        if (point < 0x10000) {
            out += static_cast<char16_t>(point);
        } else {
            out += static_cast<char16_t>(0xD7C0 + (point >> 10));
            out += static_cast<char16_t>(0xDC00 + (point & 0x3FF));
        }
        at += bytes;
    }
    return at;
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
