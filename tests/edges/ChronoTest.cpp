#include <KzXmlLib10/edges/Chrono.h>

#include "support/Failure.h"

#include <gtest/gtest.h>

using namespace KzXmlLib10;
using namespace std::chrono;
using namespace std::chrono_literals;
using support::Failure;

namespace {

static_assert(!ExactDuration<months> && !ExactDuration<years> && ExactDuration<weeks>);
static_assert(!ExactDuration<duration<double>> && !ExactDuration<duration<long long, std::pico>>);

using Frames = duration<std::int64_t, std::ratio<1, 24>>;

CDateTime Date(const char16_t* text) {
    CDateTime value;
    value.ParseXSDDate(text);
    return value;
}
CDateTime Time(const char16_t* text) {
    CDateTime value;
    value.ParseXSDTime(text);
    return value;
}
CDateTimeSpan Span(const char16_t* text) {
    CDateTimeSpan value;
    value.ParseXSDDuration(text);
    return value;
}

TEST(Chrono, PointsInTimeGoBothWays) {
    const struct {
        sys_seconds time;
        const char16_t* text;
    } rows[] = {{sys_days(1970y / 1 / 1), u"1970-01-01T00:00:00Z"},
                {sys_days(1969y / 12 / 31) + 23h + 59min + 59s, u"1969-12-31T23:59:59Z"},
                {sys_days(2000y / 2 / 29) + 12h, u"2000-02-29T12:00:00Z"},
                {sys_days(9999y / 12 / 31) + 23h, u"9999-12-31T23:00:00Z"},
                {sys_days(year(-4) / 2 / 29), u"-0004-02-29T00:00:00Z"}};
    for (const auto& [time, text] : rows) {
        EXPECT_EQ(FromChrono(time).ToString(), text);
        EXPECT_EQ(ToSysTime<seconds>(CDateTime(text)), time);
        EXPECT_EQ(ToSysTime<milliseconds>(FromChrono(time)), time);
        EXPECT_EQ(FromChrono(local_seconds(time.time_since_epoch())).ToString() + u"Z", text);
    }
    const sys_time<nanoseconds> fine = sys_days(1969y / 7 / 20) + 20h + 17min + 40s + 123456789ns;
    EXPECT_EQ(FromChrono(fine).ToString(), u"1969-07-20T20:17:40.123456789Z");
    EXPECT_EQ(ToSysTime(FromChrono(fine)), fine);
    EXPECT_EQ(ToLocalTime(CDateTime(u"1969-07-20T20:17:40.5")).time_since_epoch(),
              (sys_days(1969y / 7 / 20) + 20h + 17min + 40s + 500ms).time_since_epoch());
    // An offset is taken off, with its minutes.
    EXPECT_EQ(ToSysTime<minutes>(CDateTime(u"2024-01-01T00:30:00+01:45")),
              sys_days(2023y / 12 / 31) + 22h + 45min);
    EXPECT_EQ(ToSysTime<minutes>(CDateTime(u"2023-12-31T22:45:00-02:30")),
              sys_days(2024y / 1 / 1) + 1h + 15min);
}

TEST(Chrono, FieldsGoBothWays) {
    EXPECT_EQ(FromChrono(2024y / 5 / 16).ToString(), u"2024-05-16");
    EXPECT_EQ(ToYearMonthDay(Date(u"2024-05-16")), 2024y / 5 / 16);
    EXPECT_EQ(FromChrono(2024y / May).ToString(), u"2024-05");
    EXPECT_EQ(ToYearMonth(Date(u"2024-05")), 2024y / May);
    EXPECT_EQ(FromChrono(2024y).ToString(), u"2024");
    EXPECT_EQ(ToYear(Date(u"2024")), 2024y);
    EXPECT_EQ(ToMonthDay(FromChrono(February / 29)), February / 29);
    EXPECT_EQ(ToMonth(FromChrono(May)), May);
    EXPECT_EQ(ToDay(FromChrono(31d)), 31d);
    EXPECT_EQ(FromChrono(hh_mm_ss(13h + 20min + 5ms)).ToString(), u"13:20:00.005");
    EXPECT_EQ(ToTimeOfDay<milliseconds>(Time(u"13:20:00.005")).to_duration(), 13h + 20min + 5ms);
}

TEST(Chrono, DurationsGoBothWays) {
    const struct {
        nanoseconds time;
        const char16_t* text;
    } rows[] = {{36h, u"P1DT12H"},
                {-90min, u"-PT1H30M"},
                {1ns, u"PT0.000000001S"},
                {-1ms, u"-PT0.001S"},
                {nanoseconds::min(), u"-P106751DT23H47M16.854775808S"},
                {nanoseconds::max(), u"P106751DT23H47M16.854775807S"}};
    for (const auto& [time, text] : rows) {
        EXPECT_EQ(FromChrono(time).ToString(), text);
        EXPECT_EQ(ToDuration(FromChrono(time)), time);
    }
    EXPECT_EQ(ToDuration<weeks>(Span(u"P13DT24H")), weeks(2)); // counts are added up, however they stand
    EXPECT_EQ(ToDuration<Frames>(Span(u"-PT0.5S")), Frames(-12));
    EXPECT_EQ(FromChrono(Frames(12)).ToString(), u"PT0.5S");
    EXPECT_EQ(ToDuration(CDateTimeSpan()), 0ns);
}

TEST(Chrono, WhatWouldBeLostIsRefused) {
    const std::string inexact = "The value is no whole number of the unit";
    const std::string tooLarge = "The value does not fit into the target";
    const std::pair<std::function<void()>, std::string> rows[] = {
        {[] { ToSysTime<seconds>(CDateTime(u"2000-01-01T00:00:00.000000001Z")); }, inexact},
        {[] { ToDuration<hours>(Span(u"PT90M")); }, inexact},
        {[] { FromChrono(Frames(1)); }, inexact},
        {[] { ToSysTime(CDateTime(u"2300-01-01T00:00:00Z")); }, tooLarge},
        {[] { ToDuration(Span(u"P106752D")); }, tooLarge},
        {[] { ToDuration<duration<signed char>>(Span(u"PT128S")); }, tooLarge},
        {[] { ToDuration<weeks>(CDateTimeSpan(0, 0, ~0ull)); }, tooLarge},
        {[] { FromChrono(hours::max()); }, tooLarge},
        {[] { FromChrono(sys_seconds::max()); }, tooLarge},
        {[] { FromChrono(sys_time<hours>::min()); }, tooLarge},
        {[] { FromChrono(hh_mm_ss(24h)); }, tooLarge},
        {[] { FromChrono(hh_mm_ss(-1s)); }, tooLarge},
        {[] { FromChrono(sys_days(year(0) / 1 / 1)); },
         "Invalid Year [0] (9999 <= year <= -9999 && year != 0)"},
        {[] { FromChrono(10000y); }, "Invalid Year [10000] (9999 <= year <= -9999 && year != 0)"},
        {[] { FromChrono(2023y / 2 / 29); }, "Invalid Day [29] (1 <= day <= days in month"},
        {[] { FromChrono(month(13)); }, "Invalid Month [13] (1 <= month <= 12)"},
        {[] { ToSysTime(CDateTime(u"2000-01-01T00:00:00")); }, "The value has no time zone"},
        {[] { ToLocalTime(CDateTime(u"2000-01-01T00:00:00Z")); },
         "The value has a time zone, which would be lost"},
        {[] { ToYearMonthDay(Date(u"2000-01-01+01:00")); }, "The value has a time zone, which would be lost"},
        {[] { ToDuration(Span(u"P1Y")); }, "The duration has years or months, which have no fixed length"},
        {[] { ToDuration(Span(u"P1M")); }, "The duration has years or months, which have no fixed length"},
        {[] {
             CDateTime value(2024, 5, 16);
             value.SetMonth(13); // which no setter checks
             ToYearMonthDay(value);
         },
         "Invalid Month [13] (1 <= month <= 12)"},
    };
    for (const auto& [action, message] : rows)
        EXPECT_EQ(Failure<CKzInvalidValueException>(action), message);
    EXPECT_EQ(Failure<CKzInvalidStateException>([] { ToYearMonthDay(CDateTime(u"2000-01-01T00:00:00")); }),
              "The value is a dateTime, not a date");
    EXPECT_EQ(Failure<CKzInvalidStateException>([] { ToSysTime(CDateTime()); }),
              "The value is a yearZero, not a dateTime");
}

} // namespace
