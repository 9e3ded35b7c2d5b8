#include <KzXmlLib10/values/CDateTimeSpan.h>

#include "support/Failure.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

using namespace KzXmlLib10;

namespace {

constexpr auto Refused = [](auto action) { return support::Failure<CKzInvalidValueException>(action); };

CDateTimeSpan Span(const char16_t* text) {
    CDateTimeSpan span;
    span.ParseXSDDuration(text);
    return span;
}

std::string Add(const char16_t* dateTime, const char16_t* duration) {
    return ToUtf8((CDateTime(dateTime) + Span(duration)).ToString());
}

std::string AddToDate(const char16_t* date, const char16_t* duration) {
    CDateTime value;
    value.ParseXSDDate(date);
    return ToUtf8((value += Span(duration)).ToString());
}

TEST(CDateTimeArithmetic, UnitsCarryIntoTheNextOne) {
    EXPECT_EQ(AddToDate(u"2000-02-28", u"P1D"), "2000-02-29");
    EXPECT_EQ(AddToDate(u"2001-02-28", u"P1D"), "2001-03-01");
    EXPECT_EQ(AddToDate(u"2000-01-01", u"-P1D"), "1999-12-31");
    EXPECT_EQ(AddToDate(u"2000-03-01", u"-P1D"), "2000-02-29");
    EXPECT_EQ(AddToDate(u"2000-12-15Z", u"P1Y2M"), "2002-02-15Z");
    EXPECT_EQ(AddToDate(u"2000-01-15", u"-P1M"), "1999-12-15");
    EXPECT_EQ(AddToDate(u"2000-01-01", u"PT23H"), "2000-01-01");
    EXPECT_EQ(Add(u"2000-12-31T23:59:59.999999999", u"PT0.000000001S"), "2001-01-01T00:00:00");
    EXPECT_EQ(Add(u"2001-01-01T00:00:00", u"-PT0.000000001S"), "2000-12-31T23:59:59.999999999");
    EXPECT_EQ(Add(u"2000-01-01T00:00:00", u"P1Y3M5DT7H10M3.3S"), "2001-04-06T07:10:03.3");
    EXPECT_EQ(Add(u"2000-01-31T00:00:00+05:00", u"PT100000S"), "2000-02-01T03:46:40+05:00");
}

TEST(CDateTimeArithmetic, TheDayIsNotCutUnlessDaysMoveIt) {
    EXPECT_EQ(AddToDate(u"2001-01-31", u"P1M"), "2001-02-31");
    EXPECT_EQ(AddToDate(u"2001-01-31", u"P1M1D"), "2001-03-04");
}

TEST(CDateTimeArithmetic, AYearOfZeroStays) {
    EXPECT_EQ(AddToDate(u"0001-05-12", u"-P1Y"), "0000-05-12");
    EXPECT_EQ(AddToDate(u"0001-05-12", u"-P2Y"), "-0001-05-12");
    EXPECT_EQ(AddToDate(u"9999-05-12", u"P30000Y"), "-25537-05-12"); // 16 bits
}

TEST(CDateTimeArithmetic, SubtractionMovesBackwardsWhateverTheSign) {
    CDateTime value(2000, 1, 1);
    EXPECT_EQ((value - Span(u"P1D")).ToString(), u"1999-12-31");
    EXPECT_EQ((value - Span(u"-P1D")).ToString(), u"1999-12-31");
    EXPECT_EQ((value -= Span(u"-P1M")).ToString(), u"1999-12-01");
    EXPECT_EQ((value - CDateTime(2001, 1, 1)).ToString(), u"P"); // the difference of values is always zero
}

// The expected values come from a walk over the months with exact rational numbers rounded to 24 bits.
TEST(CDateTimeArithmetic, QuotientsHaveSinglePrecisionAndNumbersWrap) {
    EXPECT_EQ(Add(u"2000-01-31T00:00:00", u"PT100000001S"), "2003-04-02T09:46:41");
    EXPECT_EQ(Add(u"2000-01-01T00:00:00", u"PT2147483648M"), "-2084-12-08T20:112:00");
    EXPECT_EQ(Add(u"2000-01-01T00:00:00", u"P4294967295D"), "30277-04-15T00:00:00");
    EXPECT_EQ(Add(u"2000-01-01T00:00:00", u"-P4294967295D"), "-26278-09-18T00:00:00");
}

TEST(CDateTimeArithmetic, AMonthThatIsNoneIsRefusedOnlyWhereItsLengthIsNeeded) {
    EXPECT_EQ(AddToDate(u"1696-09-01", u"P16777215M"), "23542-00-01");
    EXPECT_EQ(AddToDate(u"1696-09-01", u"P201326593M"), "1698-242-01");
    EXPECT_EQ(Refused([] { AddToDate(u"1696-09-01", u"P16777215M1D"); }),
              "Invalid Month [0] (1 <= month <= 12)");
    EXPECT_EQ(Refused([] { AddToDate(u"1696-09-01", u"P201326593M1D"); }),
              "Invalid Month [242] (1 <= month <= 12)");
}

int Length(int year, int month) {
    constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return lengths[month - 1] + (month == 2 && leap);
}

/// Moves a date by days on foot, a month at a time.
void Walk(std::int16_t& year, int& month, int& day, long long days) {
    while (days > 0) {
        const int length = Length(year, month);
        if (day + days <= length) {
            day += static_cast<int>(days);
            return;
        }
        days += day - length - 1;
        day = 1;
        if (++month == 13) {
            month = 1;
            ++year;
        }
    }
    while (days < 0) {
        if (day - 1 >= -days) {
            day += static_cast<int>(days);
            return;
        }
        days += day;
        if (--month == 0) {
            month = 12;
            --year;
        }
        day = Length(year, month);
    }
}

TEST(CDateTimeArithmetic, MovingByDaysEqualsAWalkOverTheMonths) {
    std::mt19937 random(1);
    for (int round = 0; round < 5000; ++round) {
        // Any 16-bit year, days that the month does not have, and some moves round all 65,536 years.
        std::int16_t year = static_cast<std::int16_t>(random());
        int month = static_cast<int>(random() % 12 + 1);
        int day = static_cast<int>(random() % 40);
        const unsigned days = round % 1000 == 0 ? 50000000 + random() % 100000
                              : round % 2       ? random() % 100
                                                : random() % 300000;
        const bool back = random() % 2;
        CDateTime value(2000, 1, 1);
        value.SetYear(year);
        value.SetMonth(static_cast<std::uint8_t>(month));
        value.SetDay(static_cast<std::uint8_t>(day));
        const CDateTimeSpan span(0, 0, days, 0, 0, 0);
        back ? value -= span : value += span;
        Walk(year, month, day, back ? -static_cast<long long>(days) : days);
        ASSERT_EQ(std::tuple(value.GetYear(), value.GetMonth(), value.GetDay()), std::tuple(year, month, day))
            << round;
    }
}

} // namespace
