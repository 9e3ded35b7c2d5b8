#pragma once

#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/values/CBigInteger.h>

#include <cstdint>
#include <string>

namespace KzXmlLib10 {

/// A decimal number held exactly: the value of the XML Schema type decimal.
///
///     CDecimal price(u"19.99");
///     price *= CDecimal(u"1.2");
///     std::u16string text = price.ToString(2); // 23.99
///
/// Fixed point: an integer part of any size and up to GetMaxDecimalPlaces fractional digits. What a text, a
/// product or a quotient has beyond them is rounded to nearest, a half towards zero. A value; independent of
/// every other, not locked. Failures are CKzInvalidValueException, those of conversions
/// CKzOverFlowException.
///
/// Deliberate: a fraction that rounds up to a whole unit is not carried, so 0.99 at one place prints as
/// 0.10; ToString(int) rounds a half away from zero; ToLong and ToLongLong round at different places.
class QUILLON_EXPORT CDecimal {
public:
    /// Zero.
    CDecimal();
    CDecimal(int value);
    CDecimal(long value);
    CDecimal(long long value);
    /// The value in fixed notation with 13 fractional digits. Infinity and NaN throw.
    CDecimal(double value);
    CDecimal(const CBigInteger& value);
    /// Reads digits, with an optional point and an optional exponent after e or E; an empty text is zero.
    /// Throws with the position of the first character that does not fit, and on an exponent above
    /// Limits::decimalExponent of a value other than zero.
    ///
    /// Deliberate: wider than the lexical form of the schema type. Whitespace is skipped up to the exponent,
    /// and a sign may stand anywhere before the point, the last one counting: 1 2.5- is no number, but
    /// 1 2- is -12.
    CDecimal(const char16_t* text);
    CDecimal(const CDecimal& other);
    /// Leaves `other` to be assigned or destroyed.
    CDecimal(CDecimal&& other) noexcept;
    CDecimal& operator=(const CDecimal& other);
    CDecimal& operator=(CDecimal&& other) noexcept;
    virtual ~CDecimal();

    /// The shortest exact text, without a point for a whole number.
    ///
    /// Deliberate: a text with a point is cut to 1024 characters.
    std::u16string ToString() const;

    /// The text rounded to `places` fractional digits, a half away from zero. A negative count is 0.
    ///
    /// Deliberate: 0 places leave the point at the end, as in 2., and a sum of value and half a unit that
    /// ends in zeros gives fewer digits, as 2.0 for 1.995 at two places.
    std::u16string ToString(int places) const;

    /// Rounded to the nearest integer, a half towards zero. Throws outside 32 bits.
    long ToLong() const;
    /// Deliberate: rounded to one place and truncated, so 1.96 gives 1. Throws outside 64 bits.
    long long ToLongLong() const;
    /// The nearest double. Throws beyond 1.7E+308 on either side.
    double ToDouble() const;
    /// Rounded to the nearest integer, a half towards zero.
    CBigInteger ToBigInteger() const;

    /// Turns the sign, in a copy and in place.
    CDecimal GetNegative() const;
    void Negate();

    /// Sums and differences are exact; products and quotients are rounded to the maximum of places, quotients
    /// from two more places. A divisor of zero throws.
    CDecimal operator+(const CDecimal& other) const;
    CDecimal operator-(const CDecimal& other) const;
    CDecimal operator*(const CDecimal& other) const;
    CDecimal operator/(const CDecimal& other) const;
    CDecimal& operator+=(const CDecimal& other);
    CDecimal& operator-=(const CDecimal& other);
    CDecimal& operator*=(const CDecimal& other);
    CDecimal& operator/=(const CDecimal& other);

    CDecimal& operator++();
    CDecimal operator++(int);
    CDecimal& operator--();
    CDecimal operator--(int);

    /// By value: zero equals zero, whatever their signs.
    bool operator==(const CDecimal& other) const;
    bool operator!=(const CDecimal& other) const;
    bool operator<(const CDecimal& other) const;
    bool operator<=(const CDecimal& other) const;
    bool operator>(const CDecimal& other) const;
    bool operator>=(const CDecimal& other) const;

    /// The maximum of fractional digits that a new value keeps, 30 at start, for the whole process. Not
    /// locked: set it before threads use decimals. Any number is stored; 0 to 4,096 have an effect, and what
    /// lies outside acts as the nearer of the two.
    static std::int32_t GetMaxDecimalPlaces();
    static void SetMaxDecimalPlaces(std::int32_t places);

private:
    CDecimal(CBigInteger integral, CBigInteger fractional, std::int32_t divider);

    /// `value` divided by ten to the power of `places`, rounded to the maximum of places.
    static CDecimal FromScaled(CBigInteger value, std::int32_t places);
    /// The value times ten to the power of `m_divider`.
    CBigInteger Scaled() const;

    void Parse(const char16_t* text);
    bool ParsePlain(const char16_t* text);
    /// The operator * with ten to the power of `exponent`, as a shift. `text` is for the message.
    void MultiplyByPowerOfTen(long long exponent, const char16_t* text);
    /// The operator / with ten to the power of `exponent`, as a shift.
    void DivideByPowerOfTen(long long exponent);
    /// Drops trailing zeros of the fraction, down to one place.
    void Rationalise();
    /// Brings the fraction to that many places; rounds to nearest, a half towards zero.
    void ChangeFractionalDivider(std::int32_t places);
    /// Brings both values to the larger number of places, and returns it.
    static std::int32_t Normalize(CDecimal& a, CDecimal& b);
    /// Cuts the fraction to the maximum of places.
    void LimitPlaces();
    /// Moves one unit between the parts if a sum of fractions reaches a whole one.
    void CarryFraction();
    /// Moves one unit between the parts if they differ in sign.
    void AlignSigns();
    /// -1, 0 or 1 as `a` is below, equal to or above `b`.
    static int Compare(const CDecimal& a, const CDecimal& b);
    bool HasMinusSign() const;
    /// The digits after the point.
    void AppendFraction(std::u16string& text) const;
    bool IsExactWithin(int places) const;

    CBigInteger m_integral;
    CBigInteger m_fractional;
    std::int32_t m_divider;

    static std::int32_t m_maxDivider;
};

} // namespace KzXmlLib10
