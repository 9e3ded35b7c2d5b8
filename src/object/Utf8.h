#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// Appends the UTF-8 form of `text` up to the first surrogate without its partner.
/// Returns the number of code units converted.
std::size_t AppendUtf8(std::string& out, std::u16string_view text);

/// Appends the 16-bit form of `text` up to the first malformed sequence. Returns the number of bytes
/// converted.
std::size_t AppendUtf16(std::u16string& out, std::string_view text);

} // namespace KzXmlLib10
