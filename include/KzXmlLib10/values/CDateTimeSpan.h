#pragma once

#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/values/CDateTime.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// A duration of XML Schema: one count for each unit, and a sign.
///
///     CDateTimeSpan span;
///     span.ParseXSDDuration(u"-P1Y15MT2.5S");
///     span.GetMonths();       // 15: counts are never carried into the next unit
///     span.ToString();        // -P1Y15MT2.5S
///
/// A plain value; objects share nothing, so different objects may be used on different threads.
///
/// Failures: only ParseXSDDuration throws, CKzInvalidValueException, and leaves the value partly filled.
///
/// Deliberate oddities: the zero duration is written as P, which cannot be read; of the last three of nine
/// fraction digits only the ninth is read; two durations that differ only in months, or only in hours and
/// smaller units, are often equal.
class QUILLON_EXPORT CDateTimeSpan {
public:
    /// The zero duration.
    CDateTimeSpan();
    CDateTimeSpan(const CDateTimeSpan& other);
    /// A positive duration; counts that are not named are zero.
    CDateTimeSpan(std::uint32_t hours, unsigned long long minutes, unsigned long long seconds);
    CDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days, std::uint32_t hours,
                  unsigned long long minutes, unsigned long long seconds);
    CDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days, std::uint32_t hours,
                  unsigned long long minutes, unsigned long long seconds, std::uint16_t millis,
                  std::uint16_t micros, std::uint16_t nanos);
    virtual ~CDateTimeSpan();
    CDateTimeSpan& operator=(const CDateTimeSpan& other);

    /// Sets a positive duration; counts that are not named become zero.
    void SetDateTimeSpan(std::uint32_t hours, unsigned long long minutes, unsigned long long seconds);
    void SetDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days, std::uint32_t hours,
                         unsigned long long minutes, unsigned long long seconds);
    void SetDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days, std::uint32_t hours,
                         unsigned long long minutes, unsigned long long seconds, std::uint16_t millis,
                         std::uint16_t micros, std::uint16_t nanos);

    /// Access to the counts, each by itself and without a range check.
    std::uint16_t GetYears() const;
    void SetYears(std::uint16_t years);
    std::uint32_t GetMonths() const;
    void SetMonths(std::uint32_t months);
    std::uint32_t GetDays() const;
    void SetDays(std::uint32_t days);
    std::uint32_t GetHours() const;
    void SetHours(std::uint32_t hours);
    unsigned long long GetMinutes() const;
    void SetMinutes(unsigned long long minutes);
    unsigned long long GetSeconds() const;
    void SetSeconds(unsigned long long seconds);
    std::uint16_t GetMilliSeconds() const;
    void SetMilliSeconds(std::uint16_t millis);
    std::uint16_t GetMicroSeconds() const;
    void SetMicroSeconds(std::uint16_t micros);
    std::uint16_t GetNanoSeconds() const;
    void SetNanoSeconds(std::uint16_t nanos);

    bool IsNegative() const;
    /// Turns the sign round.
    void Negate();
    /// A copy with a negative sign. Deliberate: not a negation, a negative duration stays negative.
    CDateTimeSpan GetAsNegative() const;

    /// Reads a duration: [-]P[nY][nM][nD][T[nH][nM][n[.fffffffff]S]].
    /// Deliberate: numbers wrap in 32 bits and may be empty, a Y may follow any other field and starts the
    /// order anew, a number in front of T is ignored, and a point may end the text.
    void ParseXSDDuration(const char16_t* text);
    /// The counts that are not zero. Deliberate: the zero duration gives "P" or "-P", which cannot be read.
    std::u16string ToString() const;

    /// Compares in the partial order of XML Schema: adds both durations to four reference dates and compares
    /// the sums, which have to agree.
    /// Deliberate: the sums are dates, so what CDateTime::CompareTo does not see of dates is not seen here.
    CDateTime::DTCompareResult CompareTo(const CDateTimeSpan& other) const;

    /// The operators ask CompareTo. Of an indeterminate pair only `!=` holds.
    bool operator==(const CDateTimeSpan& other) const;
    bool operator!=(const CDateTimeSpan& other) const;
    bool operator<(const CDateTimeSpan& other) const;
    bool operator>(const CDateTimeSpan& other) const;

private:
    class Reader;

    std::uint16_t m_years = 0;
    std::uint32_t m_months = 0;
    std::uint32_t m_days = 0;
    std::uint32_t m_hours = 0;
    unsigned long long m_minutes = 0;
    unsigned long long m_seconds = 0;
    std::uint16_t m_milliSeconds = 0;
    std::uint16_t m_microSeconds = 0;
    std::uint16_t m_nanoSeconds = 0;
    bool m_isNegative = false;
};

} // namespace KzXmlLib10
