#pragma once

#include <KzXmlLib10/conversions/CWhitespaceUtils.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/values/CBigInteger.h>
#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/values/CDateTime.h>
#include <KzXmlLib10/values/CDateTimeSpan.h>
#include <KzXmlLib10/values/CDecimal.h>

#include <cstdint>
#include <string>

namespace KzXmlLib10 {

/// The one road between a value of a primitive XML Schema type and its text.
///
///     CConversions::i4ToString(-7); // u"-7"
///     CConversions::i4FromString(u" 42 ", CWhitespaceUtils::WhitespaceRule_Collapse); // 42
///
/// Readers apply the whitespace rule first and then look at the text up to its first NUL. They throw
/// CKzInvalidValueException for a text of another form or a value out of range, and CKzException for an
/// unknown rule. Nothing depends on the locale; all operations may be called from any thread.
///
/// Deliberate: the empty text is the integer 0 and the real NaN; whitespace in front of a number is accepted
/// under every rule (space, tab, line feed, vertical tab, form feed, carriage return), whitespace behind it
/// only if the rule removes it; unsigned readers take a minus sign and negate in their own width.
class QUILLON_EXPORT CConversions {
public:
    using WhitespaceRule = CWhitespaceUtils::WhitespaceRule;

    /// Integers in decimal, without leading zeros.
    static std::u16string i1ToString(std::int8_t value);
    static std::u16string i2ToString(std::int16_t value);
    static std::u16string i4ToString(std::int32_t value);
    static std::u16string i8ToString(long long value);
    static std::u16string ui1ToString(std::uint8_t value);
    static std::u16string ui2ToString(std::uint16_t value);
    static std::u16string ui4ToString(std::uint32_t value);
    static std::u16string ui8ToString(unsigned long long value);

    /// Decimal digits with an optional sign in front. A number followed by anything else is of another form;
    /// the range is looked at first.
    static std::int8_t i1FromString(const std::u16string& text, WhitespaceRule rule);
    static std::int16_t i2FromString(const std::u16string& text, WhitespaceRule rule);
    static std::int32_t i4FromString(const std::u16string& text, WhitespaceRule rule);
    static long long i8FromString(const std::u16string& text, WhitespaceRule rule);
    static std::uint8_t ui1FromString(const std::u16string& text, WhitespaceRule rule);
    static std::uint16_t ui2FromString(const std::u16string& text, WhitespaceRule rule);
    static std::uint32_t ui4FromString(const std::u16string& text, WhitespaceRule rule);
    static unsigned long long ui8FromString(const std::u16string& text, WhitespaceRule rule);

    /// NaN, -INF, INF, or the number in printf's %.7g (r4) or %.16g (r8).
    static std::u16string r4ToString(float value);
    static std::u16string r8ToString(double value);
    /// The same with a printf format, unless that is empty. It holds exactly one of %e %E %f %g %G and
    /// nothing else that takes an argument, with widths and precisions of at most four digits, or
    /// CKzInvalidParamException is thrown. The text is cut after 32 (r4) or 48 (r8) characters.
    static std::u16string r4ToString(float value, const std::u16string& format);
    static std::u16string r8ToString(double value, const std::u16string& format);

    /// Digits with an optional point and exponent; also NaN, INF, -INF, "1.#QNAN" and -NAN. A number too
    /// large gives an infinity and one too small a zero. The r4 is rounded from the r8.
    static float r4FromString(const std::u16string& text, WhitespaceRule rule);
    static double r8FromString(const std::u16string& text, WhitespaceRule rule);

    /// true or false.
    static std::u16string booleanToString(bool value);
    /// true and false in any case, 1 and 0.
    static bool booleanFromString(const std::u16string& text, WhitespaceRule rule);

    /// A text of the one code unit; the NUL gives the empty text.
    static std::u16string charToString(char16_t value);
    /// The code unit of a text of length 1.
    static char16_t charFromString(const std::u16string& text, WhitespaceRule rule);

    static std::u16string stringToString(const std::u16string& value);
    static std::u16string stringFromString(const std::u16string& text, WhitespaceRule rule);

    /// The year without leading zeros, --MM and ---DD. The values are not checked.
    static std::u16string yearToString(std::uint16_t value);
    static std::u16string monthToString(std::uint8_t value);
    static std::u16string dayToString(std::uint8_t value);

    /// The field of a date that ParseXSDDate reads. A form without the field throws
    /// CKzInvalidStateException.
    ///
    /// Deliberate: any form that has the field is accepted; a negative year wraps to 16 bits.
    static std::uint16_t yearFromString(const std::u16string& text, WhitespaceRule rule);
    static std::uint8_t monthFromString(const std::u16string& text, WhitespaceRule rule);
    static std::uint8_t dayFromString(const std::u16string& text, WhitespaceRule rule);

    // The kinds below are read and written by the classes that hold them, whose exceptions pass through.

    /// Upper-case hexadecimal; read in either case. A bad text throws CKzException.
    static std::u16string hexBinaryToString(const CBinaryData& value);
    static CBinaryData hexBinaryFromString(const std::u16string& text, WhitespaceRule rule);
    /// Base64 on one line. A bad text gives no bytes, and no failure.
    static std::u16string base64BinaryToString(const CBinaryData& value);
    static CBinaryData base64BinaryFromString(const std::u16string& text, WhitespaceRule rule);

    static std::u16string integerToString(const CBigInteger& value);
    static CBigInteger integerFromString(const std::u16string& text, WhitespaceRule rule);

    /// The shortest exact text.
    static std::u16string decimalToString(const CDecimal& value);
    /// Rounded to as many decimal places as the digits of `format` say. An empty format means the shortest
    /// exact text; no digits, or a minus sign, mean 0.
    static std::u16string decimalToString(const CDecimal& value, const std::u16string& format);
    static CDecimal decimalFromString(const std::u16string& text, WhitespaceRule rule);

    static std::u16string durationToString(const CDateTimeSpan& value);
    static CDateTimeSpan durationFromString(const std::u16string& text, WhitespaceRule rule);

    /// Deliberate: all five write the form of the value's own kind.
    static std::u16string datetimeToString(const CDateTime& value);
    static std::u16string dateToString(const CDateTime& value);
    static std::u16string timeToString(const CDateTime& value);
    static std::u16string yearMonthToString(const CDateTime& value);
    static std::u16string monthDayToString(const CDateTime& value);
    static CDateTime datetimeFromString(const std::u16string& text, WhitespaceRule rule);
    static CDateTime timeFromString(const std::u16string& text, WhitespaceRule rule);
    /// Deliberate: any form of ParseXSDDate is accepted and decides on the kind of the value, so a date may
    /// turn out to be a year.
    static CDateTime dateFromString(const std::u16string& text, WhitespaceRule rule);
    static CDateTime yearMonthFromString(const std::u16string& text, WhitespaceRule rule);
    static CDateTime monthDayFromString(const std::u16string& text, WhitespaceRule rule);
};

} // namespace KzXmlLib10
