#include "support/Test.h"

namespace {

constexpr auto none = CWhitespaceUtils::WhitespaceRule_None;
constexpr auto collapse = CWhitespaceUtils::WhitespaceRule_Collapse;
constexpr double infinity = std::numeric_limits<double>::infinity();

/// What a reader of integers makes of a text: the value as text, or the message of the failure.
template <auto Reader>
std::string Read(const std::u16string& text, CConversions::WhitespaceRule rule = none) {
    return Outcome<CKzInvalidValueException>([&] { return std::to_string(Reader(text, rule)); });
}
constexpr auto ReadI4 = [](const std::u16string& text) { return Read<CConversions::i4FromString>(text); };

std::string TooLarge(const std::string& text, const std::string& type) {
    return "The value [" + text + "] is to large to fit in a " + type;
}

TEST(CConversions, IntegersAreReadUpToTheirLimits) {
    using C = CConversions;
    const struct {
        std::string (*read)(const std::u16string&, C::WhitespaceRule);
        std::string name, lowest, highest, tooLow, tooHigh;
    } rows[] = {{Read<C::i1FromString>, "i1", "-128", "127", "-129", "128"},
                {Read<C::i2FromString>, "i2", "-32768", "32767", "-32769", "32768"},
                {Read<C::i4FromString>, "i4", "-2147483648", "2147483647", "-2147483649", "2147483648"},
                {Read<C::i8FromString>, "i8", "-9223372036854775808", "9223372036854775807",
                 "-9223372036854775809", "9223372036854775808"},
                {Read<C::ui1FromString>, "ui1", "0", "255", "-1", "256"},
                {Read<C::ui2FromString>, "ui2", "0", "65535", "-1", "65536"},
                {Read<C::ui4FromString>, "ui4", "0", "4294967295", "-4294967296", "4294967296"},
                {Read<C::ui8FromString>, "ui8", "0", "18446744073709551615", "-18446744073709551616",
                 "18446744073709551616"}};
    for (const auto& row : rows) {
        for (const std::string& text : {row.lowest, row.highest})
            EXPECT_EQ(row.read(FromUtf8(text), none), text);
        for (const std::string& text : {row.tooLow, row.tooHigh})
            EXPECT_EQ(row.read(FromUtf8(text), none), TooLarge(text, row.name));
    }
}

TEST(CConversions, IntegersHaveTheFormOfStrtol) {
    ExpectRows(
        {"+5 -> 5", "-0 -> 0", " \t\n\v\f\r7 -> 7", "0000000000000000000000000000000012 -> 12", " -> 0"},
        ReadI4);
    EXPECT_EQ(ReadI4(u"12\0rest"s) + ReadI4(u"\0"s), "120");
    for (const std::u16string text : {u" ", u"7 ", u"\u00A07", u"+", u"+-5", u"0x10", u"1\u0661"})
        EXPECT_EQ(ReadI4(text), "The value [" + ToUtf8(text) + "] can not be converted to a i4");
    // The range is looked at before the form.
    for (const char* text : {"99999999999x", "999999999999999999999x"})
        EXPECT_EQ(ReadI4(FromUtf8(text)), TooLarge(text, "i4"));
    EXPECT_EQ(Read<CConversions::i4FromString>(u"  ", collapse), "0");

    // Unsigned readers negate in their own width.
    EXPECT_EQ(Read<CConversions::ui4FromString>(u"-1"), "4294967295");
    EXPECT_EQ(Read<CConversions::ui8FromString>(u"-1"), "18446744073709551615");
    EXPECT_EQ(Read<CConversions::ui1FromString>(u"-4294967295"), "1");
    // Narrow readers show their input, and pass the failure of the wide ones on.
    EXPECT_EQ(Read<CConversions::i1FromString>(u" 128 ", collapse), TooLarge(" 128 ", "i1"));
    EXPECT_EQ(Read<CConversions::i1FromString>(u"99999999999"), TooLarge("99999999999", "i4"));
    const std::string message = "The value [x] can not be converted to a ";
    EXPECT_EQ(Read<CConversions::i2FromString>(u" x ", collapse), message + "i4");
    EXPECT_EQ(Read<CConversions::ui1FromString>(u"x"), message + "ui4");
    EXPECT_EQ(Read<CConversions::ui8FromString>(u"x"), message + "ui8");
    EXPECT_EQ(Read<CConversions::i8FromString>(u"x"), message + "i8");
}

double FromChars(const std::string& text) {
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

TEST(CConversions, RealsAreReadInDecimalNotation) {
    for (const Row row :
         {"INF -> INF", "-INF -> -INF", "1.5 -> 1.5", "+.5e1 -> 5", " \v-5.E-1 -> -0.5", "1e309 -> INF",
          "1.7976931348623157e308 -> 1.7976931348623157e308", "-1e999999999999999999999 -> -INF",
          "4.9406564584124654e-324 -> 4.9406564584124654e-324", "0e999999999999999999999 -> 0"})
        EXPECT_EQ(CConversions::r8FromString(row.text, none), FromChars(row.expected));
    const std::u16string zeros(400, u'0');
    EXPECT_EQ(CConversions::r8FromString(u"1" + zeros + u"e-400", none), 1);
    EXPECT_EQ(CConversions::r8FromString(u"0." + zeros + u"1e401", none), 1);
    EXPECT_EQ(CConversions::r8FromString(u"0." + zeros + u"1e1000", none), infinity);
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

TEST(CConversions, RealsAreWrittenByTheirFormat) {
    ExpectRows({"0.1 -> 0.1", "-0 -> -0", "0.33333333333333331 -> 0.3333333333333333",
                "1e15 -> 1000000000000000", "1e16 -> 1e+16", "1e-4 -> 0.0001", "1e-5 -> 1e-05", "INF -> INF",
                "-INF -> -INF", "NaN -> NaN", "-1.7976931348623157e308 -> -1.797693134862316e+308"},
               [](const char16_t* text) {
                   return ToUtf8(CConversions::r8ToString(CConversions::r8FromString(text, none)));
               });
    EXPECT_EQ(CConversions::r4ToString(0.1f), u"0.1");
    EXPECT_EQ(CConversions::r4ToString(16777216.0f), u"1.677722e+07");
    // Formats are heeded, and their text is cut.
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
}

TEST(CConversions, CharactersStringsAndPartsOfDates) {
    EXPECT_EQ(CConversions::charFromString(u" ", none), u' ');
    EXPECT_EQ(CConversions::charFromString(u" x ", collapse), u'x');
    for (const std::u16string text : {u"", u"ab", u"\U0001F600"})
        EXPECT_EQ(InvalidValue([&] { CConversions::charFromString(u" " + text + u" ", collapse); }),
                  "The value [" + ToUtf8(text) +
                      "] can not be a char as it is either empty of greater than 1 char long");
    EXPECT_EQ(CConversions::yearToString(1) + CConversions::monthToString(13) + CConversions::dayToString(0),
              u"1--13---00");
    EXPECT_EQ(CConversions::charToString(u'\0'), u"");
    EXPECT_EQ(CConversions::stringFromString(u"a\0b"s, none), u"a\0b"s);
}

} // namespace
