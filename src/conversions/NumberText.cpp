#include "conversions/NumberText.h"

#include "object/Digit.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>
#include <system_error>

namespace KzXmlLib10 {

namespace {

bool IsSpace(char16_t unit) { return unit == u' ' || (unit >= u'\t' && unit <= u'\r'); }

/// Walks over a text; behind its end stands a NUL for ever.
class Cursor {
public:
    explicit Cursor(std::u16string_view text) : m_text(text) {}

    char16_t Peek() const { return m_at < m_text.size() ? m_text[m_at] : u'\0'; }
    std::size_t At() const { return m_at; }
    void GoTo(std::size_t at) { m_at = at; }
    std::u16string_view From(std::size_t start) const { return m_text.substr(start, m_at - start); }

    bool Skip(char16_t unit) {
        const bool there = m_at < m_text.size() && m_text[m_at] == unit;
        m_at += there;
        return there;
    }

    /// True for a minus.
    bool SkipSign() {
        if (Skip(u'-'))
            return true;
        Skip(u'+');
        return false;
    }

    template <class Test>
    std::u16string_view SkipWhile(Test test) {
        const std::size_t start = m_at;
        while (m_at < m_text.size() && test(m_text[m_at]))
            ++m_at;
        return From(start);
    }

private:
    std::u16string_view m_text;
    std::size_t m_at = 0;
};

char* CopyAscii(std::u16string_view from, char* to) {
    return std::transform(from.begin(), from.end(), to,
                          [](char16_t unit) { return static_cast<char>(unit); });
}

/// ASCII text as bytes, on the stack if it is short.
class Narrowed {
public:
    explicit Narrowed(std::u16string_view text) {
        char* to = m_short;
        if (text.size() > sizeof m_short) {
            m_long.resize(text.size());
            to = m_long.data();
        }
        m_begin = to;
        m_end = CopyAscii(text, to);
    }
    Narrowed(const Narrowed&) = delete;
    Narrowed& operator=(const Narrowed&) = delete;

    const char* begin() const { return m_begin; }
    const char* end() const { return m_end; }

private:
    char m_short[48];
    std::string m_long;
    const char* m_begin;
    const char* m_end;
};

/// As many digits make an integer that a double holds exactly.
constexpr std::size_t exactDigits = 15;

/// The parts of a real without its sign, such as 0 / 00250 / 3 for 0.00250e3.
struct Decimal {
    std::u16string_view whole;
    std::u16string_view fraction;
    std::int64_t exponent = 0;

    /// The value of up to exactDigits digits without an exponent: two numbers that are exact, so that their
    /// quotient is the nearest double.
    double ExactValue() const {
        constexpr double powersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                          1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
        std::int64_t digits = 0;
        for (const std::u16string_view part : {whole, fraction})
            for (const char16_t digit : part)
                digits = digits * 10 + (digit - u'0');
        return static_cast<double>(digits) / powersOfTen[fraction.size()];
    }

    /// Whether the value is 1 or more, for a value that is not zero. It decides where a number beyond the
    /// range of double went.
    bool IsLarge() const {
        const auto significant = whole.find_first_not_of(u'0');
        if (significant != whole.npos)
            return static_cast<std::int64_t>(whole.size() - significant) + exponent > 0;
        return exponent >
               static_cast<std::int64_t>(std::min(fraction.find_first_not_of(u'0'), fraction.size()));
    }
};

/// The exponent, if there is a whole one; saturated where no length of digits can make up for it.
std::int64_t ReadExponent(Cursor& cursor) {
    const std::size_t start = cursor.At();
    if (!cursor.Skip(u'e') && !cursor.Skip(u'E'))
        return 0;
    const bool negative = cursor.SkipSign();
    const std::u16string_view digits = cursor.SkipWhile(IsDigit);
    if (digits.empty()) {
        cursor.GoTo(start);
        return 0;
    }
    constexpr std::int64_t beyondAnyLength = std::numeric_limits<std::int64_t>::max() / 4;
    std::int64_t exponent = 0;
    const Narrowed narrow(digits);
    if (std::from_chars(narrow.begin(), narrow.end(), exponent).ec != std::errc())
        exponent = beyondAnyLength;
    exponent = std::min(exponent, beyondAnyLength);
    return negative ? -exponent : exponent;
}

/// Zeros and digits of a width or precision.
bool SkipShortNumber(Cursor& cursor) { return cursor.SkipWhile(IsDigit).size() <= 4; }

} // namespace

ScannedInteger ScanInteger(std::u16string_view text) {
    ScannedInteger result;
    Cursor cursor(text);
    cursor.SkipWhile(IsSpace);
    result.negative = cursor.SkipSign();
    const std::u16string_view digits = cursor.SkipWhile(IsDigit);
    if (digits.empty())
        cursor.GoTo(0);
    result.complete = cursor.Peek() == u'\0';
    constexpr std::size_t fitting = 19; // digits, of any number that fits
    if (digits.size() <= fitting) {
        for (const char16_t digit : digits)
            result.magnitude = result.magnitude * 10 + static_cast<unsigned>(digit - u'0');
        return result;
    }
    for (const char16_t digit : digits)
        if (__builtin_mul_overflow(result.magnitude, 10u, &result.magnitude) ||
            __builtin_add_overflow(result.magnitude, static_cast<unsigned>(digit - u'0'),
                                   &result.magnitude)) {
            result.tooLarge = true;
            break;
        }
    return result;
}

ScannedReal ScanReal(std::u16string_view text) {
    ScannedReal result;
    Cursor cursor(text);
    cursor.SkipWhile(IsSpace);
    const bool negative = cursor.SkipSign();
    const std::size_t start = cursor.At();
    Decimal parts;
    parts.whole = cursor.SkipWhile(IsDigit);
    if (cursor.Skip(u'.'))
        parts.fraction = cursor.SkipWhile(IsDigit);
    if (parts.whole.empty() && parts.fraction.empty()) {
        result.complete = text.empty() || text[0] == u'\0';
        return result;
    }
    parts.exponent = ReadExponent(cursor);
    result.complete = cursor.Peek() == u'\0';
    if (parts.exponent == 0 && parts.whole.size() + parts.fraction.size() <= exactDigits) {
        const double magnitude = parts.ExactValue();
        result.value = negative ? -magnitude : magnitude;
        return result;
    }
    const Narrowed narrow(cursor.From(start));
    double magnitude = 0;
    if (std::from_chars(narrow.begin(), narrow.end(), magnitude).ec == std::errc::result_out_of_range)
        magnitude = parts.IsLarge() ? std::numeric_limits<double>::infinity() : 0;
    result.value = negative ? -magnitude : magnitude;
    return result;
}

bool IsRealFormat(std::u16string_view format) {
    Cursor cursor(format);
    int conversions = 0;
    for (;;) {
        cursor.SkipWhile([](char16_t unit) { return unit != u'%' && unit != u'\0'; });
        if (!cursor.Skip(u'%'))
            return conversions == 1 && cursor.At() == format.size();
        if (cursor.Skip(u'%'))
            continue;
        cursor.SkipWhile([](char16_t unit) {
            return std::u16string_view(u"-+ #0").find(unit) != std::u16string_view::npos;
        });
        if (!SkipShortNumber(cursor) || (cursor.Skip(u'.') && !SkipShortNumber(cursor)))
            return false;
        cursor.Skip(u'l');
        const char16_t conversion = cursor.Peek();
        if (std::u16string_view(u"eEfgG").find(conversion) == std::u16string_view::npos)
            return false;
        ++conversions;
    }
}

} // namespace KzXmlLib10
