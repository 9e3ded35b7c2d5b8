#include <KzXmlLib10/values/CDateTimeSpan.h>

#include "support/Failure.h"

#include <gtest/gtest.h>

#include <string>

using namespace KzXmlLib10;

namespace {

constexpr auto Refused = [](auto action) { return support::Failure<CKzInvalidValueException>(action); };

CDateTimeSpan Span(const char16_t* text) {
    CDateTimeSpan span;
    span.ParseXSDDuration(text);
    return span;
}

/// The text of what is read, or the message of the failure.
std::string Read(const char16_t* text) {
    CDateTimeSpan span;
    const std::string failure = Refused([&] { span = Span(text); });
    return failure != "no failure" ? failure : ToUtf8(span.ToString());
}

TEST(CDateTimeSpan, WhatIsReadIsWritten) {
    for (const char* text :
         {"P1Y2M3DT4H5M6.5S", "-P1D", "P1M", "PT1M", "P15M", "P400D", "PT36H", "PT90M", "PT0.5S",
          "PT0.001002S", "P65535Y4294967295M4294967295DT4294967295H2147483647M2147483647.999999S"})
        EXPECT_EQ(Read(FromUtf8(text).c_str()), text);
}

TEST(CDateTimeSpan, LenientFormsAreRead) {
    const struct {
        const char16_t* text;
        const char* expected;
    } rows[] = {{u"PT1.", "PT1S"},   {u"PT1.S", "PT1S"},    {u"PT.5S", "PT0.5S"},
                {u"PY", "P"},        {u"-PTS", "-P"},       {u"P5T1H", "PT1H"},
                {u"P1M2Y", "P2Y1M"}, {u"PT1H2Y", "P2YT1H"}, {u"P1Y1Y1M", "P1Y1M"}};
    for (const auto& row : rows)
        EXPECT_EQ(Read(row.text), row.expected);
    EXPECT_EQ(Span(u"PT1.5S2YT.7S").GetMilliSeconds(), 1200); // a second series adds to the fraction
}

TEST(CDateTimeSpan, BadFormsAreRefused) {
    for (const char* text :
         {"P",     "-P",   "PT",    "P1YT",   "P1",    "1Y",       "+P1Y",   "-",      "--P1Y",  "p1Y",
          " P1Y",  "P1Y ", "P1D1M", "P1M1M",  "P1D1D", "P1H",      "P1S",    "P.5S",   "PT1M1H", "PT1S1M",
          "PTT1H", "PT1D", "PT1.5", "PT1.5M", "PT1S5", "PT1.5.5S", "P1Y-1M", "PT1S.5S"})
        EXPECT_EQ(Read(FromUtf8(text).c_str()), "Invalid XSD Duration [" + std::string(text) +
                                                    "] expected [-]P[nY][nM][nD][T[nH][nM][nS.ff]]");
    EXPECT_EQ(Read(nullptr), "Invalid XSD Duration (Null String)");
    EXPECT_EQ(Read(u""), "Invalid XSD Duration (Empty String)");
    EXPECT_EQ(Read(u"PT0.1234567890S"), "Invalid XSD Duration [PT0.1234567890S] Fraction part too long");
}

TEST(CDateTimeSpan, OnlyTheLastOfTheNanosecondDigitsIsRead) {
    EXPECT_EQ(Span(u"PT0.123456789S").GetNanoSeconds(), 9);
    EXPECT_EQ(Read(u"PT0.123456789S"), "PT0.123456009S");
    EXPECT_EQ(Read(u"PT0.1234567S"), "PT0.123456007S");
}

TEST(CDateTimeSpan, NumbersWrapIn32Bits) {
    EXPECT_EQ(Span(u"P4294967297D").GetDays(), 1u);
    EXPECT_EQ(Span(u"P65537Y").GetYears(), 1);
    EXPECT_EQ(Span(u"PT2147483648M").GetMinutes(), 0xFFFFFFFF80000000u);
    EXPECT_EQ(Span(u"PT4294967295.5S").GetSeconds(), 0xFFFFFFFFFFFFFFFFu);
    EXPECT_EQ(Span(u"PT4294967295H").GetHours(), 4294967295u);
}

TEST(CDateTimeSpan, AFailedParseStartedAnew) {
    CDateTimeSpan span = Span(u"-P1Y2M");
    EXPECT_EQ(Refused([&] { span.ParseXSDDuration(nullptr); }), "Invalid XSD Duration (Null String)");
    EXPECT_EQ(span.ToString(), u"P");
}

TEST(CDateTimeSpan, TheZeroDurationIsWrittenAsP) {
    CDateTimeSpan zero;
    EXPECT_EQ(zero.ToString(), u"P");
    zero.Negate();
    EXPECT_EQ(zero.ToString(), u"-P");
}

TEST(CDateTimeSpan, SettingClearsTheSignAndWhatIsNotNamed) {
    CDateTimeSpan span(1, 2, 3, 4, 5, 6, 7, 8, 9);
    span.Negate();
    EXPECT_EQ(span.ToString(), u"-P1Y2M3DT4H5M6.007008009S");
    span.SetDateTimeSpan(1, 2, 3, 4, 5, 6);
    EXPECT_EQ(span.ToString(), u"P1Y2M3DT4H5M6S");
    span.SetDateTimeSpan(7, 8, 9);
    EXPECT_EQ(span.ToString(), u"PT7H8M9S");
    EXPECT_EQ(CDateTimeSpan(1, 0, 5).ToString(), u"PT1H5S");
    span.SetYears(1);
    span.SetMonths(15);
    span.SetDays(40);
    span.SetHours(50);
    span.SetMinutes(70);
    span.SetSeconds(0);
    span.SetMilliSeconds(5000);
    EXPECT_EQ(span.ToString(), u"P1Y15M40DT50H70M0.5S"); // no range check, and the zeros at the end go
    span.SetMicroSeconds(6);
    span.SetNanoSeconds(7);
    EXPECT_EQ(span.GetMicroSeconds() * 10 + span.GetNanoSeconds(), 67);
}

TEST(CDateTimeSpan, AsNegativeIsNoNegation) {
    CDateTimeSpan span = Span(u"-P1D");
    EXPECT_TRUE(span.GetAsNegative().IsNegative());
    EXPECT_TRUE(Span(u"P1D").GetAsNegative().IsNegative());
    span.Negate();
    EXPECT_EQ(span.ToString(), u"P1D");
}

TEST(CDateTimeSpan, ComparisonSeesYearsAndDaysOfTheSums) {
    const struct {
        const char16_t *left, *right;
        char expected;
    } rows[] = {{u"P1Y", u"P12M", '='},        {u"P1Y", u"P2Y", '<'},   {u"P2D", u"P1D", '>'},
                {u"P1D", u"PT24H", '='},       {u"P1D", u"-P1D", '<'}, // the day is the 2nd against the last
                {u"P1M", u"P2M", '='},         {u"PT1H", u"PT2H", '='}, {u"P1M", u"P30D", '?'},
                {u"P1M1D", u"P1D", '='},       {u"P4M", u"P1M", '?'},   {u"P65535Y", u"P1Y", '<'},
                {u"P16777215M1D", u"P1D", '?'}};
    for (const auto& row : rows)
        EXPECT_EQ("=<>?"[Span(row.left).CompareTo(Span(row.right))], row.expected)
            << ToUtf8(row.left) << " " << ToUtf8(row.right);
    EXPECT_TRUE(Span(u"P1Y") == Span(u"P12M"));
    EXPECT_FALSE(Span(u"P1Y") != Span(u"P12M"));
    EXPECT_TRUE(Span(u"P1D") < Span(u"P2D") && Span(u"P2D") > Span(u"P1D"));
    EXPECT_TRUE(Span(u"P1M") != Span(u"P30D"));
    EXPECT_FALSE(Span(u"P1M") == Span(u"P30D") || Span(u"P1M") < Span(u"P30D") ||
                 Span(u"P1M") > Span(u"P30D"));
}

} // namespace
