#include "support/Test.h"

namespace {

using C = CConversions;
constexpr auto none = CWhitespaceUtils::WhitespaceRule_None;

TEST(ValueClassConversions, YearsMonthsAndDaysComeFromAnyFormThatHasThem) {
    EXPECT_EQ(C::yearFromString(u"2010-05-06", none), 2010);
    EXPECT_EQ(C::yearFromString(u"-0001", none), 65535);
    EXPECT_EQ(C::monthFromString(u"--05-06", none), 5);
    EXPECT_EQ(C::dayFromString(u"2010-05-06Z", none), 6);
    EXPECT_EQ(InvalidState([] { C::dayFromString(u"2001-05", none); }),
              "Failed to GetDay. Invalid Date Type: gYearMonth.");
}

TEST(ValueClassConversions, TextsEndAtTheirFirstNul) {
    EXPECT_EQ(C::hexBinaryFromString(u"0102\0x"s, none).GetLength(), 2u);
    EXPECT_EQ(C::base64BinaryFromString(u"AQ\0*"s, none).GetLength(), 1u);
    EXPECT_EQ(C::decimalFromString(u"1.5\0x"s, none), CDecimal(u"1.5"));
    EXPECT_EQ(C::integerFromString(u"15\0x"s, none), CBigInteger(15));
    EXPECT_EQ(C::durationFromString(u"P1D\0x"s, none).GetDays(), 1u);
    EXPECT_EQ(C::yearFromString(u"2001\0x"s, none), 2001);
}

TEST(ValueClassConversions, TheFormatOfADecimalIsTheNumberOfItsPlaces) {
    const CDecimal value(u"-1.2345");
    for (const auto& [format, text] : {std::pair(u"", u"-1.2345"),
                                       {u"3", u"-1.235"},
                                       {u" +2.9", u"-1.23"},
                                       {u"-3", u"-1."},
                                       {u"%.2f", u"-1."},
                                       {u"99999999999999999999", u"-1.2345"}})
        EXPECT_EQ(C::decimalToString(value, format), text);
}

} // namespace
