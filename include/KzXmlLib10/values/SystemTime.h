#pragma once

#include <cstdint>

namespace KzXmlLib10 {

/// A calendar date and time of day, in milliseconds.
struct SYSTEMTIME {
    std::uint16_t wYear;         ///< of the Gregorian calendar
    std::uint16_t wMonth;        ///< 1 to 12
    std::uint16_t wDayOfWeek;    ///< 0 for Sunday to 6 for Saturday
    std::uint16_t wDay;          ///< 1 to 31
    std::uint16_t wHour;         ///< 0 to 23
    std::uint16_t wMinute;       ///< 0 to 59
    std::uint16_t wSecond;       ///< 0 to 59
    std::uint16_t wMilliseconds; ///< 0 to 999
};

/// The number of 100-nanosecond steps since the start of the year 1601, in UTC.
struct FILETIME {
    std::uint32_t dwLowDateTime;
    std::uint32_t dwHighDateTime;
};

} // namespace KzXmlLib10
