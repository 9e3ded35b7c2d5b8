#include <KzXmlLib10/values/CDateTime.h>

#include "object/Throw.h"
#include "values/DateTimeKinds.h"
#include "values/DateTimeText.h"
#include "values/Messages.h"

#include <cstdlib>

namespace KzXmlLib10 {

std::u16string CDateTime::ToString() const { return ToString(u"s"); }

std::u16string CDateTime::ToString(const char16_t* format) const {
    if (IsBlank())
        Throw<CKzInvalidValueException>(messages::DateNotSet);
    const std::u16string_view name = format ? format : u"";
    if (name.empty() || name == u"G")
        return {};
    if (name != u"s")
        return std::u16string(u"Unknown Format: ").append(name);

    DateTimeText text;
    AppendDate(text);
    if (m_dtType == DTType_dateTime)
        text += u'T';
    if (HasTimeOfDay(m_dtType))
        AppendTime(text);
    AppendZone(text);
    return text.Get();
}

/// Whether there is nothing to write. A midnight is a time, but a date of zeros is no date.
bool CDateTime::IsBlank() const {
    return m_dtType == DTType_yearZero ||
           (m_dtType != DTType_time && m_year == 0 && m_month == 0 && m_day == 0 && m_hour == 0 &&
            m_minute == 0 && m_second == 0 && m_milliSecond == 0 && m_microSecond == 0 && m_nanoSecond == 0);
}

/// Appends what the kind has of year, month and day. A minus sign stands for each part that is missing in
/// front of another one.
void CDateTime::AppendDate(DateTimeText& out) const {
    if (HasYear(m_dtType)) {
        if (m_year < 0)
            out += u'-';
        out.AppendNumber(static_cast<unsigned>(std::abs(m_year)), 4);
    } else if (HasMonth(m_dtType) || HasDay(m_dtType)) {
        out += u'-';
    }
    if (HasMonth(m_dtType)) {
        out += u'-';
        out.AppendNumber(m_month, 2);
    } else if (HasDay(m_dtType)) {
        out += u'-';
    }
    if (HasDay(m_dtType)) {
        out += u'-';
        out.AppendNumber(m_day, 2);
    }
}

void CDateTime::AppendTime(DateTimeText& out) const {
    out.AppendNumber(m_hour, 2);
    out += u':';
    out.AppendNumber(m_minute, 2);
    out += u':';
    out.AppendNumber(m_second, 2);
    out.AppendFraction(m_milliSecond, m_microSecond, m_nanoSecond);
}

void CDateTime::AppendZone(DateTimeText& out) const {
    if (!m_isUTC)
        return;
    if (!m_hasTimeZone) {
        out += u'Z';
        return;
    }
    out += m_zoneHour < 0 ? u'-' : u'+';
    out.AppendNumber(static_cast<unsigned>(std::abs(m_zoneHour)), 2);
    out += u':';
    out.AppendNumber(m_zoneMinute, 2);
}

} // namespace KzXmlLib10
