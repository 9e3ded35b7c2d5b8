#include <KzXmlLib10/values/CDateTime.h>

#include "object/Throw.h"
#include "values/Calendar.h"
#include "values/DateTimeKinds.h"
#include "values/Messages.h"

namespace KzXmlLib10 {

namespace {

constexpr int firstYear = -9999;
constexpr int lastYear = 9999;

void RequireRange(int value, int low, int high, Message<int> message) {
    if (value < low || value > high)
        Throw<CKzInvalidValueException>(message, value);
}

void RequireUnused(int value, CDateTime::DTType kind, Message<int, const char16_t*> message) {
    if (value != 0)
        Throw<CKzInvalidValueException>(message, value, KindText(kind));
}

void ValidateMonth(CDateTime::DTType kind, int month) {
    if (HasMonth(kind))
        RequireRange(month, 1, 12, messages::InvalidMonth);
    else
        RequireUnused(month, kind, messages::UnusedMonth);
}

void ValidateYear(CDateTime::DTType kind, int year) {
    if (!HasYear(kind))
        RequireUnused(year, kind, messages::UnusedYear);
    else if (year == 0 || year < firstYear || year > lastYear)
        // Deliberate: the bounds stand the wrong way round in the message.
        Throw<CKzInvalidValueException>(messages::InvalidYear, year, lastYear, firstYear);
}

void ValidateDay(CDateTime::DTType kind, int year, int month, int day) {
    if (!HasDay(kind))
        RequireUnused(day, kind, messages::UnusedDay);
    else if (kind == CDateTime::DTType_gDay)
        RequireRange(day, 1, 31, messages::InvalidDay);
    else if (kind == CDateTime::DTType_gMonthDay)
        RequireRange(day, 1, calendar::LongestMonth(month), messages::InvalidDayOfMonth);
    else
        RequireRange(day, 1, calendar::DaysInMonth(year, month), messages::InvalidDayOfDate);
}

} // namespace

void CDateTime::ValidateFields(DTType kind, int year, int month, int day, int hour, int minute, int second,
                               int milli, int micro, int nano) {
    if (kind == DTType_yearZero)
        Throw<CKzInvalidValueException>(messages::YearZero);
    ValidateMonth(kind, month);
    ValidateYear(kind, year);
    ValidateDay(kind, year, month, day);
    if (HasTimeOfDay(kind)) {
        RequireRange(hour, 0, 23, messages::InvalidHour);
        RequireRange(minute, 0, 59, messages::InvalidMinute);
        RequireRange(second, 0, 59, messages::InvalidSecond);
        RequireRange(milli, 0, 999, messages::InvalidMilliSecond);
        RequireRange(micro, 0, 999, messages::InvalidMicroSecond);
        RequireRange(nano, 0, 999, messages::InvalidNanoSecond);
    } else {
        RequireUnused(hour, kind, messages::UnusedHour);
        RequireUnused(minute, kind, messages::UnusedMinute);
        RequireUnused(second, kind, messages::UnusedSecond);
        RequireUnused(milli, kind, messages::UnusedMilliSecond);
        RequireUnused(micro, kind, messages::UnusedMicroSecond);
        RequireUnused(nano, kind, messages::UnusedNanoSecond);
    }
}

void CDateTime::Validate() const {
    ValidateFields(m_dtType, m_year, m_month, m_day, m_hour, m_minute, m_second, m_milliSecond, m_microSecond,
                   m_nanoSecond);
}

} // namespace KzXmlLib10
