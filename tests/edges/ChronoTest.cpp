#include "values/Dates.h"

using namespace std::chrono;
using namespace std::chrono_literals;

namespace {

static_assert(!ExactDuration<months> && !ExactDuration<years> && ExactDuration<weeks>);
static_assert(!ExactDuration<duration<double>> && !ExactDuration<duration<long long, std::pico>>);

using Frames = duration<std::int64_t, std::ratio<1, 24>>;

TEST(Chrono, PointsInTimeGoBothWays) {
    const std::pair<sys_seconds, const char16_t*> rows[] = {
        {sys_days(1970y / 1 / 1), u"1970-01-01T00:00:00Z"},
        {sys_days(1969y / 12 / 31) + 23h + 59min + 59s, u"1969-12-31T23:59:59Z"},
        {sys_days(2000y / 2 / 29) + 12h, u"2000-02-29T12:00:00Z"},
        {sys_days(9999y / 12 / 31) + 23h, u"9999-12-31T23:00:00Z"},
        {sys_days(year(-4) / 2 / 29), u"-0004-02-29T00:00:00Z"}};
    for (const auto& [time, text] : rows) {
        EXPECT_EQ(FromChrono(time).ToString(), text);
        EXPECT_EQ(ToSysTime<seconds>(CDateTime(text)), time);
        EXPECT_EQ(FromChrono(local_seconds(time.time_since_epoch())).ToString() + u"Z", text);
    }
    EXPECT_EQ(ToLocalTime(CDateTime(u"1969-07-20T20:17:40.5")).time_since_epoch(),
              (sys_days(1969y / 7 / 20) + 20h + 17min + 40s + 500ms).time_since_epoch());
    // An offset is taken off, with its minutes.
    EXPECT_EQ(ToSysTime<minutes>(CDateTime(u"2023-12-31T22:45:00-02:30")),
              sys_days(2024y / 1 / 1) + 1h + 15min);
}

TEST(Chrono, DurationsGoBothWays) {
    for (const auto& [time, text] : {std::pair<nanoseconds, const char16_t*>{36h, u"P1DT12H"},
                                     {-90min, u"-PT1H30M"},
                                     {1ns, u"PT0.000000001S"},
                                     {-1ms, u"-PT0.001S"},
                                     {nanoseconds::min(), u"-P106751DT23H47M16.854775808S"},
                                     {nanoseconds::max(), u"P106751DT23H47M16.854775807S"}}) {
        EXPECT_EQ(FromChrono(time).ToString(), text);
        EXPECT_EQ(ToDuration(FromChrono(time)), time);
    }
    EXPECT_EQ(ToDuration<weeks>(Span(u"P13DT24H")), weeks(2)); // counts are added up, however they stand
    EXPECT_EQ(ToDuration<Frames>(Span(u"-PT0.5S")), Frames(-12));
}

/// The message of the failure of each action.
void ExpectRefused(const std::string& message, std::initializer_list<std::function<void()>> actions) {
    for (const auto& action : actions)
        EXPECT_EQ(InvalidValue(action), message);
}

TEST(Chrono, WhatWouldBeLostIsRefused) {
    ExpectRefused("The value is no whole number of the unit",
                  {[] { ToDuration<hours>(Span(u"PT90M")); }, [] { FromChrono(Frames(1)); }});
    ExpectRefused("The value does not fit into the target",
                  {[] { ToSysTime(CDateTime(u"2300-01-01T00:00:00Z")); },
                   [] { ToDuration(Span(u"P106752D")); },
                   [] { ToDuration<duration<signed char>>(Span(u"PT128S")); },
                   [] { ToDuration<weeks>(CDateTimeSpan(0, 0, ~0ull)); }, [] { FromChrono(hours::max()); },
                   [] { FromChrono(sys_time<hours>::min()); }, [] { FromChrono(hh_mm_ss(24h)); }});
    ExpectRefused("Invalid Day [29] (1 <= day <= days in month", {[] { FromChrono(2023y / 2 / 29); }});
    CDateTime unchecked(2024, 5, 16);
    unchecked.SetMonth(13);
    ExpectRefused("Invalid Month [13] (1 <= month <= 12)", {[&] { ToYearMonthDay(unchecked); }});
    ExpectRefused("The value has no time zone", {[] { ToSysTime(CDateTime(u"2000-01-01T00:00:00")); }});
    ExpectRefused("The value has a time zone, which would be lost",
                  {[] { ToLocalTime(CDateTime(u"2000-01-01T00:00:00Z")); },
                   [] { ToYearMonthDay(Moment(u"2000-01-01+01:00")); }});
    ExpectRefused("The duration has years or months, which have no fixed length",
                  {[] { ToDuration(Span(u"P1M")); }});
    EXPECT_EQ(InvalidState([] { ToYearMonthDay(CDateTime(u"2000-01-01T00:00:00")); }),
              "The value is a dateTime, not a date");
}

} // namespace
