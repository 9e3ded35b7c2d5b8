#include <KzXmlLib10/values/CDateTime.h>

#include "object/Throw.h"
#include "values/Calendar.h"
#include "values/DateTimeKinds.h"
#include "values/Messages.h"

/// Representation, by rows of kind, date, time of day and zone:
///
///     2001-05-12T13:20:00.5   dateTime    2001 5 12   13 20 0  500 0 0   no zone: neither flag
///     2001-05Z                gYearMonth  2001 5 0     0  0 0    0 0 0   Z: m_isUTC
///     --05-12+00:00           gMonthDay      0 5 12    0  0 0    0 0 0   offset: m_isUTC, m_hasTimeZone
///     13:20:00-05:30          time           0 0 0    13 20 0    0 0 0   offset: both, and -5 30
///
/// Fields that the kind does not have are zero in a valid value. The sign of an offset lives in its hour.
namespace KzXmlLib10 {

namespace {

using KindMessage = Message<const char16_t*>;

void Require(bool allowed, CDateTime::DTType kind, KindMessage message) {
    if (!allowed)
        Throw<CKzInvalidStateException>(message, KindText(kind));
}

void RequireYear(CDateTime::DTType kind) { Require(HasYear(kind), kind, messages::CannotGetYear); }
void RequireMonth(CDateTime::DTType kind) { Require(HasMonth(kind), kind, messages::CannotGetMonth); }
void RequireDay(CDateTime::DTType kind) { Require(HasDay(kind), kind, messages::CannotGetDay); }
void RequireTimeOfDay(CDateTime::DTType kind, KindMessage message) {
    Require(HasTimeOfDay(kind), kind, message);
}

/// Leaves `value` not set if `set` refuses what it is given.
template <class Setting>
void SetOrLeaveBlank(CDateTime& value, Setting set) {
    try {
        set();
    } catch (const CKzInvalidValueException&) {
        value = CDateTime();
    }
}

} // namespace

CDateTime::CDateTime() = default;
CDateTime::CDateTime(DTType kind) : m_dtType(kind) {}
CDateTime::CDateTime(const CDateTime& other) = default;
CDateTime::~CDateTime() = default;
CDateTime& CDateTime::operator=(const CDateTime& other) = default;

CDateTime::CDateTime(const char16_t* text) { ParseXSDDateTime(text); }

CDateTime::CDateTime(long long time) {
    SetOrLeaveBlank(*this, [&] { *this = time; });
}

CDateTime::CDateTime(const SYSTEMTIME& time) {
    SetOrLeaveBlank(*this, [&] { *this = time; });
}

CDateTime::CDateTime(const FILETIME& time) {
    SetOrLeaveBlank(*this, [&] { *this = time; });
}

CDateTime::CDateTime(int year, int month, int day) {
    SetOrLeaveBlank(*this, [&] { SetDate(year, month, day); });
}

CDateTime::CDateTime(int year, int month, int day, int hour, int minute, int second) {
    SetOrLeaveBlank(*this, [&] { SetDateTime(year, month, day, hour, minute, second); });
}

CDateTime::CDateTime(int year, int month, int day, int hour, int minute, int second, int milli, int micro,
                     int nano) {
    SetOrLeaveBlank(*this, [&] { SetDateTime(year, month, day, hour, minute, second, milli, micro, nano); });
}

void CDateTime::SetDateTime(int year, int month, int day, int hour, int minute, int second) {
    SetDateTime(DTType_dateTime, year, month, day, hour, minute, second);
}

void CDateTime::SetDateTime(int year, int month, int day, int hour, int minute, int second, int milli,
                            int micro, int nano) {
    SetDateTime(DTType_dateTime, year, month, day, hour, minute, second, milli, micro, nano);
}

void CDateTime::SetDate(int year, int month, int day) { SetDateTime(DTType_date, year, month, day); }

void CDateTime::SetTime(int hour, int minute, int second) {
    SetDateTime(DTType_time, 0, 0, 0, hour, minute, second);
}

void CDateTime::SetTime(int hour, int minute, int second, int milli, int micro, int nano) {
    SetDateTime(DTType_time, 0, 0, 0, hour, minute, second, milli, micro, nano);
}

void CDateTime::SetFracTime(int milli, int micro, int nano) {
    SetDateTime(DTType_time, 0, 0, 0, 0, 0, 0, milli, micro, nano);
}

void CDateTime::SetGYear(int year) { SetDateTime(DTType_gYear, year); }

void CDateTime::SetGYearMonth(int year, int month) { SetDateTime(DTType_gYearMonth, year, month); }

void CDateTime::SetGMonth(int month) { SetDateTime(DTType_gMonth, 0, month); }

void CDateTime::SetGMonthDay(int month, int day) { SetDateTime(DTType_gMonthDay, 0, month, day); }

void CDateTime::SetGDay(int day) { SetDateTime(DTType_gDay, 0, 0, day); }

void CDateTime::SetDateTime(DTType kind, int year, int month, int day, int hour, int minute, int second,
                            int milli, int micro, int nano) {
    if (m_dtType != DTType_yearZero && m_dtType != kind)
        Throw<CKzInvalidStateException>(messages::CannotSetOtherKind, KindText(kind), KindText(m_dtType));
    *this = CDateTime(kind);
    m_year = static_cast<std::int16_t>(year);
    m_month = static_cast<std::uint8_t>(month);
    m_day = static_cast<std::uint8_t>(day);
    m_hour = static_cast<std::uint8_t>(hour);
    m_minute = static_cast<std::uint8_t>(minute);
    m_second = static_cast<std::uint8_t>(second);
    m_milliSecond = static_cast<std::uint16_t>(milli);
    m_microSecond = static_cast<std::uint16_t>(micro);
    m_nanoSecond = static_cast<std::uint16_t>(nano);
    // The numbers as they were given, so that none passes by losing its upper bits.
    ValidateFields(kind, year, month, day, hour, minute, second, milli, micro, nano);
}

void CDateTime::SetDateTime(const CDateTime& source, DTType target) {
    if (!CheckConversion(source.m_dtType, target))
        Throw<CKzInvalidValueException>(messages::CannotConvertDateKind, KindText(target),
                                        KindText(source.m_dtType));
    *this = source;
    m_dtType = target;
}

bool CDateTime::CheckConversion(DTType source, DTType target) {
    if (source == target || target == DTType_yearZero)
        return true;
    switch (source) {
    case DTType_dateTime:
        return true;
    case DTType_date:
        return target == DTType_gDay || target == DTType_gMonth || target == DTType_gYear ||
               target == DTType_gMonthDay || target == DTType_gYearMonth;
    case DTType_gYearMonth:
        return target == DTType_gMonth || target == DTType_gYear;
    case DTType_gMonthDay:
        return target == DTType_gDay || target == DTType_gMonth;
    case DTType_yearZero:
    case DTType_gYear:
    case DTType_time:
    case DTType_gDay:
    case DTType_gMonth:
        return false;
    }
    Throw<CKzInvalidValueException>(messages::UnknownDateKind, source);
}

CDateTime::DTType CDateTime::GetType() const { return m_dtType; }
std::u16string CDateTime::GetTypeAsString() const { return KindText(m_dtType); }

std::int16_t CDateTime::GetYear() const {
    RequireYear(m_dtType);
    return m_year;
}

void CDateTime::SetYear(std::int16_t year) {
    RequireYear(m_dtType);
    m_year = year;
}

std::uint8_t CDateTime::GetMonth() const {
    RequireMonth(m_dtType);
    return m_month;
}

void CDateTime::SetMonth(std::uint8_t month) {
    RequireMonth(m_dtType);
    m_month = month;
}

std::uint8_t CDateTime::GetDay() const {
    RequireDay(m_dtType);
    return m_day;
}

void CDateTime::SetDay(std::uint8_t day) {
    RequireDay(m_dtType);
    m_day = day;
}

std::uint8_t CDateTime::GetHour() const {
    RequireTimeOfDay(m_dtType, messages::CannotGetHour);
    return m_hour;
}

void CDateTime::SetHour(std::uint8_t hour) {
    RequireTimeOfDay(m_dtType, messages::CannotGetHour);
    m_hour = hour;
}

std::uint8_t CDateTime::GetMinute() const {
    RequireTimeOfDay(m_dtType, messages::CannotGetMinute);
    return m_minute;
}

void CDateTime::SetMinute(std::uint8_t minute) {
    RequireTimeOfDay(m_dtType, messages::CannotGetMinute);
    m_minute = minute;
}

std::uint8_t CDateTime::GetSecond() const {
    RequireTimeOfDay(m_dtType, messages::CannotGetSecond);
    return m_second;
}

void CDateTime::SetSecond(std::uint8_t second) {
    RequireTimeOfDay(m_dtType, messages::CannotGetSecond);
    m_second = second;
}

std::uint16_t CDateTime::GetMilliSecond() const {
    RequireTimeOfDay(m_dtType, messages::CannotGetMilliSecond);
    return m_milliSecond;
}

void CDateTime::SetMilliSecond(std::uint16_t milli) {
    RequireTimeOfDay(m_dtType, messages::CannotGetMilliSecond);
    m_milliSecond = milli;
}

std::uint16_t CDateTime::GetMicroSecond() const {
    RequireTimeOfDay(m_dtType, messages::CannotGetMicroSecond);
    return m_microSecond;
}

void CDateTime::SetMicroSecond(std::uint16_t micro) {
    RequireTimeOfDay(m_dtType, messages::CannotGetMicroSecond);
    m_microSecond = micro;
}

std::uint16_t CDateTime::GetNanoSecond() const {
    RequireTimeOfDay(m_dtType, messages::CannotGetNanoSecond);
    return m_nanoSecond;
}

void CDateTime::SetNanoSecond(std::uint16_t nano) {
    RequireTimeOfDay(m_dtType, messages::CannotGetNanoSecond);
    m_nanoSecond = nano;
}

double CDateTime::GetRealSecond() const {
    RequireTimeOfDay(m_dtType, messages::CannotGetRealSecond);
    return m_milliSecond / 1000.0 + m_second + m_microSecond / 1e6 + m_nanoSecond / 1e9;
}

int CDateTime::GetDayOfYear() const {
    Require(m_dtType == DTType_dateTime || m_dtType == DTType_date, m_dtType, messages::CannotGetDayOfYear);
    constexpr int daysBefore[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    if (m_month < 1 || m_month > 12)
        Throw<CKzInvalidValueException>(messages::InvalidMonth, m_month);
    // Deliberate: the leap day counts up to February, not from March on.
    const bool leapDay = m_month < 3 && calendar::IsLeapYear(m_year);
    return daysBefore[m_month - 1] + m_day + leapDay;
}

bool CDateTime::IsUTC() const { return m_isUTC; }
bool CDateTime::HasTimeZone() const { return m_hasTimeZone; }

std::int16_t CDateTime::GetZoneHour() const {
    if (!m_hasTimeZone)
        Throw<CKzInvalidStateException>(messages::NoTimeZone);
    return m_zoneHour;
}

std::uint8_t CDateTime::GetZoneMinute() const {
    if (!m_hasTimeZone)
        Throw<CKzInvalidStateException>(messages::NoTimeZone);
    return m_zoneMinute;
}

void CDateTime::SetTimeZone(std::int16_t hour, std::uint8_t minute) {
    if (hour < -23 || hour > 23 || minute > 59)
        Throw<CKzInvalidValueException>(messages::InvalidTimeZone, hour, minute);
    m_isUTC = true;
    m_hasTimeZone = true;
    m_zoneHour = hour;
    m_zoneMinute = minute;
}

void CDateTime::SetUTC() {
    m_isUTC = true;
    m_hasTimeZone = false;
    m_zoneHour = 0;
    m_zoneMinute = 0;
}

} // namespace KzXmlLib10
