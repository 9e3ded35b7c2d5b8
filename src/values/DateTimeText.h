#pragma once

#include <cstddef>
#include <iterator>
#include <string>

namespace KzXmlLib10 {

/// Appends a number in decimal, with zeros in front up to `width` digits.
inline void AppendNumber(std::u16string& out, unsigned long long number, std::size_t width = 1) {
    if (number < 100 && width == 2) { // as most are
        out += static_cast<char16_t>(u'0' + number / 10);
        out += static_cast<char16_t>(u'0' + number % 10);
        return;
    }
    char16_t digits[20];
    char16_t* const end = std::end(digits);
    char16_t* begin = end;
    for (; number > 0; number /= 10)
        *--begin = static_cast<char16_t>(u'0' + number % 10);
    while (static_cast<std::size_t>(end - begin) < width)
        *--begin = u'0';
    out.append(begin, end);
}

/// Appends the fraction of a second: nothing if it is zero, otherwise a point and the groups of three digits,
/// without the zeros at the end.
inline void AppendFraction(std::u16string& out, unsigned milli, unsigned micro, unsigned nano) {
    if (milli == 0 && micro == 0 && nano == 0)
        return;
    out += u'.';
    AppendNumber(out, milli, 3);
    if (micro != 0 || nano != 0)
        AppendNumber(out, micro, 3);
    if (nano != 0)
        AppendNumber(out, nano, 3);
    out.erase(out.find_last_not_of(u'0') + 1);
}

} // namespace KzXmlLib10
