#include <KzXmlLib10/values/CDecimal.h>

#include <KzXmlLib10/object/FormatString.h>

#include "object/CurrentLimit.h"
#include "object/Digit.h"
#include "object/NotNull.h"
#include "object/Throw.h"
#include "values/DecimalReader.h"
#include "values/Messages.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

namespace KzXmlLib10 {

// How values are held, as { integral, fractional, divider }:
//
//    1.05 = {  1,  5, 2 }
//   -2.5  = { -2, -5, 1 }
//   -0.5  = { -0, -5, 1 }   the negative zero keeps the sign
//    7    = {  7,  0, 1 }
//    0.99 = {  0, 10, 1 }   cut to one place: the full unit is not carried

namespace {

using Digits = CBigInteger::Digits;

constexpr int largestPlaces = 4'096;
constexpr int guardPlaces = 2;
constexpr std::size_t longestText = 1024;
constexpr std::ptrdiff_t longestPlainText = 1024;

/// Takes the low digits out and leaves the others.
Digits TakeLow(Digits& digits, std::size_t places) {
    const auto cut = digits.begin() + static_cast<std::ptrdiff_t>(std::min(places, digits.size()));
    Digits low(digits.begin(), cut);
    digits.erase(digits.begin(), cut);
    CBigInteger::Clean(digits);
    return low;
}

/// Whether the digits taken out are more than half a unit of those left.
bool IsAboveHalf(const Digits& low, std::size_t places) {
    if (low.size() < places || low.back() < 5)
        return false;
    return low.back() > 5 ||
           std::any_of(low.begin(), low.end() - 1, [](char16_t digit) { return digit != 0; });
}

/// Writes digits up to a place in a text.
void PutDigits(char16_t* end, const Digits& digits) {
    for (const char16_t digit : digits)
        *--end = static_cast<char16_t>(u'0' + digit);
}

void AppendDigits(std::u16string& text, const Digits& digits) {
    std::transform(digits.rbegin(), digits.rend(), std::back_inserter(text),
                   [](std::uint16_t digit) { return static_cast<char16_t>(u'0' + digit); });
}

/// Makes the digits of text that is nothing else.
void TakeDigits(std::u16string_view text, Digits& digits) {
    text.remove_prefix(std::min(text.find_first_not_of(u'0'), text.size()));
    if (text.empty())
        text = u"0";
    digits.resize(text.size());
    std::transform(text.rbegin(), text.rend(), digits.begin(),
                   [](char16_t unit) { return static_cast<char16_t>(unit - u'0'); });
}

int MaxPlaces() { return std::clamp(CDecimal::GetMaxDecimalPlaces(), 0, largestPlaces); }

} // namespace

// Set before any code runs, as the limits of CBigInteger are parsed with it at load time.
constinit std::int32_t CDecimal::m_maxDivider = 30;

CDecimal::CDecimal() : m_divider(1) {}

CDecimal::CDecimal(int value) : m_integral(value), m_divider(1) {}

CDecimal::CDecimal(long value) : m_integral(value), m_divider(1) {}

CDecimal::CDecimal(long long value) : m_integral(value), m_divider(1) {}

CDecimal::CDecimal(double value) : m_divider(1) { Parse(FormatString(u"%.13f\n", value).c_str()); }

CDecimal::CDecimal(const CBigInteger& value) : m_integral(value), m_divider(1) {}

CDecimal::CDecimal(const char16_t* text) : m_divider(1) { Parse(text); }

CDecimal::CDecimal(CBigInteger integral, CBigInteger fractional, std::int32_t divider)
    : m_integral(std::move(integral)), m_fractional(std::move(fractional)), m_divider(divider) {}

CDecimal::CDecimal(const CDecimal& other) = default;
CDecimal::CDecimal(CDecimal&& other) noexcept = default;
CDecimal& CDecimal::operator=(const CDecimal& other) = default;
CDecimal& CDecimal::operator=(CDecimal&& other) noexcept = default;
CDecimal::~CDecimal() = default;

CDecimal CDecimal::FromScaled(CBigInteger value, std::int32_t places) {
    const std::int32_t sign = value.IsZero() ? 1 : value.m_sign;
    Digits low = TakeLow(value.m_digits, static_cast<std::size_t>(places));
    CDecimal result(CBigInteger(sign, std::move(value.m_digits)), CBigInteger(sign, std::move(low)), places);
    if (result.m_fractional.IsZero())
        result.m_fractional.m_sign = 1;
    result.Rationalise();
    result.LimitPlaces();
    return result;
}

CBigInteger CDecimal::Scaled() const {
    CBigInteger scaled(m_integral);
    CBigInteger::ShiftLeft(scaled.m_digits, static_cast<std::uint32_t>(m_divider));
    return scaled += m_fractional;
}

/// Takes the text if it is digits with at most one point among them, as most are. False, and nothing is
/// changed, for any other.
bool CDecimal::ParsePlain(const char16_t* text) {
    const auto skipDigits = [](const char16_t* at) {
        while (IsDigit(*at))
            ++at;
        return at;
    };
    const char16_t* const point = skipDigits(text);
    const char16_t* const fraction = *point == u'.' ? point + 1 : point;
    const char16_t* const end = skipDigits(fraction);
    if (*end || end - text > longestPlainText)
        return false;
    TakeDigits({text, point}, m_integral.m_digits);
    TakeDigits({fraction, end}, m_fractional.m_digits);
    m_divider = std::max(1, static_cast<int>(end - fraction));
    return true;
}

void CDecimal::Parse(const char16_t* text) {
    if (ParsePlain(NotNull(text, u"text"))) {
        Rationalise();
        LimitPlaces();
        return;
    }
    DecimalReader reader(text);
    const DecimalText& parts = reader.Read();
    CBigInteger::Build(parts.integerDigits, m_integral.m_digits);
    CBigInteger::Build(parts.fractionDigits, m_fractional.m_digits);
    m_divider = std::max(1, static_cast<int>(parts.fractionDigits.size()));
    if (parts.negative)
        Negate();
    if (parts.hasExponent && !parts.exponentNegative)
        MultiplyByPowerOfTen(parts.exponent, text);
    else if (parts.hasExponent)
        DivideByPowerOfTen(parts.exponent);
    // Deliberate: in this order, so zeros that the limit leaves at the end stay.
    Rationalise();
    LimitPlaces();
}

void CDecimal::MultiplyByPowerOfTen(long long exponent, const char16_t* text) {
    CBigInteger scaled = Scaled();
    if (!scaled.IsZero()) {
        if (const auto limit = static_cast<long long>(CurrentLimit(&Limits::decimalExponent));
            exponent > limit)
            Throw<CKzInvalidValueException>(messages::ExponentOfDecimalTooLarge, limit, text);
        CBigInteger::ShiftLeft(scaled.m_digits, static_cast<std::uint32_t>(exponent));
    }
    *this = FromScaled(std::move(scaled), m_divider);
}

void CDecimal::DivideByPowerOfTen(long long exponent) {
    const int places = MaxPlaces() + guardPlaces;
    CBigInteger scaled = Scaled();
    const long long shift = places - m_divider - exponent;
    if (shift >= 0)
        CBigInteger::ShiftLeft(scaled.m_digits, static_cast<std::uint32_t>(shift));
    else
        TakeLow(scaled.m_digits, static_cast<std::size_t>(-shift));
    *this = FromScaled(std::move(scaled), places);
}

void CDecimal::Rationalise() {
    if (m_divider <= 1)
        return;
    if (m_fractional.IsZero()) {
        m_fractional = CBigInteger();
        m_divider = 1;
        return;
    }
    Digits& digits = m_fractional.m_digits;
    std::ptrdiff_t zeros = 0;
    while (digits[static_cast<std::size_t>(zeros)] == 0 && zeros < m_divider - 1)
        ++zeros;
    digits.erase(digits.begin(), digits.begin() + zeros);
    m_divider -= static_cast<std::int32_t>(zeros);
}

void CDecimal::ChangeFractionalDivider(std::int32_t places) {
    const std::int32_t dropped = m_divider - places;
    m_divider = places;
    if (dropped <= 0) {
        CBigInteger::ShiftLeft(m_fractional.m_digits, static_cast<std::uint32_t>(-dropped));
        return;
    }
    if (m_fractional.IsZero()) {
        m_fractional = CBigInteger();
        return;
    }
    const CBigInteger correction(m_fractional.m_sign == -1 ? -1 : 1);
    const Digits low = TakeLow(m_fractional.m_digits, static_cast<std::size_t>(dropped));
    if (!IsAboveHalf(low, static_cast<std::size_t>(dropped)))
        return;
    if (places == 0) {
        m_integral += correction;
        return;
    }
    // Deliberate: a fraction that becomes a whole unit here stays in the fraction.
    m_fractional += correction;
    AlignSigns();
}

std::int32_t CDecimal::Normalize(CDecimal& a, CDecimal& b) {
    const std::int32_t places = std::max(a.m_divider, b.m_divider);
    a.ChangeFractionalDivider(places);
    b.ChangeFractionalDivider(places);
    return places;
}

void CDecimal::LimitPlaces() {
    if (m_divider > MaxPlaces())
        ChangeFractionalDivider(MaxPlaces());
}

void CDecimal::CarryFraction() {
    const auto places = static_cast<std::uint32_t>(m_divider);
    if (m_fractional.IsZero() || CBigInteger::Position(m_fractional.m_digits) <= places)
        return;
    if (m_fractional.m_sign == -1) {
        m_fractional += CBigInteger::Pow10(places);
        m_integral -= 1;
    } else {
        m_fractional -= CBigInteger::Pow10(places);
        m_integral += 1;
    }
}

void CDecimal::AlignSigns() {
    const int integral = m_integral.Signum();
    const int fractional = m_fractional.Signum();
    if (integral > 0 && fractional < 0) {
        m_fractional += CBigInteger::Pow10(static_cast<std::uint32_t>(m_divider));
        m_integral -= 1;
    } else if (integral < 0 && fractional > 0) {
        m_fractional -= CBigInteger::Pow10(static_cast<std::uint32_t>(m_divider));
        m_integral += 1;
    }
    if (m_integral.IsZero())
        m_integral.m_sign = m_fractional.m_sign;
}

void CDecimal::AppendFraction(std::u16string& text) const {
    if (const auto places = static_cast<std::size_t>(m_divider); m_fractional.m_digits.size() < places)
        text.append(places - m_fractional.m_digits.size(), u'0');
    AppendDigits(text, m_fractional.m_digits);
}

/// Whether nothing stands behind so many places and nothing wants a carry.
bool CDecimal::IsExactWithin(int places) const {
    return m_divider <= places && m_fractional.m_digits.size() <= static_cast<std::size_t>(m_divider);
}

bool CDecimal::HasMinusSign() const { return m_integral.m_sign == -1; }

std::u16string CDecimal::ToString() const {
    if (m_fractional.IsZero())
        return m_integral.ToString();
    std::u16string text = HasMinusSign() ? u"-" : u"";
    AppendDigits(text, m_integral.m_digits);
    AppendFraction(text += u'.');
    // Deliberate: a text with a point has at most 1024 characters.
    text.resize(std::min(text.size(), longestText));
    return text;
}

std::u16string CDecimal::ToString(int places) const {
    places = std::max(places, 0);
    if (places < MaxPlaces() && IsExactWithin(places)) { // half a unit more would change no digit
        const std::size_t point = HasMinusSign() + m_integral.m_digits.size();
        std::u16string text(point + 1 + static_cast<std::size_t>(places), u'0');
        text.front() = u'-'; // unless a digit takes its place
        PutDigits(&text[point], m_integral.m_digits);
        text[point] = u'.';
        PutDigits(&text[point] + 1 + m_divider, m_fractional.m_digits);
        return text;
    }
    // Half a unit; beyond the maximum of places it rounds to nothing.
    const std::int32_t sign = HasMinusSign() ? -1 : 1;
    CDecimal sum(CBigInteger(sign, {0}), CBigInteger(sign, {0}), 1);
    if (places < MaxPlaces())
        sum = CDecimal(CBigInteger(sign, {0}), CBigInteger(sign, {5}), places + 1);
    sum += *this;
    std::u16string text = sum.HasMinusSign() ? u"-" : u"";
    AppendDigits(text, sum.m_integral.m_digits);
    const std::size_t point = text.size();
    sum.AppendFraction(text += u'.');
    // Deliberate: a sum that ends in zeros has fewer digits than were asked for.
    text.resize(std::min(text.size(), point + 1 + static_cast<std::size_t>(places)));
    return text;
}

long CDecimal::ToLong() const {
    const CBigInteger rounded = ToBigInteger();
    if (rounded < CBigInteger::MIN_LONG || rounded > CBigInteger::MAX_LONG)
        Throw<CKzOverFlowException>(messages::DecimalTooLargeForLong);
    return static_cast<int>(rounded);
}

long long CDecimal::ToLongLong() const {
    // Deliberate: one place, unlike ToLong. What rounds up to a whole unit stays in the fraction and is lost.
    CDecimal rounded(*this);
    rounded.ChangeFractionalDivider(1);
    if (rounded.m_integral < CBigInteger::MIN_LONGLONG || rounded.m_integral > CBigInteger::MAX_LONGLONG)
        Throw<CKzOverFlowException>(messages::DecimalTooLargeForLongLong);
    return static_cast<long long>(rounded.m_integral);
}

double CDecimal::ToDouble() const {
    if (*this < CBigInteger::MIN_DOUBLE || *this > CBigInteger::MAX_DOUBLE)
        Throw<CKzOverFlowException>(messages::DecimalTooLargeForDouble);
    const std::u16string text = ToString();
    const std::string digits(text.begin(), text.end());
    double value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

CBigInteger CDecimal::ToBigInteger() const {
    CDecimal rounded(*this);
    rounded.ChangeFractionalDivider(0);
    return std::move(rounded.m_integral);
}

CDecimal CDecimal::GetNegative() const {
    CDecimal negative(*this);
    negative.Negate();
    return negative;
}

void CDecimal::Negate() {
    m_integral.Negate();
    m_fractional.Negate();
}

CDecimal CDecimal::operator+(const CDecimal& other) const {
    CDecimal sum(*this);
    CDecimal addend(other);
    Normalize(sum, addend);
    sum.m_integral += addend.m_integral;
    sum.m_fractional += addend.m_fractional;
    sum.CarryFraction();
    sum.AlignSigns();
    sum.Rationalise();
    return sum;
}

CDecimal CDecimal::operator-(const CDecimal& other) const { return *this + other.GetNegative(); }

CDecimal CDecimal::operator*(const CDecimal& other) const {
    return FromScaled(Scaled() * other.Scaled(), m_divider + other.m_divider);
}

CDecimal CDecimal::operator/(const CDecimal& other) const {
    CDecimal dividend(*this);
    CDecimal divisor(other);
    Normalize(dividend, divisor);
    const int places = MaxPlaces() + guardPlaces;
    CBigInteger scaled = dividend.Scaled();
    CBigInteger::ShiftLeft(scaled.m_digits, static_cast<std::uint32_t>(places));
    return FromScaled(scaled / divisor.Scaled(), places);
}

CDecimal& CDecimal::operator+=(const CDecimal& other) { return *this = *this + other; }

CDecimal& CDecimal::operator-=(const CDecimal& other) { return *this = *this - other; }

CDecimal& CDecimal::operator*=(const CDecimal& other) { return *this = *this * other; }

CDecimal& CDecimal::operator/=(const CDecimal& other) { return *this = *this / other; }

CDecimal& CDecimal::operator++() { return *this += 1; }

CDecimal CDecimal::operator++(int) {
    CDecimal before(*this);
    ++*this;
    return before;
}

CDecimal& CDecimal::operator--() { return *this -= 1; }

CDecimal CDecimal::operator--(int) {
    CDecimal before(*this);
    --*this;
    return before;
}

int CDecimal::Compare(const CDecimal& a, const CDecimal& b) {
    // Equality comes first, so that the sign of a zero decides nothing.
    if (a.m_integral != b.m_integral)
        return a.m_integral < b.m_integral ? -1 : 1;
    if (a.m_divider != b.m_divider) {
        CDecimal left(a);
        CDecimal right(b);
        Normalize(left, right);
        return Compare(left, right);
    }
    if (a.m_fractional != b.m_fractional)
        return a.m_fractional < b.m_fractional ? -1 : 1;
    return 0;
}

bool CDecimal::operator==(const CDecimal& other) const { return Compare(*this, other) == 0; }

bool CDecimal::operator!=(const CDecimal& other) const { return Compare(*this, other) != 0; }

bool CDecimal::operator<(const CDecimal& other) const { return Compare(*this, other) < 0; }

bool CDecimal::operator<=(const CDecimal& other) const { return Compare(*this, other) <= 0; }

bool CDecimal::operator>(const CDecimal& other) const { return Compare(*this, other) > 0; }

bool CDecimal::operator>=(const CDecimal& other) const { return Compare(*this, other) >= 0; }

std::int32_t CDecimal::GetMaxDecimalPlaces() { return m_maxDivider; }

void CDecimal::SetMaxDecimalPlaces(std::int32_t places) { m_maxDivider = places; }

} // namespace KzXmlLib10
