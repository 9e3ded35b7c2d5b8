#pragma once

#include <KzXmlLib10/values/CDateTime.h>

#include <iterator>

namespace KzXmlLib10 {

/// The fields that belong to a kind:
///
///                 year   month   day   time of day
///     dateTime     x       x      x        x
///     date         x       x      x
///     gYearMonth   x       x
///     gYear        x
///     time                                 x
///     gDay                        x
///     gMonth               x
///     gMonthDay            x      x

constexpr bool HasYear(CDateTime::DTType kind) {
    return kind >= CDateTime::DTType_dateTime && kind <= CDateTime::DTType_gYear;
}

constexpr bool HasMonth(CDateTime::DTType kind) {
    return (kind >= CDateTime::DTType_dateTime && kind <= CDateTime::DTType_gYearMonth) ||
           kind == CDateTime::DTType_gMonth || kind == CDateTime::DTType_gMonthDay;
}

constexpr bool HasDay(CDateTime::DTType kind) {
    return kind == CDateTime::DTType_dateTime || kind == CDateTime::DTType_date ||
           kind == CDateTime::DTType_gDay || kind == CDateTime::DTType_gMonthDay;
}

constexpr bool HasTimeOfDay(CDateTime::DTType kind) {
    return kind == CDateTime::DTType_dateTime || kind == CDateTime::DTType_time;
}

/// The name of a kind; the empty text for a number that is none.
constexpr const char16_t* KindText(CDateTime::DTType kind) {
    constexpr const char16_t* texts[] = {u"yearZero", u"dateTime", u"date",   u"gYearMonth", u"gYear",
                                         u"time",     u"gDay",     u"gMonth", u"gMonthDay"};
    return static_cast<unsigned>(kind) < std::size(texts) ? texts[kind] : u"";
}

} // namespace KzXmlLib10
