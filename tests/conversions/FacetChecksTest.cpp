#include "support/Test.h"

namespace {

CPrimitiveRestrictions Bounds(const char16_t* minInclusive, const char16_t* maxInclusive,
                              const char16_t* minExclusive = u"", const char16_t* maxExclusive = u"") {
    return {u"", -1, -1, minInclusive, maxInclusive, minExclusive, maxExclusive, -1};
}

CPrimitiveRestrictions Lengths(int minLength, int maxLength, int length, const char16_t* pattern = u"") {
    return {pattern, minLength, maxLength, u"", u"", u"", u"", length};
}

const std::string passes = "no failure";
std::string Violation(const std::string& shown) { return "Invalid Value for name [" + shown + "]"; }

/// The message of the violation, if there is one.
template <class E = CKzException>
std::string Outcome(const std::u16string& text, ItemType type, const CPrimitiveRestrictions& restrictions) {
    KzVariant value;
    value.FromString(text.c_str(), type, CWhitespaceUtils::WhitespaceRule_None);
    return Failure<E>([&] { CheckPrimitiveRestrictions(u"name", value, type, restrictions); });
}

TEST(FacetChecks, BoundsOfEachKind) {
    const struct {
        ItemType type;
        const char16_t *low, *inside, *high;
        const char* shown = nullptr; // of the low value, if it is not as it was read
    } rows[] = {
        {ItemType_i1, u"-128", u"-5", u"5"},
        {ItemType_i2, u"-32768", u"-5", u"5"},
        {ItemType_i4, u"-2147483648", u"-5", u"5"},
        {ItemType_i8, u"-9223372036854775808", u"-5", u"5"},
        {ItemType_ui1, u"100", u"150", u"255"},
        {ItemType_ui2, u"100", u"40000", u"65535"},
        {ItemType_ui4, u"100", u"3000000000", u"4294967295"},
        {ItemType_ui8, u"100", u"10000000000000000000", u"18446744073709551615"},
        {ItemType_r4, u"0.5", u"1.5", u"2.5", "0.500000"},
        {ItemType_r8, u"-INF", u"-1e300", u"INF", "-inf"},
        {ItemType_decimal, u"-5.50", u"-5.4", u"0.1", "-5.5"},
        {ItemType_integer, u"-100000000000000000000", u"-99", u"100"},
        {ItemType_year, u"1999", u"2000", u"-9999"},
        {ItemType_month, u"--05", u"--10", u"--12", "5"},
        {ItemType_day, u"---05", u"---10", u"---31", "5"},
        {ItemType_datetime, u"2001-05-01T00:00:00Z", u"2001-05-01T00:00:00.5Z", u"2001-05-01T02:00:00+01:00"},
        {ItemType_date, u"2001-05-01", u"2001-05-02", u"2002-05-01"},
        {ItemType_time, u"00:00:00", u"00:00:01", u"12:00:00"},
        {ItemType_yearMonth, u"2001-05", u"2002-05", u"2003-05"},
        {ItemType_monthDay, u"--05-01", u"--05-02", u"--05-31"},
        {ItemType_duration, u"P1D", u"P2D", u"P3D"}};
    for (const auto& [type, low, inside, high, shown] : rows) {
        const std::string tooLow = Violation(shown ? shown : ToUtf8(low));
        EXPECT_EQ(Outcome(inside, type, Bounds(inside, inside)), passes);
        EXPECT_EQ(Outcome(inside, type, Bounds(u"", u"", low, high)), passes);
        EXPECT_EQ(Outcome(low, type, Bounds(inside, u"")), tooLow);
        EXPECT_EQ(Outcome(low, type, Bounds(u"", u"", low, u"")), tooLow);
        EXPECT_NE(Outcome(high, type, Bounds(u"", inside)), passes);
        EXPECT_NE(Outcome(high, type, Bounds(u"", u"", u"", high)), passes);
        EXPECT_EQ(Outcome(low, type, Lengths(9, 0, 9, u"(")), passes);
        EXPECT_EQ(Outcome(low, type, CPrimitiveRestrictions()), passes);
    }
    EXPECT_EQ(Outcome(u"4294967295", ItemType_ui4, Bounds(u"", u"1")), Violation("-1"));
    EXPECT_EQ(Outcome(u"1e308", ItemType_r8, Bounds(u"", u"1")).size(), 309u + 32u);
    EXPECT_EQ(Outcome(u"6", ItemType_i4, Bounds(u"", u"", u" 5 ", u"")), passes);
}

TEST(FacetChecks, WhatIsIndeterminatePassesEveryBound) {
    for (const auto& [type, value, bound] :
         {std::tuple{ItemType_date, u"2001-05-02Z", u"2001-05-02"},
          std::tuple{ItemType_yearMonth, u"-0001-05", u"0001-05"},
          std::tuple{ItemType_datetime, u"2000-01-01T12:00:00", u"2000-01-01T11:00:00Z"},
          std::tuple{ItemType_duration, u"P1M", u"P30D"}, std::tuple{ItemType_date, u"2001-05-02", u"2001"}})
        EXPECT_EQ(Outcome(value, type, Bounds(bound, bound, bound, bound)), passes);
    // Deliberate: months do not count in the order of dates and durations.
    EXPECT_EQ(Outcome(u"2001-06-15", ItemType_date, Bounds(u"2001-07-15", u"2001-05-15")), passes);
    EXPECT_EQ(Outcome(u"P1M", ItemType_duration, Bounds(u"P2M", u"P2M")), passes);
}

TEST(FacetChecks, TheSignOfAZeroDoesNotCount) {
    for (const ItemType type : {ItemType_integer, ItemType_decimal})
        for (const char16_t* zero : {u"0", u"-0"}) {
            EXPECT_EQ(Outcome(zero, type, Bounds(u"0", u"0")), passes);
            EXPECT_EQ(Outcome(zero, type, Bounds(u"-0", u"-0")), passes);
            EXPECT_EQ(Outcome(zero, type, Bounds(u"", u"", u"-0", u"")), Violation("0"));
            EXPECT_EQ(Outcome(zero, type, Bounds(u"", u"", u"", u"0")), Violation("0"));
        }
    EXPECT_NO_THROW(CheckDecimal(u"name", CDecimal(u"-2") + CDecimal(u"-3"), Bounds(u"-5", u"-5")));
    EXPECT_NO_THROW(CheckDecimal(u"name", CDecimal(5).GetNegative(), Bounds(u"-5", u"-5")));
}

TEST(FacetChecks, LengthsOfBinaryDataAreInBytes) {
    for (const auto& [type, text] :
         {std::pair(ItemType_hexBinary, u"0aff01"), std::pair(ItemType_base64Binary, u"Cv8B")}) {
        EXPECT_EQ(Outcome(text, type, Lengths(3, 3, 3, u"(")), passes);
        for (const auto& lengths : {Lengths(4, -1, -1), Lengths(-1, 2, -1), Lengths(-1, -1, 2)})
            EXPECT_EQ(Outcome(text, type, lengths), Violation("0AFF01"));
    }
    EXPECT_NO_THROW(CheckHexBinary(u"name", CBinaryData(), Lengths(0, 0, 0)));
    EXPECT_THROW(CheckBase64Binary(u"name", CBinaryData(), Lengths(1, -1, -1)), CKzException);
}

TEST(FacetChecks, NaNFailsEveryBound) {
    for (const ItemType type : {ItemType_r4, ItemType_r8}) {
        EXPECT_EQ(Outcome(u"NaN", type, CPrimitiveRestrictions()), passes);
        for (const auto& bounds :
             {Bounds(u"0", u""), Bounds(u"", u"0"), Bounds(u"", u"", u"0", u""), Bounds(u"", u"", u"", u"0")})
            EXPECT_EQ(Outcome(u"NaN", type, bounds), Violation("nan"));
    }
}

TEST(FacetChecks, BoundsAreReadWhenTheyAreReached) {
    EXPECT_EQ(Outcome(u"1", ItemType_i4, Bounds(u"5", u"bad")), Violation("1"));
    EXPECT_EQ(Outcome<CKzInvalidValueException>(u"7", ItemType_i4, Bounds(u"5", u"bad")),
              "The value [bad] can not be converted to a i4");
}

TEST(FacetChecks, LengthsAndPatternsOfTexts) {
    const std::tuple<const char16_t*, CPrimitiveRestrictions, std::string> rows[] = {
        {u"a", Lengths(2, -1, -1), Violation("a")},
        {u"abc", Lengths(-1, 2, -1), Violation("abc")},
        {u"abc", Lengths(-1, -1, 2), Violation("abc")},
        {u"", Lengths(0, 0, 0), passes},
        {u"\U0001F600", Lengths(-1, -1, 2), passes},
        {u"\u00E9\u00E9", Lengths(2, 2, 2, u"\u00E9+"), passes},
        {u"abc", Lengths(-1, -1, -1, u"[ab]*"), Violation("abc")},
        // The pattern is not even compiled if a length is broken.
        {u"abc", Lengths(-1, 2, -1, u"("), Violation("abc")},
        {u"ab", Lengths(-1, 2, -1, u"("),
         "Invalid Regular Expression: ab Error: 'missing closing parenthesis'\n" + Violation("ab")},
        {u"abc", Bounds(u"x", u"a"), passes},
        {u"abc", CPrimitiveRestrictions(), passes}};
    for (const auto& [text, restrictions, outcome] : rows)
        EXPECT_EQ(Outcome(text, ItemType_string, restrictions), outcome);
    // Kinds without facets or without a check, and null texts.
    EXPECT_EQ(Outcome(u"1", ItemType_boolean, {u"(", 9, 0, u"x", u"x", u"x", u"x", 9}), passes);
    EXPECT_EQ(Outcome<CKzInvalidValueException>(u"a", ItemType_char, {}), "unknown type [char]");
    EXPECT_EQ(InvalidParam([] { CPrimitiveRestrictions(nullptr, -1, -1, u"", u"", u"", u"", -1); }),
              "The argument pattern may not be null");
}

} // namespace
