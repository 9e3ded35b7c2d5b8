#include <KzXmlLib10/values/CDateTimeSpan.h>

#include <KzXmlLib10/object/CKzException.h>

#include "values/DateTimeText.h"

#include <optional>

/// Representation, by rows of the counts from years to nanoseconds and the sign:
///
///     P1Y2M3DT4H5M6.5S    1 2 3   4 5 6   500   0 0
///     -P15M               0 15 0  0 0 0     0   0 0   negative
///     PT0.123456789S      0 0 0   0 0 0   123 456 9
///
/// Nothing is ever carried from one count into another.
namespace KzXmlLib10 {

CDateTimeSpan::CDateTimeSpan() = default;
CDateTimeSpan::CDateTimeSpan(const CDateTimeSpan& other) = default;
CDateTimeSpan::~CDateTimeSpan() = default;
CDateTimeSpan& CDateTimeSpan::operator=(const CDateTimeSpan& other) = default;

CDateTimeSpan::CDateTimeSpan(std::uint32_t hours, unsigned long long minutes, unsigned long long seconds) {
    SetDateTimeSpan(hours, minutes, seconds);
}

CDateTimeSpan::CDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days,
                             std::uint32_t hours, unsigned long long minutes, unsigned long long seconds) {
    SetDateTimeSpan(years, months, days, hours, minutes, seconds);
}

CDateTimeSpan::CDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days,
                             std::uint32_t hours, unsigned long long minutes, unsigned long long seconds,
                             std::uint16_t millis, std::uint16_t micros, std::uint16_t nanos) {
    SetDateTimeSpan(years, months, days, hours, minutes, seconds, millis, micros, nanos);
}

void CDateTimeSpan::SetDateTimeSpan(std::uint32_t hours, unsigned long long minutes,
                                    unsigned long long seconds) {
    SetDateTimeSpan(0, 0, 0, hours, minutes, seconds, 0, 0, 0);
}

void CDateTimeSpan::SetDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days,
                                    std::uint32_t hours, unsigned long long minutes,
                                    unsigned long long seconds) {
    SetDateTimeSpan(years, months, days, hours, minutes, seconds, 0, 0, 0);
}

void CDateTimeSpan::SetDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days,
                                    std::uint32_t hours, unsigned long long minutes,
                                    unsigned long long seconds, std::uint16_t millis, std::uint16_t micros,
                                    std::uint16_t nanos) {
    m_years = years;
    m_months = months;
    m_days = days;
    m_hours = hours;
    m_minutes = minutes;
    m_seconds = seconds;
    m_milliSeconds = millis;
    m_microSeconds = micros;
    m_nanoSeconds = nanos;
    m_isNegative = false;
}

std::uint16_t CDateTimeSpan::GetYears() const { return m_years; }
void CDateTimeSpan::SetYears(std::uint16_t years) { m_years = years; }
std::uint32_t CDateTimeSpan::GetMonths() const { return m_months; }
void CDateTimeSpan::SetMonths(std::uint32_t months) { m_months = months; }
std::uint32_t CDateTimeSpan::GetDays() const { return m_days; }
void CDateTimeSpan::SetDays(std::uint32_t days) { m_days = days; }
std::uint32_t CDateTimeSpan::GetHours() const { return m_hours; }
void CDateTimeSpan::SetHours(std::uint32_t hours) { m_hours = hours; }
unsigned long long CDateTimeSpan::GetMinutes() const { return m_minutes; }
void CDateTimeSpan::SetMinutes(unsigned long long minutes) { m_minutes = minutes; }
unsigned long long CDateTimeSpan::GetSeconds() const { return m_seconds; }
void CDateTimeSpan::SetSeconds(unsigned long long seconds) { m_seconds = seconds; }
std::uint16_t CDateTimeSpan::GetMilliSeconds() const { return m_milliSeconds; }
void CDateTimeSpan::SetMilliSeconds(std::uint16_t millis) { m_milliSeconds = millis; }
std::uint16_t CDateTimeSpan::GetMicroSeconds() const { return m_microSeconds; }
void CDateTimeSpan::SetMicroSeconds(std::uint16_t micros) { m_microSeconds = micros; }
std::uint16_t CDateTimeSpan::GetNanoSeconds() const { return m_nanoSeconds; }
void CDateTimeSpan::SetNanoSeconds(std::uint16_t nanos) { m_nanoSeconds = nanos; }

bool CDateTimeSpan::IsNegative() const { return m_isNegative; }
void CDateTimeSpan::Negate() { m_isNegative = !m_isNegative; }

CDateTimeSpan CDateTimeSpan::GetAsNegative() const {
    CDateTimeSpan negative = *this;
    negative.m_isNegative = true; // Deliberate: whatever the sign was.
    return negative;
}

std::u16string CDateTimeSpan::ToString() const {
    DateTimeText text;
    if (m_isNegative)
        text += u'-';
    text += u'P';
    const auto append = [&text](unsigned long long count, char16_t designator) {
        if (count != 0) {
            text.AppendNumber(count);
            text += designator;
        }
    };
    append(m_years, u'Y');
    append(m_months, u'M');
    append(m_days, u'D');
    const bool hasSeconds =
        m_seconds != 0 || m_milliSeconds != 0 || m_microSeconds != 0 || m_nanoSeconds != 0;
    if (m_hours == 0 && m_minutes == 0 && !hasSeconds)
        return text.Get(); // Deliberate: nothing follows the P of a zero duration.
    text += u'T';
    append(m_hours, u'H');
    append(m_minutes, u'M');
    if (hasSeconds) {
        text.AppendNumber(m_seconds);
        text.AppendFraction(m_milliSeconds, m_microSeconds, m_nanoSeconds);
        text += u'S';
    }
    return text.Get();
}

CDateTime::DTCompareResult CDateTimeSpan::CompareTo(const CDateTimeSpan& other) const {
    constexpr struct {
        int year, month, day;
    } references[] = {{1696, 9, 1}, {1697, 2, 1}, {1903, 3, 1}, {1903, 7, 1}};
    std::optional<CDateTime::DTCompareResult> common;
    try {
        for (const auto& [year, month, day] : references) {
            CDateTime reference(year, month, day);
            reference.SetUTC();
            const auto result = (reference + *this).CompareTo(reference + other);
            if (result != common.value_or(result))
                return CDateTime::DTCompareResult_Indeterminate;
            common = result;
        }
    } catch (const CKzInvalidValueException&) {
        return CDateTime::DTCompareResult_Indeterminate;
    }
    return *common;
}

bool CDateTimeSpan::operator==(const CDateTimeSpan& other) const {
    return CompareTo(other) == CDateTime::DTCompareResult_Equal;
}

bool CDateTimeSpan::operator!=(const CDateTimeSpan& other) const {
    return CompareTo(other) != CDateTime::DTCompareResult_Equal;
}

bool CDateTimeSpan::operator<(const CDateTimeSpan& other) const {
    return CompareTo(other) == CDateTime::DTCompareResult_Less;
}

bool CDateTimeSpan::operator>(const CDateTimeSpan& other) const {
    return CompareTo(other) == CDateTime::DTCompareResult_Greater;
}

} // namespace KzXmlLib10
