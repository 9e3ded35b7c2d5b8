#include "values/Dates.h"

#include <cstring>

namespace {

/// The time zone of the process. No other test depends on it.
void SetTimeZone(const char* zone) {
    setenv("TZ", zone, 1);
    tzset();
}

std::string FromTime(long long time) {
    CDateTime value;
    value = time;
    return ToUtf8(value.ToString());
}

TEST(CDateTimeClock, TimesAreReadAsUtcInEveryTimeZone) {
    for (const char* name : {"UTC", "EAST-11:30", "WEST5DST"}) {
        SetTimeZone(name);
        ExpectRows({"1970-01-01T00:00:00 -> 0", "1969-12-31T23:59:59 -> -1",
                    "2000-02-28T23:59:59 -> 951782399", "2000-02-29T00:00:00 -> 951782400",
                    "9999-12-31T23:59:59 -> 253402300799", "0001-01-01T00:00:00 -> -62135596800",
                    "-9999-01-01T00:00:00 -> -377705116800"},
                   [](const std::u16string& text) {
                       const long long time = CDateTime(text.c_str()).GetTime();
                       EXPECT_EQ(FromTime(time), ToUtf8(text));
                       return std::to_string(time);
                   });
    }
}

TEST(CDateTimeClock, GetTimeNormalises) {
    EXPECT_EQ(CDateTime(u"1970-01-01T01:00:00.999+01:30").GetTime(), -1800);
    CDateTime date(1970, 1, 2);
    EXPECT_EQ(date.GetTime(), 86400);
    date.SetTimeZone(1, 0); // the day before, whose time of day is not looked at
    EXPECT_EQ(date.GetTime(), 0);
    CDateTime irregular(2001, 2, 1);
    irregular.SetDay(31);
    EXPECT_EQ(irregular.GetTime(), CDateTime(2001, 3, 3).GetTime());
    irregular.SetMonth(0);
    EXPECT_EQ(irregular.GetTime(), CDateTime(2000, 12, 31).GetTime());
    EXPECT_EQ(InvalidValue([] { CDateTime(CDateTime::DTType_time).GetTime(); }),
              "Failed to GetTime, Date Status must be dateTime or date. Invalid Date Type: time.");
}

TEST(CDateTimeClock, RefusesTimesOutOfRange) {
    for (const long long time : {253402300800, -377705116801}) {
        EXPECT_EQ(InvalidValue([&] { FromTime(time); }),
                  "Invalid Time [" + std::to_string(time) + "] (outside the years -9999 to 9999)");
        EXPECT_EQ(CDateTime(time).GetType(), CDateTime::DTType_yearZero);
    }
    EXPECT_EQ(InvalidValue([] { FromTime(-62135596801); }),
              "Invalid Year [0] (9999 <= year <= -9999 && year != 0)");
}

TEST(CDateTimeClock, SystemTimesAndFileTimes) {
    SetTimeZone("UTC");
    const SYSTEMTIME time = {2000, 2, 2, 29, 13, 20, 30, 999}, back = CDateTime(time).GetAsSystemTime();
    EXPECT_EQ(CDateTime(time).ToString(), u"2000-02-29T13:20:30.999");
    EXPECT_EQ(std::memcmp(&back, &time, sizeof time), 0);
    EXPECT_EQ(InvalidValue([] { CDateTime(2000, 2, 29).GetAsSystemTime(); }),
              "Failed to GetAsSystemTime, Date Status must be dateTime. Invalid Date Type: date.");

    EXPECT_EQ(InvalidValue([] { CDateTime() = SYSTEMTIME{2000, 257, 0, 1, 0, 0, 0, 0}; }),
              "Invalid Month [257] (1 <= month <= 12)");
    EXPECT_EQ(CDateTime(SYSTEMTIME{65535, 1, 0, 1, 0, 0, 0, 0}).GetType(), CDateTime::DTType_yearZero);

    const auto text = [](unsigned long long ticks) {
        CDateTime value;
        value = FILETIME{static_cast<std::uint32_t>(ticks), static_cast<std::uint32_t>(ticks >> 32)};
        return ToUtf8(value.ToString());
    };
    EXPECT_EQ(text(0) + text(116444736000000000), "1601-01-01T00:00:001970-01-01T00:00:00");
    EXPECT_EQ(text(116444736000000000 - 1), "1969-12-31T23:59:59.999");
    EXPECT_EQ(text(125963012305009999), "2000-02-29T12:33:50.5");
    EXPECT_EQ(InvalidValue([&] { text(0x7FFFFFFFFFFFFFFF); }),
              "Invalid Year [30828] (9999 <= year <= -9999 && year != 0)");
    EXPECT_EQ(InvalidValue([&] { text(0x8000000000000000); }), "Failed to convert FILETIME to SYSTEMTIME");
    EXPECT_EQ(CDateTime(FILETIME{0, 0x80000000}).GetType(), CDateTime::DTType_yearZero);
}

TEST(CDateTimeClock, DayOfWeekAndTickCountAreLocal) {
    const auto day = [](const char16_t* text) { return std::to_string(Moment(text).GetDayOfWeek()); };
    SetTimeZone("UTC");
    ExpectRows({"2000-01-02T23:59:59 -> 1", "1969-12-31 -> 4", "2000-01-01 -> 7"}, day);
    SetTimeZone("WEST5");
    ExpectRows({"2000-01-01 -> 6"}, day);
    EXPECT_EQ(InvalidState([] { CDateTime().GetDayOfWeek(); }),
              "Failed to GetDayOfWeek. Invalid Date Type: yearZero.");

    // The tick count is local time without a zone.
    SetTimeZone("EAST-3:30");
    const CDateTime now = CDateTime::GetTickCount();
    EXPECT_FALSE(now.IsUTC());
    EXPECT_NEAR(static_cast<double>(now.GetTime() - (3 * 3600 + 1800)),
                static_cast<double>(std::time(nullptr)), 2);
}

} // namespace
