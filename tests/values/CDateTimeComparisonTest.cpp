#include <KzXmlLib10/values/CDateTime.h>

#include "support/Failure.h"

#include <gtest/gtest.h>

#include <string_view>

using namespace KzXmlLib10;

namespace {

constexpr auto Forbidden = [](auto action) { return support::Failure<CKzInvalidStateException>(action); };

CDateTime Parse(const char16_t* text) {
    CDateTime value;
    if (std::u16string_view(text).find(u'T') != std::u16string_view::npos)
        value.ParseXSDDateTime(text);
    else if (text[2] == u':')
        value.ParseXSDTime(text);
    else
        value.ParseXSDDate(text);
    return value;
}

/// The answer as one character: = < > or ? for indeterminate.
char Compare(const char16_t* left, const char16_t* right) {
    return "=<>?"[Parse(left).CompareTo(Parse(right))];
}

TEST(CDateTimeComparison, FieldsDecideInOrder) {
    const struct {
        const char16_t *left, *right;
        char expected;
    } rows[] = {{u"2001-05-12T13:20:00", u"2001-05-12T13:20:00", '='},
                {u"2000-12-31T23:59:59", u"2001-01-01T00:00:00", '<'},
                {u"2001-05-12T14:00:00", u"2001-05-12T13:59:59", '>'},
                {u"2001-05-12T13:21:00", u"2001-05-12T13:20:59", '>'},
                {u"2001-05-12T13:20:01", u"2001-05-12T13:20:00.999999999", '>'},
                {u"13:20:00.000000001", u"13:20:00.000000002", '<'},
                {u"13:20:00.001", u"13:20:00.000999", '>'},
                {u"2001", u"2002", '<'},
                {u"---12", u"---11", '>'},
                {u"--05-12", u"--05-13", '<'},
                {u"-0002", u"-0001", '<'}};
    for (const auto& row : rows)
        EXPECT_EQ(Compare(row.left, row.right), row.expected) << ToUtf8(row.left);
}

TEST(CDateTimeComparison, TheMonthOfTheRightHandSideIsNotRead) {
    EXPECT_EQ(Compare(u"2001-01-20", u"2001-02-10"), '>');
    EXPECT_EQ(Compare(u"2001-01-15", u"2001-02-15"), '=');
    EXPECT_EQ(Compare(u"2001-01", u"2001-12"), '=');
    EXPECT_EQ(Compare(u"--01", u"--12"), '=');
}

TEST(CDateTimeComparison, YearsOfDifferentSignAreIndeterminate) {
    EXPECT_EQ(Compare(u"-0001", u"0001"), '?');
    EXPECT_EQ(Compare(u"0001-01-01", u"-0001-01-01"), '?');
}

TEST(CDateTimeComparison, AMissingFieldCountsAsMinusOne) {
    EXPECT_EQ(Compare(u"2001-01-01", u"12:00:00"), '?');
    EXPECT_EQ(Compare(u"2001-05-12", u"2001-05"), '?');
    EXPECT_EQ(Compare(u"2001-05-12", u"2001-05-12T00:00:00"), '<'); // -1 against 0
    EXPECT_EQ(Compare(u"2001-05-12", u"2001-05-12T01:00:00"), '?'); // -1 against 1
    EXPECT_EQ(Compare(u"2001", u"2002-05"), '<');
    EXPECT_EQ(Forbidden([] { Compare(u"2001", u"2001-05"); }),
              "Failed to GetMonth. Invalid Date Type: gYear.");
}

TEST(CDateTimeComparison, OffsetsAreNormalised) {
    EXPECT_EQ(Compare(u"2001-01-01T00:30:00+01:00", u"2000-12-31T23:30:00Z"), '=');
    EXPECT_EQ(Compare(u"2000-02-28T22:00:00-05:30", u"2000-02-29T03:30:00+00:00"), '=');
    EXPECT_EQ(Compare(u"12:00:00+01:00", u"11:30:00Z"), '<');
    EXPECT_EQ(Parse(u"2001-01-01T00:30:00+01:00").GetNormalized().ToString(), u"2000-12-31T23:30:00+00:00");
    EXPECT_EQ(Parse(u"2001-12-31-01:00").GetNormalized().ToString(), u"2001-12-31+00:00");
    EXPECT_EQ(Parse(u"2001-01-01+01:00").GetNormalized().ToString(), u"2000-12-31+00:00");
    EXPECT_EQ(Parse(u"12:00:00Z").GetNormalized().ToString(), u"12:00:00Z");
    EXPECT_EQ(Parse(u"12:00:00").GetNormalized().ToString(), u"12:00:00");
}

TEST(CDateTimeComparison, NormalisingAYearMovesItsMissingMonthToTheYearBefore) {
    EXPECT_EQ(Parse(u"2001+01:00").GetNormalized().ToString(), u"2000+00:00");
    EXPECT_EQ(Compare(u"2001+01:00", u"2001Z"), '<');
}

TEST(CDateTimeComparison, OneZoneLeavesABandOf14HoursOnOneSide) {
    const struct {
        const char16_t *left, *right;
        char expected;
    } rows[] = {{u"2000-01-01T12:00:00Z", u"2000-01-01T12:00:00", '?'},
                {u"2000-01-01T12:00:00Z", u"2000-01-02T03:00:00", '<'},
                {u"2000-01-01T13:00:00Z", u"2000-01-01T12:00:00", '>'},
                {u"2000-01-01T12:00:00Z", u"2000-01-02T02:00:00", '?'},
                {u"2000-01-01T12:00:00Z", u"2000-01-02T02:00:01", '<'},
                {u"2000-01-01T12:00:00", u"2000-01-01T12:00:00Z", '?'},
                {u"2000-01-02T03:00:00", u"2000-01-01T12:00:00Z", '>'},
                {u"2000-01-01T12:00:00", u"2000-01-01T13:00:00Z", '<'},
                {u"2000-01-01T12:00:00", u"2000-01-01T13:00:00+05:00", '?'}};
    for (const auto& row : rows)
        EXPECT_EQ(Compare(row.left, row.right), row.expected) << ToUtf8(row.left);
}

TEST(CDateTimeComparison, OfAnIndeterminatePairOnlyUnequalHolds) {
    const struct {
        const char16_t* right;
        const char* expected; ///< == != < <= > >=
    } rows[] = {{u"2001", "100101"}, {u"2002", "011100"}, {u"2000", "010011"}, {u"-2001", "010000"}};
    for (const auto& row : rows) {
        const CDateTime l = Parse(u"2001");
        const CDateTime r = Parse(row.right);
        std::string holds;
        for (const bool held : {l == r, l != r, l<r, l <= r, l> r, l >= r})
            holds += held ? '1' : '0';
        EXPECT_EQ(holds, row.expected);
    }
}

} // namespace
