#include "support/Test.h"

using C = CConversions;
constexpr auto none = CWhitespaceUtils::WhitespaceRule_None;

TEST(ValueClassConversions, PartsOfDatesComeFromAnyForm) {
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

TEST(ValueClassConversions, FormatsOfDecimalsAreNumbersOfPlaces) {
    ExpectRows(
        {" -> -1.2345", "3 -> -1.235", " +2.9 -> -1.23", "-3 -> -1.", "%.2f -> -1.",
         "99999999999999999999 -> -1.2345"},
        [](const char16_t* format) { return ToUtf8(C::decimalToString(CDecimal(u"-1.2345"), format)); });
}
