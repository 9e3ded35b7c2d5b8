#pragma once

#include <cstdint>
#include <string_view>

namespace KzXmlLib10 {

/// The integer at the head of a text: optional whitespace, an optional sign, decimal digits.
struct ScannedInteger {
    std::uint64_t magnitude = 0; ///< 0 without digits
    bool negative = false;
    bool tooLarge = false; ///< the magnitude does not fit 64 bits
    bool complete = false; ///< the end of the text or a NUL follows; or there is neither number nor text
};
ScannedInteger ScanInteger(std::u16string_view text);

/// The decimal floating-point number at the head of a text: optional whitespace, an optional sign, digits
/// with an optional point, an optional exponent. Too large gives an infinity, too small a zero.
struct ScannedReal {
    double value = 0; ///< 0 without digits
    bool complete = false;
};
ScannedReal ScanReal(std::u16string_view text);

/// True for a printf format that holds exactly one conversion of a real, and nothing else that takes an
/// argument; widths and precisions have at most four digits.
bool IsRealFormat(std::u16string_view format);

} // namespace KzXmlLib10
