#include <KzXmlLib10/values/CDateTime.h>

#include "object/Throw.h"
#include "values/Calendar.h"
#include "values/DateTimeKinds.h"
#include "values/Messages.h"

#include <algorithm>
#include <ctime>

namespace KzXmlLib10 {

namespace {

constexpr std::int64_t secondsOfDay = 24 * 60 * 60;
constexpr std::int64_t firstTime = calendar::DaysSinceEpoch(-9999, 1, 1) * secondsOfDay;
constexpr std::int64_t endOfTime = calendar::DaysSinceEpoch(10000, 1, 1) * secondsOfDay;

std::tm LocalTime(std::time_t time) {
    std::tm local = {};
    localtime_r(&time, &local);
    return local;
}

SYSTEMTIME LocalSystemTime() {
    std::timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    const std::tm local = LocalTime(now.tv_sec);
    SYSTEMTIME time = {};
    time.wYear = static_cast<std::uint16_t>(local.tm_year + 1900);
    time.wMonth = static_cast<std::uint16_t>(local.tm_mon + 1);
    time.wDayOfWeek = static_cast<std::uint16_t>(local.tm_wday);
    time.wDay = static_cast<std::uint16_t>(local.tm_mday);
    time.wHour = static_cast<std::uint16_t>(local.tm_hour);
    time.wMinute = static_cast<std::uint16_t>(local.tm_min);
    time.wSecond = static_cast<std::uint16_t>(std::min(local.tm_sec, 59)); // there is no leap second
    time.wMilliseconds = static_cast<std::uint16_t>(now.tv_nsec / 1000000);
    return time;
}

SYSTEMTIME FileTimeToSystemTime(const FILETIME& fileTime) {
    const std::uint64_t ticks = std::uint64_t{fileTime.dwHighDateTime} << 32 | fileTime.dwLowDateTime;
    if (ticks >= std::uint64_t{1} << 63)
        Throw<CKzInvalidValueException>(messages::CannotConvertFileTime);
    const auto milliSeconds = static_cast<std::int64_t>(ticks / 10000);
    const std::int64_t seconds = milliSeconds / 1000;
    const std::int64_t days = seconds / secondsOfDay;
    const calendar::Date date = calendar::DateFromDays(days + calendar::DaysSinceEpoch(1601, 1, 1));
    SYSTEMTIME time = {};
    time.wYear = static_cast<std::uint16_t>(date.year);
    time.wMonth = static_cast<std::uint16_t>(date.month);
    time.wDayOfWeek = static_cast<std::uint16_t>((days + 1) % 7); // 1601-01-01 was a Monday
    time.wDay = static_cast<std::uint16_t>(date.day);
    time.wHour = static_cast<std::uint16_t>(seconds / 3600 % 24);
    time.wMinute = static_cast<std::uint16_t>(seconds / 60 % 60);
    time.wSecond = static_cast<std::uint16_t>(seconds % 60);
    time.wMilliseconds = static_cast<std::uint16_t>(milliSeconds % 1000);
    return time;
}

} // namespace

CDateTime CDateTime::GetTickCount() {
    CDateTime now;
    now = LocalSystemTime();
    return now;
}

CDateTime& CDateTime::operator=(long long time) {
    if (time < firstTime || time >= endOfTime)
        Throw<CKzInvalidValueException>(messages::TimeOutOfRange, time);
    const calendar::Date date = calendar::DateFromDays(calendar::FloorDivide(time, secondsOfDay));
    const int second = static_cast<int>(calendar::FloorModulo(time, secondsOfDay));
    SetDateTime(DTType_dateTime, static_cast<int>(date.year), date.month, date.day, second / 3600,
                second / 60 % 60, second % 60);
    return *this;
}

CDateTime& CDateTime::operator=(const SYSTEMTIME& time) {
    SetDateTime(DTType_dateTime, time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond,
                time.wMilliseconds);
    return *this;
}

CDateTime& CDateTime::operator=(const FILETIME& time) { return *this = FileTimeToSystemTime(time); }

long long CDateTime::GetTime() const {
    if (m_dtType != DTType_dateTime && m_dtType != DTType_date)
        Throw<CKzInvalidValueException>(messages::CannotGetTime, KindText(m_dtType));
    const CDateTime utc = GetNormalized();
    const std::int64_t midnight = calendar::DaysSinceEpoch(utc.m_year, utc.m_month, utc.m_day) * secondsOfDay;
    if (m_dtType == DTType_date)
        return midnight;
    return midnight + utc.m_hour * 3600 + utc.m_minute * 60 + utc.m_second;
}

int CDateTime::GetDayOfWeek() const {
    if (m_dtType != DTType_dateTime && m_dtType != DTType_date)
        Throw<CKzInvalidStateException>(messages::CannotGetDayOfWeek, KindText(m_dtType));
    return LocalTime(GetTime()).tm_wday + 1;
}

SYSTEMTIME CDateTime::GetAsSystemTime() const {
    if (m_dtType != DTType_dateTime)
        Throw<CKzInvalidValueException>(messages::CannotGetAsSystemTime, KindText(m_dtType));
    SYSTEMTIME time = {};
    time.wYear = static_cast<std::uint16_t>(m_year);
    time.wMonth = m_month;
    time.wDayOfWeek = static_cast<std::uint16_t>(GetDayOfWeek() - 1);
    time.wDay = m_day;
    time.wHour = m_hour;
    time.wMinute = m_minute;
    time.wSecond = m_second;
    time.wMilliseconds = m_milliSecond;
    return time;
}

} // namespace KzXmlLib10
