#include <KzXmlLib10/values/CDateTime.h>

#include "support/Failure.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>

using namespace KzXmlLib10;

namespace {

CDateTime Parse(const std::string& text) {
    const std::u16string wide = FromUtf8(text);
    CDateTime value;
    if (text.find('T') != std::string::npos)
        value.ParseXSDDateTime(wide.c_str());
    else if (text[2] == ':')
        value.ParseXSDTime(wide.c_str());
    else
        value.ParseXSDDate(wide.c_str());
    return value;
}

std::string Normalized(const char* text) { return ToUtf8(Parse(text).GetNormalized().ToString()); }

/// Each row is a value, the expected answer, = < > or ? for indeterminate, and another value.
void ExpectAnswers(std::initializer_list<std::string> rows) {
    for (const std::string& row : rows) {
        const std::size_t blank = row.find(' ');
        const CDateTime left = Parse(row.substr(0, blank));
        EXPECT_EQ("=<>?"[left.CompareTo(Parse(row.substr(blank + 3)))], row[blank + 1]) << row;
    }
}

TEST(CDateTimeComparison, FieldsDecideInOrder) {
    ExpectAnswers({"2001-05-12T13:20:00 = 2001-05-12T13:20:00", "2000-12-31T23:59:59 < 2001-01-01T00:00:00",
                   "2001-05-12T14:00:00 > 2001-05-12T13:59:59", "2001-05-12T13:21:00 > 2001-05-12T13:20:59",
                   "2001-05-12T13:20:01 > 2001-05-12T13:20:00.999999999",
                   "13:20:00.000000001 < 13:20:00.000000002", "13:20:00.001 > 13:20:00.000999", "2001 < 2002",
                   "---12 > ---11", "--05-12 < --05-13", "-0002 < -0001"});
}

TEST(CDateTimeComparison, TheMonthOfTheRightHandSideIsNotReadAndYearsOfDifferentSignAreIndeterminate) {
    ExpectAnswers({"2001-01-20 > 2001-02-10", "2001-01-15 = 2001-02-15", "2001-01 = 2001-12", "--01 = --12",
                   "-0001 ? 0001", "0001-01-01 ? -0001-01-01"});
}

TEST(CDateTimeComparison, AMissingFieldCountsAsMinusOne) {
    ExpectAnswers({"2001-01-01 ? 12:00:00", "2001-05-12 ? 2001-05", "2001 < 2002-05",
                   "2001-05-12 < 2001-05-12T00:00:00",   // -1 against 0
                   "2001-05-12 ? 2001-05-12T01:00:00"}); // -1 against 1
    EXPECT_EQ(support::Failure<CKzInvalidStateException>([] { ExpectAnswers({"2001 ? 2001-05"}); }),
              "Failed to GetMonth. Invalid Date Type: gYear.");
}

TEST(CDateTimeComparison, OffsetsAreNormalised) {
    ExpectAnswers({"2001-01-01T00:30:00+01:00 = 2000-12-31T23:30:00Z",
                   "2000-02-28T22:00:00-05:30 = 2000-02-29T03:30:00+00:00", "12:00:00+01:00 < 11:30:00Z"});
    EXPECT_EQ(Normalized("2001-01-01T00:30:00+01:00"), "2000-12-31T23:30:00+00:00");
    EXPECT_EQ(Normalized("2001-12-31-01:00"), "2001-12-31+00:00");
    EXPECT_EQ(Normalized("2001-01-01+01:00"), "2000-12-31+00:00");
    EXPECT_EQ(Normalized("12:00:00Z"), "12:00:00Z");
    EXPECT_EQ(Normalized("2001+01:00"), "2000+00:00"); // its missing month is in the year before
    ExpectAnswers({"2001+01:00 < 2001Z"});
}

TEST(CDateTimeComparison, OneZoneLeavesABandOf14HoursOnOneSide) {
    ExpectAnswers({"2000-01-01T12:00:00Z ? 2000-01-01T12:00:00", "2000-01-01T12:00:00Z < 2000-01-02T03:00:00",
                   "2000-01-01T13:00:00Z > 2000-01-01T12:00:00", "2000-01-01T12:00:00Z ? 2000-01-02T02:00:00",
                   "2000-01-01T12:00:00Z < 2000-01-02T02:00:01", "2000-01-01T12:00:00 ? 2000-01-01T12:00:00Z",
                   "2000-01-02T03:00:00 > 2000-01-01T12:00:00Z", "2000-01-01T12:00:00 < 2000-01-01T13:00:00Z",
                   "2000-01-01T12:00:00 ? 2000-01-01T13:00:00+05:00"});
}

TEST(CDateTimeComparison, OfAnIndeterminatePairOnlyUnequalHolds) {
    const CDateTime l = Parse("2001");
    for (const auto& [right, expected] : // == != < <= > >=
         {std::pair{"2001", "100101"}, {"2002", "011100"}, {"2000", "010011"}, {"-2001", "010000"}}) {
        const CDateTime r = Parse(right);
        std::string holds;
        for (const bool held : {l == r, l != r, l<r, l <= r, l> r, l >= r})
            holds += held ? '1' : '0';
        EXPECT_EQ(holds, expected);
    }
}

} // namespace
