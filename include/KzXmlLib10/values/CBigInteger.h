#pragma once

#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// An integer of any size: the value of the XML Schema type integer and of its unbounded derived types.
///
///     CBigInteger total(u"123456789012345678901234567890");
///     total += 1;
///     std::u16string text = total.ToString();
///
/// Held as a sign and decimal digits, so that text needs no change of base: parsing and printing take linear
/// time, products and quotients the school method. A value; independent of every other, not locked.
/// Failures are CKzInvalidValueException, and std::bad_alloc.
///
/// Deliberate: zero keeps its sign, so -0 equals 0 and is less than 0 at once; unary minus changes its
/// operand; `/` takes a negative divisor, which `%`, `/=` and `%=` refuse; a negative product of `*=` loses
/// its sign.
class QUILLON_EXPORT CBigInteger {
public:
    /// Decimal digits 0 to 9, one in each unit, least significant first. Not their characters: a string holds
    /// them because it needs no heap for the few that most numbers have.
    using Digits = std::u16string;

    /// Zero.
    CBigInteger();
    CBigInteger(int value);
    CBigInteger(long value);
    CBigInteger(long long value);
    /// The nearest integer, a half towards zero, with the digits that repeated division by 10.0 gives.
    /// NaN gives zero; infinity throws.
    CBigInteger(double value);
    /// Rounds to the nearest integer, a half towards zero.
    CBigInteger(const CDecimal& value);
    /// Reads `text` as Parse does.
    CBigInteger(const char16_t* text);
    /// The sign, +1 or -1, and the digits, high zeros of which are dropped.
    CBigInteger(std::int32_t sign, Digits digits);
    CBigInteger(const CBigInteger& other);
    /// Leaves `other` to be assigned or destroyed.
    CBigInteger(CBigInteger&& other) noexcept;
    CBigInteger& operator=(const CBigInteger& other);
    CBigInteger& operator=(CBigInteger&& other) noexcept;
    virtual ~CBigInteger();

    /// Reads decimal digits with an optional sign in front and spaces around; an empty text is zero. A text
    /// with any other character, such as a point or an exponent, is read as a CDecimal and rounded.
    ///
    /// Deliberate: digits count from the end up to the first character that is none, so 12-3 reads as 3.
    void Parse(const char16_t* text);

    /// The digits, with a minus sign in front of a negative value; zero has none.
    std::u16string ToString() const;

    /// Drops the sign, in place and in a copy.
    void Abs();
    CBigInteger GetAbs() const;

    /// Turns the sign, in place and in a copy.
    void Negate();
    CBigInteger GetNegative() const;

    /// Deliberate: turns the sign of the operand itself, and returns it.
    CBigInteger& operator-();

    /// Exact. The quotient is truncated towards zero, and the remainder has the sign of the dividend.
    /// `/` throws on a divisor of zero, `%` also on a negative one.
    CBigInteger operator+(const CBigInteger& other) const;
    CBigInteger operator-(const CBigInteger& other) const;
    CBigInteger operator*(const CBigInteger& other) const;
    CBigInteger operator/(const CBigInteger& other) const;
    CBigInteger operator%(const CBigInteger& other) const;

    /// As above, except that `/=` throws on a negative divisor too, and that `*=` leaves a negative product
    /// with a sign that is neither + nor -: it prints without a sign and compares by magnitude.
    CBigInteger& operator+=(const CBigInteger& other);
    CBigInteger& operator-=(const CBigInteger& other);
    CBigInteger& operator*=(const CBigInteger& other);
    CBigInteger& operator/=(const CBigInteger& other);
    CBigInteger& operator%=(const CBigInteger& other);

    bool operator==(const CBigInteger& other) const;
    bool operator!=(const CBigInteger& other) const;
    bool operator<(const CBigInteger& other) const;
    bool operator<=(const CBigInteger& other) const;
    bool operator>(const CBigInteger& other) const;
    bool operator>=(const CBigInteger& other) const;

    /// The value as a machine integer; throws if it lies outside.
    operator int() const;
    operator long long() const;

