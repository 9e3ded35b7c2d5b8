#pragma once

#include <cstring>
#include <string_view>

namespace KzXmlLib10 {

/// Whether two texts are equal. Quicker than ==, which compares unit by unit to find out which one is less.
inline bool SameText(std::u16string_view a, std::u16string_view b) {
    return a.size() == b.size() &&
           (a.data() == b.data() || std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0);
}

} // namespace KzXmlLib10
