#include <KzXmlLib10/conversions/CConversions.h>

#include "conversions/FromText.h"
#include "conversions/Messages.h"
#include "conversions/NumberText.h"
#include "conversions/WorkingText.h"
#include "object/Throw.h"
#include "object/Utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <concepts>
#include <limits>
#include <string_view>
#include <type_traits>

namespace KzXmlLib10 {

namespace {

/// Integers and, with a style and a precision, reals, as std::to_chars writes them.
template <class... Style>
std::u16string WriteNumber(auto value, Style... style) {
    char digits[32];
    const char* end = std::to_chars(digits, digits + sizeof digits, value, style...).ptr;
    const std::string_view text(digits, static_cast<std::size_t>(end - digits));
    char16_t units[sizeof digits];
    WriteAscii(units, text);
    return std::u16string(units, text.size());
}

/// A number of at least two digits behind a prefix.
std::u16string WriteDatePart(std::u16string prefix, unsigned value) {
    if (value < 10)
        prefix += u'0';
    return prefix + WriteNumber(value);
}

/// True if sign and magnitude make a value of T. Unsigned types take any sign.
template <std::integral T>
bool IsInRange(const ScannedInteger& number) {
    std::uint64_t limit = std::numeric_limits<T>::max();
    if (std::is_signed_v<T> && number.negative)
        ++limit;
    return !number.tooLarge && number.magnitude <= limit;
}

/// The readers of the wide kinds. The message for the range comes before the one for the form.
template <std::integral T, const auto& TooLarge, const auto& Malformed>
T ReadInteger(std::u16string_view given, CWhitespaceUtils::WhitespaceRule rule) {
    const WorkingText text(given, rule);
    const ScannedInteger number = ScanInteger(text.Get());
    // Deliberate: a value below the lower limit is "to large" as well.
    if (!IsInRange<T>(number))
        Throw<CKzInvalidValueException>(TooLarge, text.c_str());
    if (!number.complete)
        Throw<CKzInvalidValueException>(Malformed, text.c_str());
    // Deliberate: an unsigned value with a minus is negated in its own width.
    return static_cast<T>(number.negative ? 0 - number.magnitude : number.magnitude);
}

/// The readers of the narrow kinds, on the value that the 32-bit reader gave.
/// Deliberate: the message shows the text from before the whitespace rule, unlike those of the wide kinds.
template <std::integral T, const auto& TooLarge>
T Narrow(std::integral auto value, std::u16string_view given) {
    if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
        Throw<CKzInvalidValueException>(TooLarge, given.data());
    return static_cast<T>(value);
}

/// The words that stand for values that have no digits.
template <std::floating_point T>
const char16_t* WordFor(T value) {
    return std::isnan(value) ? u"NaN" : std::isinf(value) ? value < 0 ? u"-INF" : u"INF" : nullptr;
}

template <std::floating_point T>
std::u16string WriteReal(T value, int digits) {
    if (const char16_t* word = WordFor(value))
        return word;
    return WriteNumber(static_cast<double>(value), std::chars_format::general, digits);
}

template <std::floating_point T>
std::u16string WriteFormatted(T value, const std::u16string& format, std::size_t longest) {
    if (const char16_t* word = WordFor(value))
        return word;
    if (!IsRealFormat(format))
        Throw<CKzInvalidParamException>(messages::BadRealFormat, format);
    std::u16string text = FormatString(format.c_str(), static_cast<double>(value));
    text.resize(std::min(text.size(), longest));
    return text;
}

template <const auto& Malformed>
double ReadReal(std::u16string_view given, CWhitespaceUtils::WhitespaceRule rule) {
    const WorkingText working(given, rule);
    const std::u16string_view text = working.Get();
    if (text.empty() || text == u"NaN" || text == u"1.#QNAN" || text == u"-NAN")
        return std::numeric_limits<double>::quiet_NaN();
    if (text == u"-INF")
        return -std::numeric_limits<double>::infinity();
    if (text == u"INF")
        return std::numeric_limits<double>::infinity();
    const ScannedReal number = ScanReal(text);
    if (!number.complete)
        Throw<CKzInvalidValueException>(Malformed, text.data());
    return number.value;
}

char16_t ToLowerAscii(char16_t unit) { return unit >= u'A' && unit <= u'Z' ? unit + (u'a' - u'A') : unit; }

bool EqualsIgnoringCase(std::u16string_view text, std::u16string_view lowerCase) {
    return std::ranges::equal(text, lowerCase, {}, ToLowerAscii);
}

} // namespace

std::u16string CConversions::i1ToString(std::int8_t value) { return WriteNumber(int{value}); }
std::u16string CConversions::i2ToString(std::int16_t value) { return WriteNumber(value); }
std::u16string CConversions::i4ToString(std::int32_t value) { return WriteNumber(value); }
std::u16string CConversions::i8ToString(long long value) { return WriteNumber(value); }
std::u16string CConversions::ui1ToString(std::uint8_t value) { return WriteNumber(unsigned{value}); }
std::u16string CConversions::ui2ToString(std::uint16_t value) { return WriteNumber(value); }
std::u16string CConversions::ui4ToString(std::uint32_t value) { return WriteNumber(value); }
std::u16string CConversions::ui8ToString(unsigned long long value) { return WriteNumber(value); }

std::u16string CConversions::r4ToString(float value) { return WriteReal(value, 7); }
std::u16string CConversions::r8ToString(double value) { return WriteReal(value, 16); }

std::u16string CConversions::r4ToString(float value, const std::u16string& format) {
    return format.empty() ? r4ToString(value) : WriteFormatted(value, format, 32);
}

std::u16string CConversions::r8ToString(double value, const std::u16string& format) {
    return format.empty() ? r8ToString(value) : WriteFormatted(value, format, 48);
}

std::u16string CConversions::booleanToString(bool value) { return value ? u"true" : u"false"; }

std::u16string CConversions::charToString(char16_t value) {
    return value ? std::u16string(1, value) : std::u16string();
}

std::u16string CConversions::stringToString(const std::u16string& value) { return value; }

std::u16string CConversions::yearToString(std::uint16_t value) { return WriteNumber(value); }
std::u16string CConversions::monthToString(std::uint8_t value) { return WriteDatePart(u"--", value); }
std::u16string CConversions::dayToString(std::uint8_t value) { return WriteDatePart(u"---", value); }

std::int8_t fromText::i1(Text text, Rule rule) {
    return Narrow<std::int8_t, messages::I1TooLarge>(i4(text, rule), text);
}

std::int16_t fromText::i2(Text text, Rule rule) {
    return Narrow<std::int16_t, messages::I2TooLarge>(i4(text, rule), text);
}

std::int32_t fromText::i4(Text text, Rule rule) {
    return ReadInteger<std::int32_t, messages::I4TooLarge, messages::I4Malformed>(text, rule);
}

long long fromText::i8(Text text, Rule rule) {
    return ReadInteger<long long, messages::I8TooLarge, messages::I8Malformed>(text, rule);
}

std::uint8_t fromText::ui1(Text text, Rule rule) {
    return Narrow<std::uint8_t, messages::Ui1TooLarge>(ui4(text, rule), text);
}

std::uint16_t fromText::ui2(Text text, Rule rule) {
    return Narrow<std::uint16_t, messages::Ui2TooLarge>(ui4(text, rule), text);
}

std::uint32_t fromText::ui4(Text text, Rule rule) {
    return ReadInteger<std::uint32_t, messages::Ui4TooLarge, messages::Ui4Malformed>(text, rule);
}

unsigned long long fromText::ui8(Text text, Rule rule) {
    return ReadInteger<unsigned long long, messages::Ui8TooLarge, messages::Ui8Malformed>(text, rule);
}

float fromText::r4(Text text, Rule rule) {
    // Deliberate: rounded twice, by way of the double.
    return static_cast<float>(ReadReal<messages::R4Malformed>(text, rule));
}

double fromText::r8(Text text, Rule rule) { return ReadReal<messages::R8Malformed>(text, rule); }

bool fromText::boolean(Text text, Rule rule) {
    const WorkingText working(text, rule);
    const std::u16string_view word = working.c_str();
    // Deliberate: the words are accepted in any case, which XML Schema does not do.
    if (EqualsIgnoringCase(word, u"true"))
        return true;
    if (EqualsIgnoringCase(word, u"false"))
        return false;
    if (word == u"1")
        return true;
    if (word == u"0")
        return false;
    Throw<CKzInvalidValueException>(messages::InvalidBoolean, text.data());
}

char16_t fromText::character(Text text, Rule rule) {
    const WorkingText working(text, rule);
    if (working.Get().size() != 1)
        Throw<CKzInvalidValueException>(messages::InvalidChar, working.c_str());
    return working.Get().front();
}

std::u16string fromText::string(Text text, Rule rule) {
    if (IsLeftAlone(text, rule))
        return std::u16string(text);
    return CWhitespaceUtils::ApplyRule(rule, std::u16string(text));
}

// The same on strings, which a zero follows.
#define QUILLON_FROM_STRING(Type, kind, reader)                                                              \
    Type CConversions::kind##FromString(const std::u16string& text, WhitespaceRule rule) {                   \
        return fromText::reader(text, rule);                                                                 \
    }
