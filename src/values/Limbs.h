#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace KzXmlLib10 {

/// A number in limbs of nine decimal digits, least significant first, without high zeros; zero has none.
///
/// Products and quotients of long digit vectors are worked out on limbs: the same school methods in base
/// 10^9, with one step for every 81.
using Limbs = std::vector<std::uint32_t>;

struct LimbQuotient {
    Limbs quotient;
    Limbs remainder;
};

/// The limbs of decimal digits, least significant first.
Limbs ToLimbs(std::u16string_view digits);

/// Appends the decimal digits of `limbs`, least significant first and without high zeros.
void AppendDigits(const Limbs& limbs, std::u16string& digits);

Limbs MultiplyLimbs(const Limbs& a, const Limbs& b);

/// `b` is not zero.
LimbQuotient DivideLimbs(Limbs a, Limbs b);

} // namespace KzXmlLib10
