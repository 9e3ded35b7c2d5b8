#include <KzXmlLib10/values/CBigInteger.h>

#include <KzXmlLib10/conversions/CWhitespaceUtils.h>
#include <KzXmlLib10/values/CDecimal.h>

#include "object/Digit.h"
#include "object/NotNull.h"
#include "object/Throw.h"
#include "values/Limbs.h"
#include "values/Messages.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace KzXmlLib10 {

// How values are held, as { sign, digits }:
//
//      1203 = { +1, 3 0 2 1 }
//       -47 = { -1, 7 4 }
//         0 = { +1, 0 }
//        -0 = { -1, 0 }         from the text -0; equal to 0, and less than it
//   x *= -3 = { 65535, ... }    a negative product in place, neither negative nor positive

namespace {

/// Powers of ten above this one are refused, so that a few bytes of input never ask for all memory.
constexpr std::uint32_t largestPowerOfTen = 100'000'000;

bool IsIntegerText(std::u16string_view text) {
    return std::ranges::all_of(text, [](char16_t unit) {
        return IsDigit(unit) || CWhitespaceUtils::IsWhiteSpace(unit) || unit == u'-' || unit == u'+';
    });
}

std::u16string_view WithoutSpaces(std::u16string_view text) {
    while (text.ends_with(u' '))
        text.remove_suffix(1);
    while (text.starts_with(u' '))
        text.remove_prefix(1);
    return text;
}

std::uint64_t Magnitude(long long value) {
    return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

/// The number of low zeros; for zero, of all digits.
std::size_t LowZeros(const CBigInteger::Digits& digits) {
    const auto end = std::ranges::find_if(digits, [](char16_t digit) { return digit != 0; });
    return static_cast<std::size_t>(end - digits.begin());
}

Limbs ToLimbsAbove(const CBigInteger::Digits& digits, std::size_t places) {
    return ToLimbs(std::u16string_view(digits).substr(places));
}

/// 32 bits, as the field is wide; unsigned, as signs other than +1 and -1 may overflow.
std::uint32_t SignProduct(std::int32_t a, std::int32_t b) {
    return static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b);
}

} // namespace

// Ready before every other static object, so that none of those finds them unset.
#define QUILLON_FIRST __attribute__((init_priority(101)))
const CBigInteger CBigInteger::MAX_LONG QUILLON_FIRST(u"2147483647");
const CBigInteger CBigInteger::MIN_LONG QUILLON_FIRST(u"-2147483648");
const CBigInteger CBigInteger::MAX_LONGLONG QUILLON_FIRST(u"9223372036854775807");
const CBigInteger CBigInteger::MIN_LONGLONG QUILLON_FIRST(u"-9223372036854775808");
const CBigInteger CBigInteger::MAX_DOUBLE QUILLON_FIRST(u"1.7E+308");
const CBigInteger CBigInteger::MIN_DOUBLE QUILLON_FIRST(u"-1.7E+308");
#undef QUILLON_FIRST

CBigInteger::CBigInteger() : m_sign(1), m_digits(1, 0) {}

CBigInteger::CBigInteger(int value) : CBigInteger(static_cast<long long>(value)) {}

CBigInteger::CBigInteger(long value) : CBigInteger(static_cast<long long>(value)) {}

CBigInteger::CBigInteger(long long value) : m_sign(value < 0 ? -1 : 1) {
    BuildDWORDLONG(Magnitude(value), m_digits);
}

CBigInteger::CBigInteger(double value) : m_sign(value < 0 ? -1 : 1) {
    BuildDouble(std::fabs(value), m_digits);
}

CBigInteger::CBigInteger(const CDecimal& value) : CBigInteger(value.ToBigInteger()) {}

CBigInteger::CBigInteger(const char16_t* text) : m_sign(1) { Parse(text); }

CBigInteger::CBigInteger(std::int32_t sign, Digits digits) : m_sign(sign), m_digits(std::move(digits)) {
    Clean(m_digits);
}

CBigInteger::CBigInteger(const CBigInteger& other) = default;
CBigInteger::CBigInteger(CBigInteger&& other) noexcept = default;
CBigInteger& CBigInteger::operator=(const CBigInteger& other) = default;
CBigInteger& CBigInteger::operator=(CBigInteger&& other) noexcept = default;
CBigInteger::~CBigInteger() = default;

