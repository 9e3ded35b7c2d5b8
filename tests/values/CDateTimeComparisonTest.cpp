#include "values/Dates.h"

namespace {

void ExpectAnswers(std::initializer_list<std::string> rows) { support::ExpectAnswers(Moment, rows); }

TEST(CDateTimeComparison, FieldsDecideInOrder) {
    ExpectAnswers({"2001-05-12T13:20:00 = 2001-05-12T13:20:00", "2000-12-31T23:59:59 < 2001-01-01T00:00:00",
                   "2001-05-12T14:00:00 > 2001-05-12T13:59:59", "2001-05-12T13:21:00 > 2001-05-12T13:20:59",
                   "2001-05-12T13:20:01 > 2001-05-12T13:20:00.999999999",
                   "13:20:00.000000001 < 13:20:00.000000002", "13:20:00.001 > 13:20:00.000999", "2001 < 2002",
                   "---12 > ---11", "--05-12 < --05-13", "-0002 < -0001",
                   // The month of the right-hand side is not read, and years of different sign are
                   // indeterminate.
                   "2001-01-20 > 2001-02-10", "2001-01-15 = 2001-02-15", "2001-01 = 2001-12", "--01 = --12",
                   "-0001 ? 0001", "0001-01-01 ? -0001-01-01",
                   // A missing field counts as -1.
                   "2001-01-01 ? 12:00:00", "2001-05-12 ? 2001-05", "2001 < 2002-05",
                   "2001-05-12 < 2001-05-12T00:00:00",   // -1 against 0
                   "2001-05-12 ? 2001-05-12T01:00:00"}); // -1 against 1
    EXPECT_EQ(InvalidState([] { ExpectAnswers({"2001 ? 2001-05"}); }),
              "Failed to GetMonth. Invalid Date Type: gYear.");
}

TEST(CDateTimeComparison, OffsetsAreNormalised) {
    ExpectAnswers({"2001-01-01T00:30:00+01:00 = 2000-12-31T23:30:00Z",
                   "2000-02-28T22:00:00-05:30 = 2000-02-29T03:30:00+00:00", "12:00:00+01:00 < 11:30:00Z",
                   "2001+01:00 < 2001Z"});
    ExpectRows({"2001-01-01T00:30:00+01:00 -> 2000-12-31T23:30:00+00:00",
                "2001-12-31-01:00 -> 2001-12-31+00:00", "2001-01-01+01:00 -> 2000-12-31+00:00",
                "12:00:00Z -> 12:00:00Z",
                "2001+01:00 -> 2000+00:00"}, // its missing month is in the year before
               [](const char16_t* text) { return ToUtf8(Moment(text).GetNormalized().ToString()); });
}

TEST(CDateTimeComparison, OneZoneLeavesABandWithoutOrder) {
    ExpectAnswers({"2000-01-01T12:00:00Z ? 2000-01-01T12:00:00", "2000-01-01T12:00:00Z < 2000-01-02T03:00:00",
                   "2000-01-01T12:00:01Z > 2000-01-01T12:00:00", "2000-01-01T12:00:00Z ? 2000-01-02T02:00:00",
                   "2000-01-01T12:00:00Z < 2000-01-02T02:00:01", "2000-01-01T12:00:00 ? 2000-01-01T12:00:00Z",
                   "2000-01-02T03:00:00 > 2000-01-01T12:00:00Z", "2000-01-01T12:00:00 < 2000-01-01T13:00:00Z",
                   "2000-01-01T12:00:00 ? 2000-01-01T13:00:00+05:00"});
    const CDateTime l = Moment(u"2001");
    ExpectRows({"2001 -> 11", "2002 -> 10", "2000 -> 01", "-2001 -> 00"}, [&](const char16_t* r) {
        return std::to_string(l <= Moment(r)) + std::to_string(l >= Moment(r));
    });
}

} // namespace
