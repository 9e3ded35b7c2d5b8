#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// How much of a text has a UTF-8 form, up to the first surrogate without its partner.
struct Utf8Extent {
    std::size_t units; ///< code units of the text
    std::size_t bytes; ///< bytes of their UTF-8 form
};

Utf8Extent MeasureUtf8(std::u16string_view text);

/// Writes the UTF-8 form of the part of a text that MeasureUtf8 has measured.
void WriteUtf8(char* to, std::u16string_view text, Utf8Extent extent);

/// Appends the UTF-8 form of `text` up to the first surrogate without its partner.
/// Returns the number of code units converted.
std::size_t AppendUtf8(std::string& out, std::u16string_view text);

/// The UTF-8 form of `text`, with U+FFFD for each surrogate without its partner.
std::string ToUtf8WithReplacements(std::u16string_view text);

/// Appends the 16-bit form of `text` up to the first malformed sequence. Returns the number of bytes
/// converted.
std::size_t AppendUtf16(std::u16string& out, std::string_view text);

} // namespace KzXmlLib10