QUILLON_FROM_STRING(std::int8_t, i1, i1)
QUILLON_FROM_STRING(std::int16_t, i2, i2)
QUILLON_FROM_STRING(std::int32_t, i4, i4)
QUILLON_FROM_STRING(long long, i8, i8)
QUILLON_FROM_STRING(std::uint8_t, ui1, ui1)
QUILLON_FROM_STRING(std::uint16_t, ui2, ui2)
QUILLON_FROM_STRING(std::uint32_t, ui4, ui4)
QUILLON_FROM_STRING(unsigned long long, ui8, ui8)
QUILLON_FROM_STRING(float, r4, r4)
QUILLON_FROM_STRING(double, r8, r8)
QUILLON_FROM_STRING(bool, boolean, boolean)
QUILLON_FROM_STRING(char16_t, char, character)
QUILLON_FROM_STRING(std::u16string, string, string)
QUILLON_FROM_STRING(CBinaryData, hexBinary, hexBinary)
QUILLON_FROM_STRING(CBinaryData, base64Binary, base64Binary)
QUILLON_FROM_STRING(CBigInteger, integer, integer)
QUILLON_FROM_STRING(CDecimal, decimal, decimal)
QUILLON_FROM_STRING(CDateTimeSpan, duration, duration)
QUILLON_FROM_STRING(CDateTime, datetime, datetime)
QUILLON_FROM_STRING(CDateTime, time, time)
QUILLON_FROM_STRING(CDateTime, date, date)
QUILLON_FROM_STRING(CDateTime, yearMonth, yearMonth)
QUILLON_FROM_STRING(CDateTime, monthDay, monthDay)
QUILLON_FROM_STRING(std::uint16_t, year, year)
QUILLON_FROM_STRING(std::uint8_t, month, month)
QUILLON_FROM_STRING(std::uint8_t, day, day)
#undef QUILLON_FROM_STRING

} // namespace KzXmlLib10
