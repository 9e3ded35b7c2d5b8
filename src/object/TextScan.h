#pragma once

#include <cstring>
#include <string_view>

namespace KzXmlLib10 {

/// Whether two texts are equal. Quicker than ==, which compares unit by unit to find out which one is less.
inline bool SameText(std::u16string_view a, std::u16string_view b) {
    return a.size() == b.size() &&
           (a.data() == b.data() || std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0);
}

/// False only if no unit of the text is that ASCII character; true where a byte of another unit looks like
/// it. Quicker than a search among units.
inline bool MayHold(std::u16string_view text, char character) {
    return std::memchr(text.data(), character, text.size() * sizeof(char16_t)) != nullptr;
}

} // namespace KzXmlLib10