void CBigInteger::Parse(const char16_t* text) {
    std::u16string_view rest = NotNull(text, u"text");
    if (!IsIntegerText(rest)) {
        *this = CDecimal(text).ToBigInteger();
        return;
    }
    rest = WithoutSpaces(rest);
    m_sign = rest.starts_with(u'-') ? -1 : 1;
    // Deliberate: what stands in front of the last run of digits is not looked at, so 12-3 reads as 3.
    Build(rest, m_digits);
}

std::u16string CBigInteger::ToString() const {
    if (IsZero())
        return u"0";
    const std::size_t signs = m_sign == -1 ? 1 : 0;
    std::u16string text(signs + m_digits.size(), u'-');
    std::transform(m_digits.rbegin(), m_digits.rend(), text.begin() + static_cast<std::ptrdiff_t>(signs),
                   [](char16_t digit) { return static_cast<char16_t>(u'0' + digit); });
    return text;
}

void CBigInteger::Abs() { m_sign = 1; }

CBigInteger CBigInteger::GetAbs() const { return CBigInteger(1, m_digits); }

void CBigInteger::Negate() { m_sign = m_sign == -1 ? 1 : -1; }

CBigInteger CBigInteger::GetNegative() const { return CBigInteger(m_sign == -1 ? 1 : -1, m_digits); }

CBigInteger& CBigInteger::operator-() {
    // Deliberate: the operand itself changes.
    Negate();
    return *this;
}

CBigInteger CBigInteger::operator+(const CBigInteger& other) const {
    CBigInteger sum(*this);
    sum += other;
    return sum;
}

CBigInteger CBigInteger::operator-(const CBigInteger& other) const {
    CBigInteger difference(*this);
    difference -= other;
    return difference;
}

CBigInteger CBigInteger::operator*(const CBigInteger& other) const {
    CBigInteger product;
    Multiply(m_digits, other.m_digits, product.m_digits);
    product.m_sign = static_cast<std::int32_t>(SignProduct(m_sign, other.m_sign));
    return product;
}

CBigInteger CBigInteger::operator/(const CBigInteger& other) const {
    if (other.IsZero())
        Throw<CKzInvalidValueException>(messages::OverflowInDivide);
    return Quotient(other);
}

CBigInteger CBigInteger::operator%(const CBigInteger& other) const {
    // Not formatted, as the text has a percent sign of its own.
    if (other.m_sign == -1 || (other.IsZero() && !IsZero()))
        throw CKzInvalidValueException(messages::OverflowInModulo);
    return Remainder(other);
}

CBigInteger& CBigInteger::operator+=(const CBigInteger& other) {
    AddSigned(other.m_sign, other.m_digits);
    return *this;
}

CBigInteger& CBigInteger::operator-=(const CBigInteger& other) {
    AddSigned(other.m_sign == -1 ? 1 : -1, other.m_digits);
    return *this;
}

CBigInteger& CBigInteger::operator*=(const CBigInteger& other) {
    Multiply(m_digits, other.m_digits, m_digits);
    // Deliberate: only 16 bits of the sign are kept, so that a negative product has the sign 65535.
    m_sign = static_cast<std::uint16_t>(SignProduct(m_sign, other.m_sign));
    return *this;
}

CBigInteger& CBigInteger::operator/=(const CBigInteger& other) {
    // Deliberate: a negative divisor, which / takes, is refused.
    if (other.m_sign == -1 || (other.IsZero() && !IsZero()))
        Throw<CKzInvalidValueException>(messages::OverflowInDivideAssign);
    return *this = Quotient(other);
}

CBigInteger& CBigInteger::operator%=(const CBigInteger& other) {
    if (other.m_sign == -1 || (other.IsZero() && !IsZero()))
        throw CKzInvalidValueException(messages::OverflowInModuloAssign);
    return *this = Remainder(other);
}

CBigInteger CBigInteger::Quotient(const CBigInteger& divisor) const {
    if (IsZero())
        return CBigInteger();
    CBigInteger quotient;
    Digits remainder;
    Divide(m_digits, divisor.m_digits, quotient.m_digits, remainder);
    quotient.m_sign = m_sign == divisor.m_sign ? 1 : -1;
    return quotient;
}

CBigInteger CBigInteger::Remainder(const CBigInteger& divisor) const {
    if (IsZero())
        return CBigInteger();
    CBigInteger remainder;
    Digits quotient;
    Divide(m_digits, divisor.m_digits, quotient, remainder.m_digits);
    remainder.m_sign = m_sign;
    return remainder;
}

