#include <KzXmlLib10/conversions/CConversions.h>

#include "conversions/Messages.h"
#include "conversions/NumberText.h"
#include "conversions/WorkingText.h"
#include "object/Throw.h"

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
    return std::u16string(static_cast<const char*>(digits), end);
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
T ReadInteger(const std::u16string& given, CWhitespaceUtils::WhitespaceRule rule) {
    const WorkingText text(given, rule);
    const ScannedInteger number = ScanInteger(text.Get());
    // Deliberate: a value below the lower limit is "to large" as well.
    if (!IsInRange<T>(number))
        Throw<CKzInvalidValueException>(TooLarge, text.Get());
    if (!number.complete)
        Throw<CKzInvalidValueException>(Malformed, text.Get());
    // Deliberate: an unsigned value with a minus is negated in its own width.
    return static_cast<T>(number.negative ? 0 - number.magnitude : number.magnitude);
}

/// The readers of the narrow kinds, on the value that the 32-bit reader gave.
/// Deliberate: the message shows the text from before the whitespace rule, unlike those of the wide kinds.
template <std::integral T, const auto& TooLarge>
T Narrow(std::integral auto value, const std::u16string& given) {
    if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
        Throw<CKzInvalidValueException>(TooLarge, given);
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
double ReadReal(const std::u16string& given, CWhitespaceUtils::WhitespaceRule rule) {
    const WorkingText working(given, rule);
    const std::u16string& text = working.Get();
    if (text.empty() || text == u"NaN" || text == u"1.#QNAN" || text == u"-NAN")
        return std::numeric_limits<double>::quiet_NaN();
    if (text == u"-INF")
        return -std::numeric_limits<double>::infinity();
    if (text == u"INF")
        return std::numeric_limits<double>::infinity();
    const ScannedReal number = ScanReal(text);
    if (!number.complete)
        Throw<CKzInvalidValueException>(Malformed, text);
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

std::int8_t CConversions::i1FromString(const std::u16string& text, WhitespaceRule rule) {
    return Narrow<std::int8_t, messages::I1TooLarge>(i4FromString(text, rule), text);
}

std::int16_t CConversions::i2FromString(const std::u16string& text, WhitespaceRule rule) {
    return Narrow<std::int16_t, messages::I2TooLarge>(i4FromString(text, rule), text);
}

std::int32_t CConversions::i4FromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadInteger<std::int32_t, messages::I4TooLarge, messages::I4Malformed>(text, rule);
}

long long CConversions::i8FromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadInteger<long long, messages::I8TooLarge, messages::I8Malformed>(text, rule);
}

std::uint8_t CConversions::ui1FromString(const std::u16string& text, WhitespaceRule rule) {
    return Narrow<std::uint8_t, messages::Ui1TooLarge>(ui4FromString(text, rule), text);
}

std::uint16_t CConversions::ui2FromString(const std::u16string& text, WhitespaceRule rule) {
    return Narrow<std::uint16_t, messages::Ui2TooLarge>(ui4FromString(text, rule), text);
}

std::uint32_t CConversions::ui4FromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadInteger<std::uint32_t, messages::Ui4TooLarge, messages::Ui4Malformed>(text, rule);
}

unsigned long long CConversions::ui8FromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadInteger<unsigned long long, messages::Ui8TooLarge, messages::Ui8Malformed>(text, rule);
}

std::u16string CConversions::r4ToString(float value) { return WriteReal(value, 7); }
std::u16string CConversions::r8ToString(double value) { return WriteReal(value, 16); }

std::u16string CConversions::r4ToString(float value, const std::u16string& format) {
    return format.empty() ? r4ToString(value) : WriteFormatted(value, format, 32);
}

std::u16string CConversions::r8ToString(double value, const std::u16string& format) {
    return format.empty() ? r8ToString(value) : WriteFormatted(value, format, 48);
}

float CConversions::r4FromString(const std::u16string& text, WhitespaceRule rule) {
    // Deliberate: rounded twice, by way of the double.
    return static_cast<float>(ReadReal<messages::R4Malformed>(text, rule));
}

double CConversions::r8FromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadReal<messages::R8Malformed>(text, rule);
}

std::u16string CConversions::booleanToString(bool value) { return value ? u"true" : u"false"; }

bool CConversions::booleanFromString(const std::u16string& text, WhitespaceRule rule) {
    const WorkingText working(text, rule);
    const std::u16string_view word = working.Get().c_str();
    // Deliberate: the words are accepted in any case, which XML Schema does not do.
    if (EqualsIgnoringCase(word, u"true"))
        return true;
    if (EqualsIgnoringCase(word, u"false"))
        return false;
    if (word == u"1")
        return true;
    if (word == u"0")
        return false;
    Throw<CKzInvalidValueException>(messages::InvalidBoolean, text);
}

std::u16string CConversions::charToString(char16_t value) {
    return value ? std::u16string(1, value) : std::u16string();
}

char16_t CConversions::charFromString(const std::u16string& text, WhitespaceRule rule) {
    const WorkingText working(text, rule);
    if (working.Get().size() != 1)
        Throw<CKzInvalidValueException>(messages::InvalidChar, working.Get());
    return working.Get().front();
}

std::u16string CConversions::stringToString(const std::u16string& value) { return value; }

std::u16string CConversions::stringFromString(const std::u16string& text, WhitespaceRule rule) {
    return CWhitespaceUtils::ApplyRule(rule, text);
}

std::u16string CConversions::yearToString(std::uint16_t value) { return WriteNumber(value); }
std::u16string CConversions::monthToString(std::uint8_t value) { return WriteDatePart(u"--", value); }
std::u16string CConversions::dayToString(std::uint8_t value) { return WriteDatePart(u"---", value); }

} // namespace KzXmlLib10
