#include "values/Dates.h"

#include <cstring>

namespace {

/// The time zone of the process, until the end of a scope.
class TimeZone {
public:
    explicit TimeZone(const char* zone) {
        if (const char* held = std::getenv("TZ"))
            m_held = held;
        setenv("TZ", zone, 1);
        tzset();
    }
    ~TimeZone() {
        m_held ? setenv("TZ", m_held->c_str(), 1) : unsetenv("TZ");
        tzset();
    }

private:
    std::optional<std::string> m_held;
};

std::string FromTime(long long time) {
    CDateTime value;
    value = time;
    return ToUtf8(value.ToString());
}

TEST(CDateTimeClock, TimesAreReadAsUtcInEveryTimeZone) {
    for (const char* name : {"UTC", "EAST-11:30", "WEST5DST"}) {
        const TimeZone zone(name);
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

TEST(CDateTimeClock, GetTimeNormalisesAndCountsOn) {
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

TEST(CDateTimeClock, TimesOutOfRangeAreRefused) {
    for (const long long time : {253402300800, -377705116801})
        EXPECT_EQ(InvalidValue([&] { FromTime(time); }),
                  "Invalid Time [" + std::to_string(time) + "] (outside the years -9999 to 9999)");
    EXPECT_EQ(InvalidValue([] { FromTime(-62135596801); }),
              "Invalid Year [0] (9999 <= year <= -9999 && year != 0)");
    using Time = std::numeric_limits<long long>;
    for (const long long time : {Time::max(), Time::min()})
        EXPECT_EQ(CDateTime(time).GetType(), CDateTime::DTType_yearZero);
    CDateTime date(CDateTime::DTType_date);
    EXPECT_EQ(InvalidState([&] { date = 0LL; }),
              "Failed to copy CDateTime. Invalid Date Type: dateTime, expected: date.");
}

TEST(CDateTimeClock, SystemTimes) {
    const TimeZone zone("UTC");
    const SYSTEMTIME time = {2000, 2, 2, 29, 13, 20, 30, 999};
    const CDateTime value(time);
    EXPECT_EQ(value.ToString(), u"2000-02-29T13:20:30.999");
    const SYSTEMTIME back = value.GetAsSystemTime();
    EXPECT_EQ(std::memcmp(&back, &time, sizeof time), 0);
    EXPECT_EQ(InvalidValue([] { CDateTime(2000, 2, 29).GetAsSystemTime(); }),
              "Failed to GetAsSystemTime, Date Status must be dateTime. Invalid Date Type: date.");

    CDateTime target;
    EXPECT_EQ(InvalidValue([&] { target = SYSTEMTIME{2000, 257, 0, 1, 0, 0, 0, 0}; }),
              "Invalid Month [257] (1 <= month <= 12)");
    EXPECT_EQ(InvalidValue([&] { target = SYSTEMTIME{65535, 1, 0, 1, 0, 0, 0, 0}; }),
              "Invalid Year [65535] (9999 <= year <= -9999 && year != 0)");
    EXPECT_EQ(CDateTime(SYSTEMTIME{2000, 1, 0, 32, 0, 0, 0, 0}).GetType(), CDateTime::DTType_yearZero);
}

TEST(CDateTimeClock, FileTimes) {
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

TEST(CDateTimeClock, TheDayOfTheWeekIsLocal) {
    const CDateTime saturday(2000, 1, 1);
    const auto day = [](const char* name, const CDateTime& value) {
        const TimeZone zone(name);
        return value.GetDayOfWeek();
    };
    EXPECT_EQ(day("UTC", saturday), 7);
    EXPECT_EQ(day("UTC", CDateTime(2000, 1, 2, 23, 59, 59)), 1);
    EXPECT_EQ(day("UTC", CDateTime(1969, 12, 31)), 4);
    EXPECT_EQ(day("WEST5", saturday), 6);
    EXPECT_EQ(InvalidState([] { CDateTime().GetDayOfWeek(); }),
              "Failed to GetDayOfWeek. Invalid Date Type: yearZero.");
}

TEST(CDateTimeClock, TheTickCountIsLocalTimeWithoutZone) {
    const TimeZone zone("EAST-3:30");
    constexpr long long offset = 3 * 3600 + 1800;
    // The clock that is exact: that of std::time may still tell the second before.
    const auto seconds = [] {
        return std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    };
    const long long before = seconds();
    const CDateTime now = CDateTime::GetTickCount();
    const long long after = seconds();
    EXPECT_TRUE(now.GetType() == CDateTime::DTType_dateTime && !now.IsUTC());
    EXPECT_GE(now.GetTime() - offset, before);
    EXPECT_LE(now.GetTime() - offset, after);
}

} // namespace