void CBigInteger::AddSigned(std::int32_t sign, const Digits& digits) {
    if (m_sign == sign) {
        Add(m_digits, digits, m_digits);
        return;
    }
    const int order = Compare(m_digits, digits);
    if (order == 0) {
        *this = CBigInteger();
    } else if (order > 0) {
        Subtract(m_digits, digits, m_digits);
    } else {
        Subtract(digits, m_digits, m_digits);
        m_sign = sign;
    }
}

bool CBigInteger::operator==(const CBigInteger& other) const {
    return m_digits == other.m_digits && (m_sign == other.m_sign || IsZero());
}

bool CBigInteger::operator!=(const CBigInteger& other) const { return !(*this == other); }

bool CBigInteger::operator<(const CBigInteger& other) const {
    // Deliberate: the sign of zero counts here, so -0 is less than 0 although it equals it.
    if (m_sign == -1 && other.m_sign == 1)
        return true;
    if (m_sign == 1 && other.m_sign == -1)
        return false;
    const int order = Compare(m_digits, other.m_digits);
    return m_sign == -1 && other.m_sign == -1 ? order > 0 : order < 0;
}

bool CBigInteger::operator<=(const CBigInteger& other) const { return !(other < *this); }

bool CBigInteger::operator>(const CBigInteger& other) const { return other < *this; }

bool CBigInteger::operator>=(const CBigInteger& other) const { return !(*this < other); }

CBigInteger::operator int() const {
    if (*this < MIN_LONG || *this > MAX_LONG)
        Throw<CKzInvalidValueException>(messages::OutOfBoundOfInt);
    return static_cast<int>(static_cast<long long>(*this));
}

CBigInteger::operator long long() const {
    if (*this < MIN_LONGLONG || *this > MAX_LONGLONG)
        Throw<CKzInvalidValueException>(messages::OutOfBoundOfLongLong);
    // Unsigned, as the magnitude of the most negative value has no signed form.
    std::uint64_t magnitude = 0;
    for (auto digit = m_digits.rbegin(); digit != m_digits.rend(); ++digit)
        magnitude = magnitude * 10 + *digit;
    return static_cast<long long>(m_sign == -1 ? 0 - magnitude : magnitude);
}

CBigInteger CBigInteger::SquareRoot() const {
    if (m_sign == -1)
        Throw<CKzInvalidValueException>(messages::NegativeSquareRoot);
    // Newton's method, from a power of ten above the root: one more than the value holds factors of 100.
    const std::size_t hundreds = m_sign == 1 ? (Position(m_digits) - 1) / 2 : 0;
    CBigInteger next = Pow10(static_cast<std::uint32_t>(hundreds + 1));
    CBigInteger root;
    do {
        root = next;
        // Deliberate: for a value of zero the root falls to zero, and this division throws.
        next = (root + *this / root) / 2;
    } while (next < root);
    return root;
}

CBigInteger CBigInteger::Pow10(std::uint32_t exponent) {
    CBigInteger power;
    Pow10(exponent, power.m_digits);
    return power;
}

void CBigInteger::Build(std::uint32_t value, Digits& out) { BuildDWORDLONG(value, out); }

void CBigInteger::BuildDWORDLONG(std::uint64_t value, Digits& out) {
    char16_t digits[std::numeric_limits<std::uint64_t>::digits10 + 1];
    char16_t* end = digits;
    do {
        *end++ = static_cast<char16_t>(value % 10);
        value /= 10;
    } while (value != 0);
    out.assign(digits, end);
}

void CBigInteger::BuildDouble(double value, Digits& out) {
    if (std::isinf(value))
        Throw<CKzInvalidValueException>(messages::InfiniteInteger);
    out.clear();
    double rest = std::ceil(value - 0.5);
    while (rest > 0) {
        out.push_back(static_cast<char16_t>(std::fmod(rest, 10.0)));
        std::modf(rest / 10.0, &rest);
    }
    Clean(out);
}

void CBigInteger::Build(std::u16string_view text, Digits& out) {
    const auto end = std::find_if_not(text.rbegin(), text.rend(), IsDigit);
    out.resize(static_cast<std::size_t>(end - text.rbegin()));
    std::transform(text.rbegin(), end, out.begin(),
                   [](char16_t unit) { return static_cast<char16_t>(unit - u'0'); });
    Clean(out);
}