    // With a machine integer on the right, the conversions above would compete with the constructors.
    CBigInteger operator+(std::signed_integral auto other) const { return *this + CBigInteger(other); }
    CBigInteger operator-(std::signed_integral auto other) const { return *this - CBigInteger(other); }
    CBigInteger operator*(std::signed_integral auto other) const { return *this * CBigInteger(other); }
    CBigInteger operator/(std::signed_integral auto other) const { return *this / CBigInteger(other); }
    CBigInteger operator%(std::signed_integral auto other) const { return *this % CBigInteger(other); }
    bool operator==(std::signed_integral auto other) const { return *this == CBigInteger(other); }
    bool operator!=(std::signed_integral auto other) const { return *this != CBigInteger(other); }
    bool operator<(std::signed_integral auto other) const { return *this < CBigInteger(other); }
    bool operator<=(std::signed_integral auto other) const { return *this <= CBigInteger(other); }
    bool operator>(std::signed_integral auto other) const { return *this > CBigInteger(other); }
    bool operator>=(std::signed_integral auto other) const { return *this >= CBigInteger(other); }

    /// The largest integer whose square is not above the value. Throws on a negative value.
    ///
    /// Deliberate: throws on zero too, with the message of a division by zero.
    CBigInteger SquareRoot() const;

    /// Ten to the power of `exponent`, which is at most 100,000,000; throws above it.
    static CBigInteger Pow10(std::uint32_t exponent);

    static const CBigInteger MAX_LONG;
    static const CBigInteger MIN_LONG;
    static const CBigInteger MAX_LONGLONG;
    static const CBigInteger MIN_LONGLONG;
    static const CBigInteger MAX_DOUBLE;
    static const CBigInteger MIN_DOUBLE;

    // The work on digits alone. Every unit that goes in is 0 to 9, and every result is clean. A result may
    // be one of the operands.

    /// The digits of a number.
    static void Build(std::uint32_t value, Digits& out);
    static void BuildDWORDLONG(std::uint64_t value, Digits& out);
    /// The digits of the nearest integer, a half towards zero, of a value from 0; throws on infinity.
    static void BuildDouble(double value, Digits& out);
    /// The run of decimal digits at the end of a text.
    static void Build(std::u16string_view text, Digits& out);

    /// Drops high zeros, down to one digit. Of no digits, it makes one 0.
    static void Clean(Digits& digits);
    /// -1, 0 or 1 as `a` is below, equal to or above `b`.
    static int Compare(const Digits& a, const Digits& b);
    /// The number of digits, at least 1.
    static std::size_t Position(const Digits& digits);

    static void Add(const Digits& a, const Digits& b, Digits& out);
    /// `a` is at least `b`.
    static void Subtract(const Digits& a, const Digits& b, Digits& out);
    /// `digit` is 0 to 9.
    static void Multiply(const Digits& a, std::uint16_t digit, Digits& out);
    static void Multiply(const Digits& a, const Digits& b, Digits& out);
    /// Throws on a divisor of zero.
    static void Divide(const Digits& a, const Digits& b, Digits& quotient, Digits& remainder);

    /// Multiplies by ten to the power of `places`, which is at most 100,000,000; throws above it.
    static void ShiftLeft(Digits& digits, std::uint32_t places);
    static void Pow10(std::uint32_t exponent, Digits& out);

private:
    friend class CDecimal;

    /// Whether the digits are those of zero, with any sign.
    bool IsZero() const;
    /// -1, 0 or 1, where zero is 0 with any sign.
    int Signum() const;
    /// The sum with a number of that sign and those digits, in place.
    void AddSigned(std::int32_t sign, const Digits& digits);
    /// Quotient and remainder without the tests of the operators; zero if this is zero.
    CBigInteger Quotient(const CBigInteger& divisor) const;
    CBigInteger Remainder(const CBigInteger& divisor) const;

    std::int32_t m_sign;
    Digits m_digits;
};

} // namespace KzXmlLib10
