#include <KzXmlLib10/conversions/CConversions.h>

#include "support/Failure.h"
#include "support/Row.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <limits>

using namespace KzXmlLib10;
using namespace std::literals;

namespace {

constexpr auto none = CWhitespaceUtils::WhitespaceRule_None;
constexpr auto collapse = CWhitespaceUtils::WhitespaceRule_Collapse;
constexpr double infinity = std::numeric_limits<double>::infinity();

/// What a reader makes of a text: the value as text, or the message of the failure.
template <class Reader>
std::u16string Outcome(Reader reader, const std::u16string& text, CConversions::WhitespaceRule rule = none) {
    try {
        const auto value = reader(text, rule);
        if constexpr (std::is_signed_v<decltype(value)>)
            return CConversions::i8ToString(value);
        else
            return CConversions::ui8ToString(value);
    } catch (const CKzInvalidValueException& e) {
        return e.GetFullMessage();
    }
}

template <auto Reader>
std::u16string Read(const std::u16string& text) {
    return Outcome(Reader, text);
}

template <class Action>
std::string InvalidValue(Action action) {
    return support::Failure<CKzInvalidValueException>(action);
}

TEST(CConversions, IntegersAreReadUpToTheirLimits) {
    using C = CConversions;
    struct Row {
        std::u16string (*outcome)(const std::u16string&);
        const char16_t *lowest, *highest, *tooLow, *tooHigh, *name;
    };
    const Row rows[] = {
        {Read<C::i1FromString>, u"-128", u"127", u"-129", u"128", u"i1"},
        {Read<C::i2FromString>, u"-32768", u"32767", u"-32769", u"32768", u"i2"},
        {Read<C::i4FromString>, u"-2147483648", u"2147483647", u"-2147483649", u"2147483648", u"i4"},
        {Read<C::i8FromString>, u"-9223372036854775808", u"9223372036854775807", u"-9223372036854775809",
         u"9223372036854775808", u"i8"},
        {Read<C::ui1FromString>, u"0", u"255", u"-1", u"256", u"ui1"},
        {Read<C::ui2FromString>, u"0", u"65535", u"-1", u"65536", u"ui2"},
        {Read<C::ui4FromString>, u"0", u"4294967295", u"-4294967296", u"4294967296", u"ui4"},
        {Read<C::ui8FromString>, u"0", u"18446744073709551615", u"-18446744073709551616",
         u"18446744073709551616", u"ui8"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.outcome(row.lowest), row.lowest);
        EXPECT_EQ(row.outcome(row.highest), row.highest);
        for (const std::u16string text : {row.tooLow, row.tooHigh})
            EXPECT_EQ(row.outcome(text), u"The value [" + text + u"] is to large to fit in a " + row.name);
    }
}

TEST(CConversions, IntegerFormIsThatOfStrtol) {
    const support::Row rows[] = {"+5 -> 5", "-0 -> 0", " \t\n\v\f\r7 -> 7",
                                 "0000000000000000000000000000000012 -> 12", " -> 0"};
    for (const auto& [text, value] : rows)
        EXPECT_EQ(Read<CConversions::i4FromString>(text), FromUtf8(value));
    EXPECT_EQ(Read<CConversions::i4FromString>(u"12\0rest"s), u"12");
    EXPECT_EQ(Read<CConversions::i4FromString>(u"\0"s), u"0");
    for (const std::u16string text : {u" ", u"7 ", u"\u00A07", u"+", u"+-5", u"0x10", u"1\u0661"})
        EXPECT_EQ(Read<CConversions::i4FromString>(text),
                  u"The value [" + text + u"] can not be converted to a i4");
    // The range is looked at before the form.
    for (const std::u16string text : {u"99999999999x", u"999999999999999999999x"})
        EXPECT_EQ(Read<CConversions::i4FromString>(text),
                  u"The value [" + text + u"] is to large to fit in a i4");
    EXPECT_EQ(Outcome(CConversions::i4FromString, u"  ", collapse), u"0");
    EXPECT_EQ(Outcome(CConversions::i4FromString, u" 7 ", collapse), u"7");

    // Unsigned readers negate in their own width.
    EXPECT_EQ(Read<CConversions::ui4FromString>(u"-1"), u"4294967295");
    EXPECT_EQ(Read<CConversions::ui8FromString>(u"-1"), u"18446744073709551615");
    EXPECT_EQ(Read<CConversions::ui1FromString>(u"-4294967295"), u"1");
}

TEST(CConversions, NarrowReadersShowTheirInputAndPassTheWideFailureOn) {
    EXPECT_EQ(Outcome(CConversions::i1FromString, u" 128 ", collapse),
              u"The value [ 128 ] is to large to fit in a i1");
    EXPECT_EQ(Read<CConversions::i1FromString>(u"99999999999"),
              u"The value [99999999999] is to large to fit in a i4");
    EXPECT_EQ(Outcome(CConversions::i2FromString, u" abc ", collapse),
              u"The value [abc] can not be converted to a i4");
    EXPECT_EQ(Read<CConversions::ui1FromString>(u"x"), u"The value [x] can not be converted to a ui4");
    EXPECT_EQ(Read<CConversions::ui8FromString>(u"x"), u"The value [x] can not be converted to a ui8");
    EXPECT_EQ(Read<CConversions::i8FromString>(u"x"), u"The value [x] can not be converted to a i8");
}

TEST(CConversions, RealsAreReadInDecimalNotation) {
    const support::Row rows[] = {"INF -> INF",
                                 "-INF -> -INF",
                                 "1.5 -> 1.5",
                                 "+.5e1 -> 5",
                                 " \v-5.E-1 -> -0.5",
                                 "1e309 -> INF",
                                 "1.7976931348623157e308 -> 1.7976931348623157e308",
                                 "-1e999999999999999999999 -> -INF",
                                 "4.9406564584124654e-324 -> 4.9406564584124654e-324",
                                 "0e999999999999999999999 -> 0"};
    for (const auto& [text, value] : rows)
        EXPECT_EQ(CConversions::r8FromString(text, none), std::strtod(value.c_str(), nullptr)) << value;
    const std::u16string zeros(400, u'0');
    EXPECT_EQ(CConversions::r8FromString(u"1" + zeros + u"e-400", none), 1);
    EXPECT_EQ(CConversions::r8FromString(u"0." + zeros + u"1e401", none), 1);
    EXPECT_EQ(CConversions::r8FromString(u"0." + zeros + u"1e1000", none), infinity);
    EXPECT_EQ(CConversions::r8FromString(u"1" + zeros + u"e-1000", none), 0);
    EXPECT_EQ(CConversions::r8FromString(u"1.5\0x"s, none), 1.5);
    EXPECT_EQ(CConversions::r8FromString(u"\0"s, none), 0);
    EXPECT_TRUE(std::signbit(CConversions::r8FromString(u"-0", none)));
    EXPECT_TRUE(std::signbit(CConversions::r8FromString(u"-1e-400", none)));
    for (const char16_t* text : {u"", u"  ", u"NaN", u"1.#QNAN", u" -NAN "}) {
        EXPECT_TRUE(std::isnan(CConversions::r8FromString(text, collapse)));
        EXPECT_TRUE(std::isnan(CConversions::r4FromString(text, collapse)));
    }
    // A float is rounded from the double.
    EXPECT_EQ(CConversions::r4FromString(u"1e39", none), std::numeric_limits<float>::infinity());
    // Just above the middle of 1 and the next float, by less than a double can show.
    EXPECT_EQ(CConversions::r4FromString(u"1.00000005960464477540000000000000001", none), 1.0f);
}

TEST(CConversions, RealsOfAnotherFormAreRefused) {
    const std::u16string texts[] = {u"+INF", u"inf", u"INFINITY", u"nan",   u"-NaN", u"0x1p3",
                                    u"1e",   u"1e+", u".",        u"-",     u" ",    u"1.5 ",
                                    u"1,5",  u"1d5", u"1.5.2",    u"INF\0"s};
    for (const std::u16string& text : texts) {
        const std::string message = "The value [" + ToUtf8(text.c_str()) + "] can not be converted to a r";
        EXPECT_EQ(InvalidValue([&] { CConversions::r8FromString(text, none); }), message + "8");
        EXPECT_EQ(InvalidValue([&] { CConversions::r4FromString(text, none); }), message + "4");
    }
}

TEST(CConversions, MillionsOfDigitsAreReadInOnePass) {
    const std::u16string digits(5'000'000, u'7');
    EXPECT_EQ(CConversions::r8FromString(digits + u"e-4999999", none), 7.777777777777778);
    EXPECT_EQ(Outcome(CConversions::i4FromString, digits).size(), digits.size() + 39);
}

TEST(CConversions, RealsAreWrittenInGeneralNotation) {
    const support::Row rows[] = {"0.1 -> 0.1",
                                 "-0 -> -0",
                                 "0.33333333333333331 -> 0.3333333333333333",
                                 "1e15 -> 1000000000000000",
                                 "1e16 -> 1e+16",
                                 "1e-4 -> 0.0001",
                                 "1e-5 -> 1e-05",
                                 "INF -> INF",
                                 "-INF -> -INF",
                                 "NaN -> NaN",
                                 "-1.7976931348623157e308 -> -1.797693134862316e+308"};
    for (const auto& [value, text] : rows)
        EXPECT_EQ(CConversions::r8ToString(CConversions::r8FromString(value, none)), FromUtf8(text));
    EXPECT_EQ(CConversions::r4ToString(0.1f), u"0.1");
    EXPECT_EQ(CConversions::r4ToString(16777216.0f), u"1.677722e+07");
    EXPECT_EQ(CConversions::r4ToString(-std::numeric_limits<float>::infinity()), u"-INF");
}

TEST(CConversions, FormatsAreHeededAndTheirTextIsCut) {
    EXPECT_EQ(CConversions::r8ToString(1.5, u"%.2f"), u"1.50");
    EXPECT_EQ(CConversions::r4ToString(0.1f, u"%.9g"), u"0.100000001");
    EXPECT_EQ(CConversions::r8ToString(2, u"%% %+08.2lf %%"), u"% +0002.00 %");
    EXPECT_EQ(CConversions::r8ToString(1e300, u"%f"), u"100000000000000005250476025520442024870446858110");
    EXPECT_EQ(CConversions::r4ToString(1e30f, u"%.40f").size(), 32u);
    EXPECT_EQ(CConversions::r8ToString(std::nan(""), u"%.2f"), u"NaN");
    EXPECT_EQ(CConversions::r8ToString(-infinity, u"%.2f"), u"-INF");
    for (const char16_t* format : {u"x", u"%%", u"%", u"%f%f", u"%d", u"%s", u"%f%n", u"%*f", u"%.*f", u"%f%",
                                   u"%c%f", u"%I64f", u"%5%f", u"%99999f", u"%.99999f"})
        EXPECT_THROW(CConversions::r8ToString(1, format), CKzInvalidParamException);
    EXPECT_THROW(CConversions::r4ToString(1, u"%d"), CKzInvalidParamException);
}

TEST(CConversions, Booleans) {
    for (const char16_t* text : {u"true", u"TRUE", u"tRuE", u"1"})
        EXPECT_TRUE(CConversions::booleanFromString(text, none));
    for (const std::u16string& text : {u"false"s, u"FALSE"s, u"0"s, u"0\0x"s})
        EXPECT_FALSE(CConversions::booleanFromString(text, none));
    for (const std::u16string text : {u"", u"2", u" yes ", u"10", u"truE\u0130"})
        EXPECT_EQ(InvalidValue([&] { CConversions::booleanFromString(text, collapse); }),
                  "A Boolean Value read from an XML document was invalid [" + ToUtf8(text) +
                      "]. Valid values are 'true', 'false', '1', or '0'");
    EXPECT_EQ(CConversions::booleanToString(true), u"true");
    EXPECT_EQ(CConversions::booleanToString(false), u"false");
}

TEST(CConversions, CharactersAndStrings) {
    EXPECT_EQ(CConversions::charFromString(u" ", none), u' ');
    EXPECT_EQ(CConversions::charFromString(u" x ", collapse), u'x');
    for (const std::u16string text : {u"", u"ab", u"\U0001F600"})
        EXPECT_EQ(InvalidValue([&] { CConversions::charFromString(u" " + text + u" ", collapse); }),
                  "The value [" + ToUtf8(text) +
                      "] can not be a char as it is either empty of greater than 1 char long");
    EXPECT_EQ(CConversions::charToString(u'x'), u"x");
    EXPECT_EQ(CConversions::charToString(u'\0'), u"");
    EXPECT_EQ(CConversions::stringFromString(u" a  b ", collapse), u"a b");
    EXPECT_EQ(CConversions::stringFromString(u"a\0b"s, none), u"a\0b"s);
    EXPECT_THROW(CConversions::i4FromString(u"1", static_cast<CConversions::WhitespaceRule>(4)),
                 CKzException);
}

TEST(CConversions, IntegersAndDatePartsAreWritten) {
    EXPECT_EQ(CConversions::i1ToString(-128), u"-128");
    EXPECT_EQ(CConversions::ui1ToString(255), u"255");
    EXPECT_EQ(CConversions::ui4ToString(4294967295u), u"4294967295");
    EXPECT_EQ(CConversions::yearToString(1), u"1");
    EXPECT_EQ(CConversions::monthToString(5), u"--05");
    EXPECT_EQ(CConversions::monthToString(13), u"--13");
    EXPECT_EQ(CConversions::dayToString(0), u"---00");
    EXPECT_EQ(CConversions::dayToString(255), u"---255");
}

} // namespace
