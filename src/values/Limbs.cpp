#include "values/Limbs.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace KzXmlLib10 {

namespace {

constexpr std::size_t digitsPerLimb = 9;
constexpr std::uint64_t base = 1'000'000'000;

/// So many products of two limbs, and a limb and a carry more, fit into 64 bits.
constexpr std::size_t rowsWithoutCarry = 16;

void Trim(Limbs& limbs) {
    while (!limbs.empty() && limbs.back() == 0)
        limbs.pop_back();
}

/// Multiplies in place; the carry becomes one more limb, also when it is 0.
void MultiplyByLimb(Limbs& limbs, std::uint32_t factor) {
    std::uint64_t carry = 0;
    for (std::uint32_t& limb : limbs) {
        carry += std::uint64_t{limb} * factor;
        limb = static_cast<std::uint32_t>(carry % base);
        carry /= base;
    }
    limbs.push_back(static_cast<std::uint32_t>(carry));
}

/// Brings each sum below the base.
void Carry(std::vector<std::uint64_t>& sums) {
    std::uint64_t carry = 0;
    for (std::uint64_t& sum : sums) {
        sum += carry;
        carry = sum / base;
        sum %= base;
    }
}

/// Divides in place and returns the remainder.
std::uint32_t DivideByLimb(Limbs& limbs, std::uint32_t divisor) {
    std::uint64_t remainder = 0;
    for (std::size_t i = limbs.size(); i-- > 0;) {
        remainder = remainder * base + limbs[i];
        limbs[i] = static_cast<std::uint32_t>(remainder / divisor);
        remainder %= divisor;
    }
    Trim(limbs);
    return static_cast<std::uint32_t>(remainder);
}

/// The next limb of the quotient, from the three highest limbs of the rest and the two of the divisor: right,
/// or one too high.
std::uint64_t EstimateLimb(const std::uint32_t* rest, const Limbs& b) {
    const std::size_t n = b.size();
    const std::uint64_t high = rest[n] * base + rest[n - 1];
    std::uint64_t limb = high / b[n - 1];
    std::uint64_t left = high % b[n - 1];
    while (left < base && (limb >= base || limb * b[n - 2] > left * base + rest[n - 2])) {
        --limb;
        left += b[n - 1];
    }
    return limb;
}

/// Takes `limb` times `b` off the rest, which is one limb longer than `b`. Returns whether that was too much.
bool SubtractRow(std::uint32_t* rest, const Limbs& b, std::uint64_t limb) {
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i <= b.size(); ++i) {
        carry += i < b.size() ? limb * b[i] : 0;
        const auto low = static_cast<std::uint32_t>(carry % base);
        carry /= base;
        if (rest[i] < low) {
            rest[i] += static_cast<std::uint32_t>(base);
            ++carry;
        }
        rest[i] -= low;
    }
    return carry != 0;
}

/// Gives `b` back to a rest that a row too many was taken off.
void AddBack(std::uint32_t* rest, const Limbs& b) {
    std::uint32_t carry = 0;
    for (std::size_t i = 0; i <= b.size(); ++i) {
        rest[i] += carry + (i < b.size() ? b[i] : 0);
        carry = rest[i] >= base;
        if (carry)
            rest[i] -= static_cast<std::uint32_t>(base);
    }
}

} // namespace

Limbs ToLimbs(std::u16string_view digits) {
    Limbs limbs;
    limbs.reserve(digits.size() / digitsPerLimb + 2);
    for (std::size_t low = 0; low < digits.size(); low += digitsPerLimb) {
        std::uint32_t limb = 0;
        for (std::size_t i = std::min(low + digitsPerLimb, digits.size()); i-- > low;)
            limb = limb * 10 + digits[i];
        limbs.push_back(limb);
    }
    Trim(limbs);
    return limbs;
}

void AppendDigits(const Limbs& limbs, std::u16string& digits) {
    digits.reserve(digits.size() + limbs.size() * digitsPerLimb);
    for (std::uint32_t limb : limbs) {
        for (std::size_t i = 0; i < digitsPerLimb; ++i) {
            digits.push_back(static_cast<char16_t>(limb % 10));
            limb /= 10;
        }
    }
    if (!limbs.empty()) {
        while (digits.back() == 0)
            digits.pop_back();
    }
}

Limbs MultiplyLimbs(const Limbs& a, const Limbs& b) {
    std::vector<std::uint64_t> sums(a.size() + b.size());
    for (std::size_t j = 0; j < b.size(); ++j) {
        for (std::size_t i = 0; i < a.size(); ++i)
            sums[i + j] += std::uint64_t{a[i]} * b[j];
        if (j % rowsWithoutCarry == rowsWithoutCarry - 1)
            Carry(sums);
    }
    Carry(sums);
    Limbs product(sums.begin(), sums.end());
    Trim(product);
    return product;
}

LimbQuotient DivideLimbs(Limbs a, Limbs b) {
    if (a.size() < b.size())
        return {{}, std::move(a)};
    if (b.size() == 1) {
        const std::uint32_t remainder = DivideByLimb(a, b[0]);
        return {std::move(a), remainder == 0 ? Limbs{} : Limbs{remainder}};
    }
    // Long division wants a divisor whose highest limb is at least half the base, for good estimates.
    const auto scale = static_cast<std::uint32_t>(base / (b.back() + 1));
    MultiplyByLimb(a, scale);
    MultiplyByLimb(b, scale);
    Trim(b);
    Limbs quotient(a.size() - b.size());
    for (std::size_t j = quotient.size(); j-- > 0;) {
        std::uint32_t* rest = a.data() + j;
        std::uint64_t limb = EstimateLimb(rest, b);
        if (SubtractRow(rest, b, limb)) {
            --limb;
            AddBack(rest, b);
        }
        quotient[j] = static_cast<std::uint32_t>(limb);
    }
    Trim(quotient);
    Trim(a);
    DivideByLimb(a, scale);
    return {std::move(quotient), std::move(a)};
}

} // namespace KzXmlLib10
