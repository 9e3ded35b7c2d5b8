#pragma once

#include <cstdint>

/// The proleptic Gregorian calendar, with a year 0 and negative years before it.
namespace KzXmlLib10::calendar {

struct Date {
    std::int64_t year;
    int month; ///< 1 to 12
    int day;   ///< 1 to 31
};

constexpr bool IsLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

/// The longest length of a month from 1 to 12, which is 29 for February.
constexpr int LongestMonth(int month) {
    constexpr int lengths[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return lengths[month - 1];
}

/// The length of a month from 1 to 12.
constexpr int DaysInMonth(int year, int month) {
    return month == 2 && !IsLeapYear(year) ? 28 : LongestMonth(month);
}

constexpr std::int64_t FloorDivide(std::int64_t dividend, std::int64_t divisor) {
    return dividend / divisor - (dividend % divisor < 0);
}

constexpr std::int64_t FloorModulo(std::int64_t dividend, std::int64_t divisor) {
    return dividend - FloorDivide(dividend, divisor) * divisor;
}

// Both conversions count in eras of 400 years, which have 146,097 days, and in years that start in March, so
// that the leap day is the last day of its year.
inline constexpr std::int64_t daysOfEra = 146097;
inline constexpr std::int64_t daysFromEraToEpoch = 719468; // from 0000-03-01 to 1970-01-01

/// The days from 1970-01-01 to a date. Months and days outside their range count on into the next or the
/// previous year or month.
constexpr std::int64_t DaysSinceEpoch(std::int64_t year, int month, int day) {
    const std::int64_t monthsSinceMarch = year * 12 + month - 3;
    const std::int64_t marchYear = FloorDivide(monthsSinceMarch, 12);
    const std::int64_t marchMonth = FloorModulo(monthsSinceMarch, 12);
    const std::int64_t yearOfEra = FloorModulo(marchYear, 400);
    const std::int64_t dayOfEra =
        yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + (153 * marchMonth + 2) / 5 + day - 1;
    return FloorDivide(marchYear, 400) * daysOfEra + dayOfEra - daysFromEraToEpoch;
}

/// The date that lies a number of days after 1970-01-01.
constexpr Date DateFromDays(std::int64_t daysSinceEpoch) {
    const std::int64_t days = daysSinceEpoch + daysFromEraToEpoch;
    const std::int64_t dayOfEra = FloorModulo(days, daysOfEra);
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / (daysOfEra - 1)) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int marchMonth = static_cast<int>((5 * dayOfYear + 2) / 153);
    const int day = static_cast<int>(dayOfYear - (153 * marchMonth + 2) / 5 + 1);
    const int month = marchMonth < 10 ? marchMonth + 3 : marchMonth - 9;
    return {FloorDivide(days, daysOfEra) * 400 + yearOfEra + (month <= 2), month, day};
}

} // namespace KzXmlLib10::calendar
