#pragma once

#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/values/CDateTime.h>
#include <KzXmlLib10/values/CDateTimeSpan.h>

#include <chrono>
#include <concepts>
#include <limits>
#include <ratio>

/// Dates, times and durations of XML Schema as those of std::chrono, and back.
///
///     order.SetOrderDate(FromChrono(2024y / May / 16));
///     std::chrono::year_month_day day = ToYearMonthDay(order.GetOrderDate());
///     auto sent = ToSysTime<std::chrono::milliseconds>(order.GetSent());
///     order.SetSent(FromChrono(std::chrono::system_clock::now()));
///
/// Nothing is ever rounded or left out. CKzInvalidValueException is thrown where a value is no whole number
/// of the target's unit or lies outside its range, where a time zone would be lost or one is wanting, and
/// where a value is no date or time at all (a month of 13, 30 February). CKzInvalidStateException is thrown
/// for a value of another DTType. Years are 1 to 9999, and -9999 to -1 as CDateTime counts them; there is no
/// year 0. Leap seconds do not exist.
namespace KzXmlLib10 {

/// A unit of time that can be converted: any from a nanosecond to a week, counted in signed integers. Months
/// and years have no fixed length.
template <class D>
concept ExactDuration = requires {
    typename D::rep;
    typename D::period;
    requires std::same_as<D, std::chrono::duration<typename D::rep, typename D::period>>;
    requires std::signed_integral<typename D::rep>;
    requires std::ratio_greater_equal_v<typename D::period, std::nano>;
    requires D::period::num <= 604'800 && D::period::den <= 1'000'000'000;
};

namespace detail {

/// A count of seconds, and of the nanoseconds from 0 to 999999999 that come on top of it.
struct Seconds {
    long long seconds;
    int nanoseconds;
};

/// The unit and the range of a duration type.
struct UnitOfTime {
    long long numerator, denominator;
    long long least, most;
};

template <ExactDuration D>
inline constexpr UnitOfTime unitOf = {D::period::num, D::period::den,
                                      std::numeric_limits<typename D::rep>::min(),
                                      std::numeric_limits<typename D::rep>::max()};

QUILLON_EXPORT Seconds ToSeconds(long long count, const UnitOfTime& unit);
QUILLON_EXPORT long long FromSeconds(Seconds time, const UnitOfTime& unit);

template <ExactDuration D>
Seconds ToSeconds(D duration) {
    return ToSeconds(duration.count(), unitOf<D>);
}
template <ExactDuration D>
D ToDuration(Seconds time) {
    return D(static_cast<typename D::rep>(FromSeconds(time, unitOf<D>)));
}

QUILLON_EXPORT CDateTime MakeDateTime(Seconds sinceEpoch, bool isUtc);
QUILLON_EXPORT CDateTime MakeTime(Seconds sinceMidnight);
QUILLON_EXPORT CDateTimeSpan MakeSpan(Seconds duration);
QUILLON_EXPORT Seconds GetSysTime(const CDateTime& value);
QUILLON_EXPORT Seconds GetLocalTime(const CDateTime& value);
QUILLON_EXPORT Seconds GetTimeOfDay(const CDateTime& value);
QUILLON_EXPORT Seconds GetDuration(const CDateTimeSpan& value);

} // namespace detail

/// A dateTime in UTC.
template <ExactDuration D>
CDateTime FromChrono(std::chrono::sys_time<D> time) {
    return detail::MakeDateTime(detail::ToSeconds(time.time_since_epoch()), true);
}
/// A dateTime without a time zone.
template <ExactDuration D>
CDateTime FromChrono(std::chrono::local_time<D> time) {
    return detail::MakeDateTime(detail::ToSeconds(time.time_since_epoch()), false);
}
/// A time without a time zone, of one day.
template <ExactDuration D>
CDateTime FromChrono(std::chrono::hh_mm_ss<D> time) {
    return detail::MakeTime(detail::ToSeconds(time.to_duration()));
}
/// A date, gYearMonth, gYear, gMonthDay, gMonth or gDay, without a time zone.
QUILLON_EXPORT CDateTime FromChrono(std::chrono::year_month_day date);
QUILLON_EXPORT CDateTime FromChrono(std::chrono::year_month date);
QUILLON_EXPORT CDateTime FromChrono(std::chrono::year year);
QUILLON_EXPORT CDateTime FromChrono(std::chrono::month_day date);
QUILLON_EXPORT CDateTime FromChrono(std::chrono::month month);
QUILLON_EXPORT CDateTime FromChrono(std::chrono::day day);
/// A duration in days, hours, minutes and seconds.
template <ExactDuration D>
CDateTimeSpan FromChrono(D duration) {
    return detail::MakeSpan(detail::ToSeconds(duration));
}

/// The point in time of a dateTime with a time zone. Nanoseconds in 64 bits reach from 1677 to 2262; coarser
/// units reach further.
template <ExactDuration D = std::chrono::nanoseconds>
std::chrono::sys_time<D> ToSysTime(const CDateTime& value) {
    return std::chrono::sys_time<D>(detail::ToDuration<D>(detail::GetSysTime(value)));
}
/// A dateTime without a time zone.
template <ExactDuration D = std::chrono::nanoseconds>
std::chrono::local_time<D> ToLocalTime(const CDateTime& value) {
    return std::chrono::local_time<D>(detail::ToDuration<D>(detail::GetLocalTime(value)));
}
/// A time without a time zone.
template <ExactDuration D = std::chrono::nanoseconds>
std::chrono::hh_mm_ss<D> ToTimeOfDay(const CDateTime& value) {
    return std::chrono::hh_mm_ss<D>(detail::ToDuration<D>(detail::GetTimeOfDay(value)));
}
/// A date, gYearMonth, gYear, gMonthDay, gMonth or gDay, without a time zone.
QUILLON_EXPORT std::chrono::year_month_day ToYearMonthDay(const CDateTime& value);
QUILLON_EXPORT std::chrono::year_month ToYearMonth(const CDateTime& value);
QUILLON_EXPORT std::chrono::year ToYear(const CDateTime& value);
QUILLON_EXPORT std::chrono::month_day ToMonthDay(const CDateTime& value);
QUILLON_EXPORT std::chrono::month ToMonth(const CDateTime& value);
QUILLON_EXPORT std::chrono::day ToDay(const CDateTime& value);
/// A duration without years and months.
template <ExactDuration D = std::chrono::nanoseconds>
D ToDuration(const CDateTimeSpan& value) {
    return detail::ToDuration<D>(detail::GetDuration(value));
}

} // namespace KzXmlLib10
