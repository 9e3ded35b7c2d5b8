#include <KzXmlLib10/conversions/FacetChecks.h>

#include "support/Failure.h"

#include <KzXmlLib10/conversions/CConversions.h>
#include <KzXmlLib10/conversions/CPrimitiveRestrictions.h>
#include <KzXmlLib10/values/KzVariant.h>

#include <gtest/gtest.h>

#include <cmath>
#include <typeinfo>
#include <utility>

using namespace KzXmlLib10;
using support::Failure;

namespace {

CPrimitiveRestrictions Bounds(const char16_t* minInclusive, const char16_t* maxInclusive,
                              const char16_t* minExclusive = u"", const char16_t* maxExclusive = u"") {
    return {u"", -1, -1, minInclusive, maxInclusive, minExclusive, maxExclusive, -1};
}

CPrimitiveRestrictions Lengths(int minLength, int maxLength, int length, const char16_t* pattern = u"") {
    return {pattern, minLength, maxLength, u"", u"", u"", u"", length};
}

/// "passes", or the message of the violation.
std::u16string Outcome(const char16_t* text, ItemType type, const CPrimitiveRestrictions& restrictions) {
    KzVariant value;
    value.FromString(text, type, CWhitespaceUtils::WhitespaceRule_None);
    try {
        CheckPrimitiveRestrictions(u"name", value, type, restrictions);
        return u"passes";
    } catch (const CKzException& e) {
        EXPECT_EQ(typeid(e), typeid(CKzException));
        EXPECT_EQ(e.GetInnerException(), nullptr);
        return e.GetFullMessage();
    }
}

TEST(FacetChecks, BoundsOfEachKind) {
    struct Row {
        ItemType type;
        const char16_t *low, *inside, *high;
        const char16_t* violation;
    };
    const Row rows[] = {
        {ItemType_i1, u"-128", u"-5", u"5", u"Invalid Value for name [-128]"},
        {ItemType_i2, u"-32768", u"-5", u"5", u"Invalid Value for name [-32768]"},
        {ItemType_i4, u"-2147483648", u"-5", u"5", u"Invalid Value for name [-2147483648]"},
        {ItemType_i8, u"-9223372036854775808", u"-5", u"5", u"Invalid Value for name [-9223372036854775808]"},
        {ItemType_ui1, u"100", u"150", u"255", u"Invalid Value for name [100]"},
        {ItemType_ui2, u"100", u"40000", u"65535", u"Invalid Value for name [100]"},
        {ItemType_ui4, u"100", u"3000000000", u"4294967295", u"Invalid Value for name [100]"},
        {ItemType_ui8, u"100", u"10000000000000000000", u"18446744073709551615",
         u"Invalid Value for name [100]"},
        {ItemType_r4, u"0.5", u"1.5", u"2.5", u"Invalid Value for name [0.500000]"},
        {ItemType_r8, u"-INF", u"-1e300", u"INF", u"Invalid Value for name [-inf]"},
        {ItemType_decimal, u"-5.50", u"-5.4", u"0.1", u"Invalid Value for name [-5.5]"},
        {ItemType_integer, u"-100000000000000000000", u"-99", u"100",
         u"Invalid Value for name [-100000000000000000000]"},
        {ItemType_year, u"1999", u"2000", u"-9999", u"Invalid Value for name [1999]"},
        {ItemType_month, u"--05", u"--10", u"--12", u"Invalid Value for name [5]"},
        {ItemType_day, u"---05", u"---10", u"---31", u"Invalid Value for name [5]"},
        {ItemType_datetime, u"2001-05-01T00:00:00Z", u"2001-05-01T00:00:00.5Z", u"2001-05-01T02:00:00+01:00",
         u"Invalid Value for name [2001-05-01T00:00:00Z]"},
        {ItemType_date, u"2001-05-01", u"2001-05-02", u"2002-05-01", u"Invalid Value for name [2001-05-01]"},
        {ItemType_time, u"00:00:00", u"00:00:01", u"12:00:00", u"Invalid Value for name [00:00:00]"},
        {ItemType_yearMonth, u"2001-05", u"2002-05", u"2003-05", u"Invalid Value for name [2001-05]"},
        {ItemType_monthDay, u"--05-01", u"--05-02", u"--05-31", u"Invalid Value for name [--05-01]"},
        {ItemType_duration, u"P1D", u"P2D", u"P3D", u"Invalid Value for name [P1D]"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Outcome(row.inside, row.type, Bounds(row.inside, row.inside)), u"passes");
        EXPECT_EQ(Outcome(row.inside, row.type, Bounds(u"", u"", row.low, row.high)), u"passes");
        EXPECT_EQ(Outcome(row.low, row.type, Bounds(row.inside, u"")), row.violation);
        EXPECT_EQ(Outcome(row.low, row.type, Bounds(u"", u"", row.low, u"")), row.violation);
        EXPECT_NE(Outcome(row.high, row.type, Bounds(u"", row.inside)), u"passes");
        EXPECT_NE(Outcome(row.high, row.type, Bounds(u"", u"", u"", row.high)), u"passes");
        EXPECT_EQ(Outcome(row.low, row.type, Lengths(9, 0, 9, u"(")), u"passes");
        EXPECT_EQ(Outcome(row.low, row.type, CPrimitiveRestrictions()), u"passes");
    }
    EXPECT_EQ(Outcome(u"4294967295", ItemType_ui4, Bounds(u"", u"1")), u"Invalid Value for name [-1]");
    EXPECT_EQ(Outcome(u"1e308", ItemType_r8, Bounds(u"", u"1")).size(), 309u + 32u);
    EXPECT_EQ(Outcome(u"6", ItemType_i4, Bounds(u"", u"", u" 5 ", u"")), u"passes");
}

TEST(FacetChecks, WhatIsIndeterminatePassesEveryBound) {
    struct Row {
        ItemType type;
        const char16_t *value, *bound;
    };
    for (const auto& [type, value, bound] :
         {Row{ItemType_date, u"2001-05-02Z", u"2001-05-02"}, Row{ItemType_yearMonth, u"-0001-05", u"0001-05"},
          Row{ItemType_datetime, u"2000-01-01T12:00:00", u"2000-01-01T11:00:00Z"},
          Row{ItemType_duration, u"P1M", u"P30D"}, Row{ItemType_date, u"2001-05-02", u"2001"}})
        EXPECT_EQ(Outcome(value, type, Bounds(bound, bound, bound, bound)), u"passes");
    // Deliberate: months do not count in the order of dates and durations.
    EXPECT_EQ(Outcome(u"2001-06-15", ItemType_date, Bounds(u"2001-07-15", u"2001-05-15")), u"passes");
    EXPECT_EQ(Outcome(u"P1M", ItemType_duration, Bounds(u"P2M", u"P2M")), u"passes");
}

TEST(FacetChecks, TheSignOfAZeroDoesNotCount) {
    for (const ItemType type : {ItemType_integer, ItemType_decimal})
        for (const char16_t* zero : {u"0", u"-0"}) {
            EXPECT_EQ(Outcome(zero, type, Bounds(u"0", u"0")), u"passes");
            EXPECT_EQ(Outcome(zero, type, Bounds(u"-0", u"-0")), u"passes");
            EXPECT_EQ(Outcome(zero, type, Bounds(u"", u"", u"-0", u"")), u"Invalid Value for name [0]");
            EXPECT_EQ(Outcome(zero, type, Bounds(u"", u"", u"", u"0")), u"Invalid Value for name [0]");
        }
    EXPECT_NO_THROW(CheckDecimal(u"name", CDecimal(u"-2") + CDecimal(u"-3"), Bounds(u"-5", u"-5")));
    EXPECT_NO_THROW(CheckDecimal(u"name", CDecimal(5).GetNegative(), Bounds(u"-5", u"-5")));
}

TEST(FacetChecks, LengthsOfBinaryDataAreInBytes) {
    for (const auto& [type, text] :
         {std::pair(ItemType_hexBinary, u"0aff01"), std::pair(ItemType_base64Binary, u"Cv8B")}) {
        EXPECT_EQ(Outcome(text, type, Lengths(3, 3, 3, u"(")), u"passes");
        for (const auto& lengths : {Lengths(4, -1, -1), Lengths(-1, 2, -1), Lengths(-1, -1, 2)})
            EXPECT_EQ(Outcome(text, type, lengths), u"Invalid Value for name [0AFF01]");
    }
    EXPECT_NO_THROW(CheckHexBinary(u"name", CBinaryData(), Lengths(0, 0, 0)));
    EXPECT_THROW(CheckBase64Binary(u"name", CBinaryData(), Lengths(1, -1, -1)), CKzException);
}

TEST(FacetChecks, NaNFailsEveryBound) {
    for (const ItemType type : {ItemType_r4, ItemType_r8}) {
        EXPECT_EQ(Outcome(u"NaN", type, CPrimitiveRestrictions()), u"passes");
        for (const auto& bounds :
             {Bounds(u"0", u""), Bounds(u"", u"0"), Bounds(u"", u"", u"0", u""), Bounds(u"", u"", u"", u"0")})
            EXPECT_EQ(Outcome(u"NaN", type, bounds), u"Invalid Value for name [nan]");
    }
}

TEST(FacetChecks, BoundsAreReadWhenTheyAreReached) {
    EXPECT_EQ(Outcome(u"1", ItemType_i4, Bounds(u"5", u"bad")), u"Invalid Value for name [1]");
    KzVariant value;
    value.SetI4(7);
    EXPECT_EQ(Failure<CKzInvalidValueException>(
                  [&] { CheckPrimitiveRestrictions(u"name", value, ItemType_i4, Bounds(u"5", u"bad")); }),
              "The value [bad] can not be converted to a i4");
}

TEST(FacetChecks, LengthsAndPatternsOfTexts) {
    struct Row {
        const char16_t* text;
        CPrimitiveRestrictions restrictions;
        const char16_t* outcome;
    };
    const Row rows[] = {
        {u"a", Lengths(2, -1, -1), u"Invalid Value for name [a]"},
        {u"ab", Lengths(2, 2, 2), u"passes"},
        {u"abc", Lengths(-1, 2, -1), u"Invalid Value for name [abc]"},
        {u"abc", Lengths(-1, -1, 2), u"Invalid Value for name [abc]"},
        {u"", Lengths(0, 0, 0), u"passes"},
        {u"\U0001F600", Lengths(-1, -1, 2), u"passes"},
        {u"\u00E9\u00E9", Lengths(2, 2, 2, u"\u00E9+"), u"passes"},
        {u"abc", Lengths(-1, -1, -1, u"[ab]*"), u"Invalid Value for name [abc]"},
        // The pattern is not even compiled if a length is broken.
        {u"abc", Lengths(-1, 2, -1, u"("), u"Invalid Value for name [abc]"},
        {u"ab", Lengths(-1, 2, -1, u"("),
         u"Invalid Regular Expression: ab Error: 'missing closing parenthesis'\nInvalid Value for name [ab]"},
        {u"abc", Bounds(u"x", u"a"), u"passes"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Outcome(row.text, ItemType_string, row.restrictions), row.outcome);
    EXPECT_EQ(Outcome(u"1", ItemType_boolean, {u"(", 9, 0, u"x", u"x", u"x", u"x", 9}), u"passes");
}

TEST(FacetChecks, KindsWithoutACheckAreRefused) {
    KzVariant value;
    value.SetChar(u'a');
    const auto check = [&](ItemType type) {
        return Failure<CKzInvalidValueException>(
            [&] { CheckPrimitiveRestrictions(u"name", value, type, CPrimitiveRestrictions()); });
    };
    EXPECT_EQ(check(ItemType_char), "unknown type [char]");
    EXPECT_EQ(check(ItemType_xmlObject), "unknown type [char]");
}

TEST(FacetChecks, RestrictionsRefuseNullTexts) {
    EXPECT_EQ(Failure<CKzInvalidParamException>(
                  [] { CPrimitiveRestrictions(nullptr, -1, -1, u"", u"", u"", u"", -1); }),
              "The argument pattern may not be null");
    EXPECT_THROW(CPrimitiveRestrictions(u"", -1, -1, u"", u"", u"", nullptr, -1), CKzInvalidParamException);
}

} // namespace
