#include "values/Dates.h"

namespace {

/// The text of what is read, or the message of the failure.
std::string Read(const char16_t* text) {
    return Outcome<CKzInvalidValueException>([&] { return ToUtf8(Span(text).ToString()); });
}

TEST(CDateTimeSpan, WhatIsReadIsWritten) {
    for (const char* text : {"P1Y2M3DT4H5M6.5S", "-P1D", "P1M", "PT1M", "P15M", "P400D", "PT36H", "PT90M",
                             "PT0.5S", "PT1H2S", "PT0.000001S", "PT0.000000001S", "PT0.001002S",
                             "P65535Y4294967295M4294967295DT4294967295H2147483647M2147483647.999999S"})
        EXPECT_EQ(Read(FromUtf8(text).c_str()), text);
    // Lenient forms; of the digits of nanoseconds the last alone counts; numbers wrap in 32 bits.
    ExpectRows({"PT1. -> PT1S", "PT1.S -> PT1S", "PT.5S -> PT0.5S", "PY -> P", "-PTS -> -P", "P5T1H -> PT1H",
                "P1M2Y -> P2Y1M", "PT1H2Y -> P2YT1H", "P1Y1Y1M -> P1Y1M", "PT0.123456789S -> PT0.123456009S",
                "PT0.1234567S -> PT0.123456007S", "P4294967297D -> P1D", "P65537Y -> P1Y",
                "PT4294967295H -> PT4294967295H", "PT2147483648M -> PT18446744071562067968M",
                "PT4294967295.5S -> PT18446744073709551615.5S"},
               Read);
    EXPECT_EQ(Span(u"PT1.5S2YT.7S").GetMilliSeconds(), 1200); // a second series adds to the fraction
    const std::u16string series = Repeat<std::u16string>(u"YT.999999S", 64);
    EXPECT_EQ(Span((u"-P" + series + u"1Y4294967295DT4294967295M4294967295S").c_str()).ToString(),
              u"-P1Y4294967295DT18446744073709551615M18446744073709551615.6393663936S");
}

TEST(CDateTimeSpan, BadFormsAreRefusedAndLeaveNothing) {
    for (const char* text :
         {"P",     "-P",   "PT",    "P1YT",   "P1",    "1Y",       "+P1Y",   "-",      "--P1Y",  "p1Y",
          " P1Y",  "P1Y ", "P1D1M", "P1M1M",  "P1D1D", "P1H",      "P1S",    "P.5S",   "PT1M1H", "PT1S1M",
          "PTT1H", "PT1D", "PT1.5", "PT1.5M", "PT1S5", "PT1.5.5S", "P1Y-1M", "PT1S.5S"})
        EXPECT_EQ(Read(FromUtf8(text).c_str()), "Invalid XSD Duration [" + std::string(text) +
                                                    "] expected [-]P[nY][nM][nD][T[nH][nM][nS.ff]]");
    EXPECT_EQ(Read(u""), "Invalid XSD Duration (Empty String)");
    EXPECT_EQ(Read(u"PT0.1234567890S"), "Invalid XSD Duration [PT0.1234567890S] Fraction part too long");
    CDateTimeSpan span = Span(u"-P1Y2M");
    EXPECT_EQ(InvalidValue([&] { span.ParseXSDDuration(nullptr); }), "Invalid XSD Duration (Null String)");
    EXPECT_EQ(span.ToString(), u"P");
}

TEST(CDateTimeSpan, SettersHaveNoRange) {
    CDateTimeSpan span(1, 2, 3, 4, 5, 6, 7, 8, 9);
    span.Negate();
    EXPECT_EQ(span.ToString(), u"-P1Y2M3DT4H5M6.007008009S");
    span.SetDateTimeSpan(1, 2, 3, 4, 5, 6);
    EXPECT_EQ(span.ToString(), u"P1Y2M3DT4H5M6S");
    EXPECT_EQ(CDateTimeSpan(1, 0, 5).ToString(), u"PT1H5S");
    span.SetYears(1);
    span.SetMonths(15);
    span.SetDays(40);
    span.SetHours(50);
    span.SetMinutes(70);
    span.SetSeconds(0);
    span.SetMilliSeconds(5000);
    span.SetMicroSeconds(6);
    span.SetNanoSeconds(7);
    EXPECT_EQ(span.ToString(), u"P1Y15M40DT50H70M0.5000006007S");
    constexpr std::uint32_t most = 0xFFFFFFFF;
    CDateTimeSpan longest(0xFFFF, most, most, most, ~0ull, ~0ull, 0xFFFF, 0xFFFF, 0xFFFF);
    longest.Negate();
    EXPECT_EQ(longest.ToString(), u"-P65535Y4294967295M4294967295DT4294967295H18446744073709551615M"
                                  u"18446744073709551615.655356553565535S");

    span = Span(u"-P1D"); // as negative is no negation
    EXPECT_EQ(span.GetAsNegative().ToString(), u"-P1D");
    EXPECT_EQ(CDateTimeSpan().GetAsNegative().ToString(), u"-P"); // that of zero
    span.Negate();
    EXPECT_EQ(span.ToString(), u"P1D");
}

TEST(CDateTimeSpan, ComparisonSeesYearsAndDaysOfTheSums) {
    ExpectAnswers(Span, {"P1Y = P12M", "P1Y < P2Y", "P2D > P1D", "P1D = PT24H", "P1M = P2M", "PT1H = PT2H",
                         "P1M ? P30D", "P2D ? P28D", "P1M30D ? P41D", "P6Y5M < P2372D", "P1M1D = P1D",
                         "P4M ? P1M", "P65535Y < P1Y", "P16777215M1D ? P1D",
                         "P1D < -P1D"}); // the day is the 2nd against the last
}

} // namespace
