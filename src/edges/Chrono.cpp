#include <KzXmlLib10/edges/Chrono.h>

#include "edges/Messages.h"
#include "object/Throw.h"
#include "values/DateTimeKinds.h"

#include <limits>

namespace KzXmlLib10 {

using namespace std::chrono;

namespace {

__extension__ using Wide = __int128; // a 64-bit count of any unit in nanoseconds

constexpr Wide nanosOfSecond = 1'000'000'000;
constexpr long long secondsOfDay = 24 * 60 * 60;

void RequireRange(Wide value, Wide least, Wide most) {
    if (value < least || value > most)
        Throw<CKzInvalidValueException>(messages::TimeTooLarge);
}

detail::Seconds FromNanos(Wide nanos) {
    const int rest = static_cast<int>((nanos % nanosOfSecond + nanosOfSecond) % nanosOfSecond);
    const Wide seconds = (nanos - rest) / nanosOfSecond;
    RequireRange(seconds, std::numeric_limits<long long>::min(), std::numeric_limits<long long>::max());
    return {static_cast<long long>(seconds), rest};
}

Wide ToNanos(detail::Seconds time) { return time.seconds * nanosOfSecond + time.nanoseconds; }

/// Throws unless the value is valid and of the kind.
void Require(const CDateTime& value, CDateTime::DTType kind) {
    if (value.GetType() != kind)
        Throw<CKzInvalidStateException>(messages::OtherKindOfTime, value.GetTypeAsString(), KindText(kind));
    value.Validate();
}

/// The same of a value that may have no time zone.
void RequireLocal(const CDateTime& value, CDateTime::DTType kind) {
    Require(value, kind);
    if (value.IsUTC()) // or has an offset
        Throw<CKzInvalidValueException>(messages::TimeHasZone);
}

int NanosOf(const CDateTime& value) {
    return value.GetMilliSecond() * 1'000'000 + value.GetMicroSecond() * 1'000 + value.GetNanoSecond();
}

detail::Seconds TimeOfDay(const CDateTime& value) {
    return {value.GetHour() * 3600 + value.GetMinute() * 60 + value.GetSecond(), NanosOf(value)};
}

year YearOf(const CDateTime& value) { return year(value.GetYear()); }
month MonthOf(const CDateTime& value) { return month(value.GetMonth()); }
day DayOf(const CDateTime& value) { return day(value.GetDay()); }

detail::Seconds FieldsOf(const CDateTime& value) {
    const sys_days date = YearOf(value) / MonthOf(value) / DayOf(value);
    detail::Seconds time = TimeOfDay(value);
    time.seconds += date.time_since_epoch().count() * secondsOfDay;
    return time;
}

int Number(year value) { return static_cast<int>(value); }
int Number(month value) { return static_cast<int>(static_cast<unsigned>(value)); }
int Number(day value) { return static_cast<int>(static_cast<unsigned>(value)); }

/// The parts of a time of day and of a fraction of a second, as the setters take them.
struct Clock {
    explicit Clock(detail::Seconds time)
        : hour(static_cast<int>(time.seconds / 3600)), minute(static_cast<int>(time.seconds / 60 % 60)),
          second(static_cast<int>(time.seconds % 60)), milli(time.nanoseconds / 1'000'000),
          micro(time.nanoseconds / 1'000 % 1'000), nano(time.nanoseconds % 1'000) {}

    int hour, minute, second, milli, micro, nano;
};

} // namespace

namespace detail {

Seconds ToSeconds(long long count, const UnitOfTime& unit) {
    const Wide nanos = count * (unit.numerator * nanosOfSecond);
    if (nanos % unit.denominator != 0)
        Throw<CKzInvalidValueException>(messages::TimeNotExact);
    return FromNanos(nanos / unit.denominator);
}

long long FromSeconds(Seconds time, const UnitOfTime& unit) {
    const Wide nanos = ToNanos(time) * unit.denominator;
    const Wide nanosOfUnit = unit.numerator * nanosOfSecond;
    if (nanos % nanosOfUnit != 0)
        Throw<CKzInvalidValueException>(messages::TimeNotExact);
    RequireRange(nanos / nanosOfUnit, unit.least, unit.most);
    return static_cast<long long>(nanos / nanosOfUnit);
}

CDateTime MakeDateTime(Seconds sinceEpoch, bool isUtc) {
    constexpr long long farthest = 20'000 * 366 * secondsOfDay; // beyond all years of either side
    RequireRange(sinceEpoch.seconds, -farthest, farthest);
    const sys_days days = floor<std::chrono::days>(sys_seconds(seconds(sinceEpoch.seconds)));
    const year_month_day date = days;
    sinceEpoch.seconds -= days.time_since_epoch().count() * secondsOfDay;
    const Clock clock(sinceEpoch);
    CDateTime value;
    value.SetDateTime(Number(date.year()), Number(date.month()), Number(date.day()), clock.hour, clock.minute,
                      clock.second, clock.milli, clock.micro, clock.nano);
    if (isUtc)
        value.SetUTC();
    return value;
}

CDateTime MakeTime(Seconds sinceMidnight) {
    RequireRange(sinceMidnight.seconds, 0, secondsOfDay - 1);
    const Clock clock(sinceMidnight);
    CDateTime value;
    value.SetTime(clock.hour, clock.minute, clock.second, clock.milli, clock.micro, clock.nano);
    return value;
}

CDateTimeSpan MakeSpan(Seconds duration) {
    const bool isNegative = duration.seconds < 0;
    const Wide nanos = ToNanos(duration);
    duration = FromNanos(isNegative ? -nanos : nanos);
    const long long days = duration.seconds / secondsOfDay;
    RequireRange(days, 0, std::numeric_limits<std::uint32_t>::max());
    duration.seconds %= secondsOfDay;
    const Clock clock(duration);
    const auto narrow = [](int value) { return static_cast<std::uint16_t>(value); };
    CDateTimeSpan span(0, 0, static_cast<std::uint32_t>(days), narrow(clock.hour), narrow(clock.minute),
                       narrow(clock.second), narrow(clock.milli), narrow(clock.micro), narrow(clock.nano));
    if (isNegative)
        span.Negate();
    return span;
}

Seconds GetSysTime(const CDateTime& value) {
    Require(value, CDateTime::DTType_dateTime);
    if (!value.IsUTC()) // and has no offset
        Throw<CKzInvalidValueException>(messages::TimeHasNoZone);
    Seconds time = FieldsOf(value);
    if (value.HasTimeZone()) {
        const int minutes = value.GetZoneHour() < 0 ? -value.GetZoneMinute() : value.GetZoneMinute();
        time.seconds -= value.GetZoneHour() * 3600 + minutes * 60;
    }
    return time;
}

Seconds GetLocalTime(const CDateTime& value) {
    RequireLocal(value, CDateTime::DTType_dateTime);
    return FieldsOf(value);
}

Seconds GetTimeOfDay(const CDateTime& value) {
    RequireLocal(value, CDateTime::DTType_time);
    return TimeOfDay(value);
}

Seconds GetDuration(const CDateTimeSpan& value) {
    if (value.GetYears() != 0 || value.GetMonths() != 0)
        Throw<CKzInvalidValueException>(messages::SpanWithMonths);
    Wide nanos = Wide(value.GetDays()) * secondsOfDay + Wide(value.GetHours()) * 3600 +
                 Wide(value.GetMinutes()) * 60 + value.GetSeconds();
    nanos = nanos * nanosOfSecond + Wide(value.GetMilliSeconds()) * 1'000'000 +
            value.GetMicroSeconds() * 1'000 + value.GetNanoSeconds();
    return FromNanos(value.IsNegative() ? -nanos : nanos);
}

} // namespace detail

CDateTime FromChrono(year_month_day date) {
    CDateTime value;
    value.SetDate(Number(date.year()), Number(date.month()), Number(date.day()));
    return value;
}

CDateTime FromChrono(year_month date) {
    CDateTime value;
    value.SetGYearMonth(Number(date.year()), Number(date.month()));
    return value;
}

CDateTime FromChrono(year date) {
    CDateTime value;
    value.SetGYear(Number(date));
    return value;
}

CDateTime FromChrono(month_day date) {
    CDateTime value;
    value.SetGMonthDay(Number(date.month()), Number(date.day()));
    return value;
}

CDateTime FromChrono(month date) {
    CDateTime value;
    value.SetGMonth(Number(date));
    return value;
}

CDateTime FromChrono(day date) {
    CDateTime value;
    value.SetGDay(Number(date));
    return value;
}

year_month_day ToYearMonthDay(const CDateTime& value) {
    RequireLocal(value, CDateTime::DTType_date);
    return YearOf(value) / MonthOf(value) / DayOf(value);
}

year_month ToYearMonth(const CDateTime& value) {
    RequireLocal(value, CDateTime::DTType_gYearMonth);
    return YearOf(value) / MonthOf(value);
}

year ToYear(const CDateTime& value) {
    RequireLocal(value, CDateTime::DTType_gYear);
    return YearOf(value);
}

month_day ToMonthDay(const CDateTime& value) {
    RequireLocal(value, CDateTime::DTType_gMonthDay);
    return MonthOf(value) / DayOf(value);
}

month ToMonth(const CDateTime& value) {
    RequireLocal(value, CDateTime::DTType_gMonth);
    return MonthOf(value);
}

day ToDay(const CDateTime& value) {
    RequireLocal(value, CDateTime::DTType_gDay);
    return DayOf(value);
}

} // namespace KzXmlLib10
