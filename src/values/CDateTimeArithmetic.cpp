#include <KzXmlLib10/values/CDateTime.h>
#include <KzXmlLib10/values/CDateTimeSpan.h>

#include "object/Throw.h"
#include "values/Calendar.h"
#include "values/Messages.h"

#include <cmath>
#include <cstdlib>
#include <limits>

namespace KzXmlLib10 {

namespace {

/// `field` plus or minus `count`, plus `carry`, in 64 bits; what is larger wraps.
std::int64_t Sum(std::int64_t field, bool minus, std::uint64_t count, std::int64_t carry) {
    const std::uint64_t change = minus ? 0 - count : count;
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(field) + change +
                                     static_cast<std::uint64_t>(carry));
}

/// The floor of `total` / `unit`.
/// Deliberate: the quotient has single precision, so the carry of a very large count is not exact.
std::int64_t Carry(std::int64_t total, int unit) {
    return static_cast<std::int64_t>(std::floor(static_cast<float>(total) / static_cast<float>(unit)));
}

/// Leaves in `field` what `carry` units do not take of `total`, in the width of the field, and returns
/// `carry`.
template <class Field>
std::int64_t Settle(Field& field, std::int64_t total, int unit) {
    const std::int64_t carry = Carry(total, unit);
    field = static_cast<Field>(static_cast<std::uint64_t>(total) -
                               static_cast<std::uint64_t>(unit) * static_cast<std::uint64_t>(carry));
    return carry;
}

} // namespace

void CDateTime::AddDateTimeSpan(const CDateTimeSpan& span) {
    // Deliberate: the kind is not asked, so a value without a month moves to December of the year before.
    const bool minus = span.IsNegative();
    std::int64_t carry = Settle(m_month, Sum(m_month - 1, minus, span.GetMonths(), 0), 12);
    m_month = static_cast<std::uint8_t>(m_month + 1);
    m_year = static_cast<std::int16_t>(Sum(m_year, minus, span.GetYears(), carry));

    carry = Settle(m_nanoSecond, Sum(m_nanoSecond, minus, span.GetNanoSeconds(), 0), 1000);
    carry = Settle(m_microSecond, Sum(m_microSecond, minus, span.GetMicroSeconds(), carry), 1000);
    carry = Settle(m_milliSecond, Sum(m_milliSecond, minus, span.GetMilliSeconds(), carry), 1000);
    carry = Settle(m_second, Sum(m_second, minus, span.GetSeconds(), carry), 60);
    carry = Settle(m_minute, Sum(m_minute, minus, span.GetMinutes(), carry), 60);
    carry = Settle(m_hour, Sum(m_hour, minus, span.GetHours(), carry), 24);
    AddDays(Sum(0, minus, span.GetDays(), carry));
}

/// Moves the date by whole months while the days do not fit into the present one, as on foot, but in one
/// step. The year wraps in its 16 bits, so dates lie on a circle.
void CDateTime::AddDays(long long days) {
    using calendar::DaysSinceEpoch;
    constexpr std::int64_t firstDay = DaysSinceEpoch(std::numeric_limits<std::int16_t>::min(), 1, 1);
    constexpr std::int64_t daysOfCircle =
        DaysSinceEpoch(std::numeric_limits<std::int16_t>::max() + 1, 1, 1) - firstDay;

    if (days == 0)
        return; // Deliberate: a day that the new month does not have stays.
    if (days < 0 && m_day > -days) {
        m_day = static_cast<std::uint8_t>(m_day + days);
        return;
    }
    // Going forward needs the length of this month, going back that of the month before.
    if (m_month < 1 || m_month > (days > 0 ? 12 : 13))
        Throw<CKzInvalidValueException>(messages::InvalidMonth, m_month);
    const std::int64_t target = DaysSinceEpoch(m_year, m_month, m_day) + days;
    const calendar::Date date =
        calendar::DateFromDays(firstDay + calendar::FloorModulo(target - firstDay, daysOfCircle));
    m_year = static_cast<std::int16_t>(date.year);
    m_month = static_cast<std::uint8_t>(date.month);
    m_day = static_cast<std::uint8_t>(date.day);
}

CDateTime CDateTime::operator+(const CDateTimeSpan& span) const { return CDateTime(*this) += span; }

CDateTime& CDateTime::operator+=(const CDateTimeSpan& span) {
    AddDateTimeSpan(span);
    return *this;
}

CDateTime CDateTime::operator-(const CDateTimeSpan& span) const { return CDateTime(*this) -= span; }

CDateTime& CDateTime::operator-=(const CDateTimeSpan& span) {
    AddDateTimeSpan(span.GetAsNegative());
    return *this;
}

CDateTimeSpan CDateTime::operator-(const CDateTime&) const {
    // Deliberate: the difference of two values has no implementation.
    return CDateTimeSpan();
}

CDateTime CDateTime::GetNormalized() const {
    CDateTime normalized = *this;
    if (!m_hasTimeZone)
        return normalized;
    CDateTimeSpan offset(static_cast<std::uint32_t>(std::abs(m_zoneHour)), m_zoneMinute, 0);
    if (m_zoneHour >= 0)
        offset.Negate();
    try {
        normalized += offset;
        normalized.SetTimeZone(0, 0);
    } catch (const CKzInvalidValueException&) {
        // The copy is returned as it stands.
    }
    return normalized;
}

} // namespace KzXmlLib10