void CBigInteger::Clean(Digits& digits) {
    while (!digits.empty() && digits.back() == 0)
        digits.pop_back();
    if (digits.empty())
        digits.push_back(0);
}

int CBigInteger::Compare(const Digits& a, const Digits& b) {
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    const auto [digitOfA, digitOfB] = std::mismatch(a.rbegin(), a.rend(), b.rbegin());
    return digitOfA == a.rend() ? 0 : *digitOfA < *digitOfB ? -1 : 1;
}

std::size_t CBigInteger::Position(const Digits& digits) { return std::max<std::size_t>(digits.size(), 1); }

void CBigInteger::Add(const Digits& a, const Digits& b, Digits& out) {
    const Digits& longer = a.size() < b.size() ? b : a;
    const Digits& shorter = a.size() < b.size() ? a : b;
    const std::size_t length = longer.size();
    const std::size_t overlap = shorter.size(); // before the result grows, which may be this operand
    out.resize(length);
    unsigned carry = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const unsigned sum = longer[i] + (i < overlap ? shorter[i] : 0u) + carry;
        carry = sum >= 10;
        out[i] = static_cast<char16_t>(sum - carry * 10);
    }
    if (carry)
        out.push_back(1);
    Clean(out);
}

void CBigInteger::Subtract(const Digits& a, const Digits& b, Digits& out) {
    const std::size_t length = a.size();
    const std::size_t overlap = std::min(length, b.size());
    out.resize(length);
    unsigned borrow = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const unsigned difference = a[i] + 10u - (i < overlap ? b[i] : 0u) - borrow;
        borrow = difference < 10;
        out[i] = static_cast<char16_t>(borrow ? difference : difference - 10);
    }
    Clean(out);
}

void CBigInteger::Multiply(const Digits& a, std::uint16_t digit, Digits& out) {
    out.resize(a.size());
    unsigned carry = 0;
    for (std::size_t i = 0; i < out.size(); ++i) {
        carry += static_cast<unsigned>(a[i]) * digit;
        out[i] = static_cast<char16_t>(carry % 10);
        carry /= 10;
    }
    out.push_back(static_cast<char16_t>(carry));
    Clean(out);
}

void CBigInteger::Multiply(const Digits& a, const Digits& b, Digits& out) {
    // Low zeros are set aside, so that powers of ten cost no more than a shift.
    const std::size_t zerosOfA = LowZeros(a);
    const std::size_t zerosOfB = LowZeros(b);
    if (zerosOfA == a.size() || zerosOfB == b.size()) {
        out.assign(1, 0);
        return;
    }
    const Limbs product = MultiplyLimbs(ToLimbsAbove(a, zerosOfA), ToLimbsAbove(b, zerosOfB));
    out.assign(zerosOfA + zerosOfB, 0);
    AppendDigits(product, out);
}

void CBigInteger::Divide(const Digits& a, const Digits& b, Digits& quotient, Digits& remainder) {
    // The digits of the dividend below the low zeros of the divisor go into the remainder as they are.
    const std::size_t zeros = LowZeros(b);
    if (zeros == b.size())
        Throw<CKzInvalidValueException>(messages::OverflowInDivide);
    if (Compare(a, b) < 0) {
        remainder = a;
        quotient.assign(1, 0);
        return;
    }
    const LimbQuotient high = DivideLimbs(ToLimbsAbove(a, zeros), ToLimbsAbove(b, zeros));
    Digits rest(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(zeros));
    AppendDigits(high.remainder, rest);
    Clean(rest);
    remainder = std::move(rest);
    quotient.clear();
    AppendDigits(high.quotient, quotient);
    Clean(quotient);
}

void CBigInteger::ShiftLeft(Digits& digits, std::uint32_t places) {
    if (LowZeros(digits) == digits.size())
        return;
    if (places > largestPowerOfTen)
        Throw<CKzInvalidValueException>(messages::PowerOfTenTooLarge, places, largestPowerOfTen);
    digits.insert(digits.begin(), places, 0);
}

void CBigInteger::Pow10(std::uint32_t exponent, Digits& out) {
    out.assign(1, 1);
    ShiftLeft(out, exponent);
}

bool CBigInteger::IsZero() const { return m_digits.empty() || (m_digits.size() == 1 && m_digits[0] == 0); }

int CBigInteger::Signum() const { return IsZero() ? 0 : m_sign == -1 ? -1 : 1; }

} // namespace KzXmlLib10
