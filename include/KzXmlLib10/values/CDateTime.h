#pragma once

#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/values/SystemTime.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace KzXmlLib10 {

class DateTimeText;

/// A value of any of the eight date and time kinds of XML Schema.
///
///     CDateTime start(2000, 2, 28);
///     CDateTimeSpan week;
///     week.ParseXSDDuration(u"P7D");
///     (start + week).ToString();                  // 2000-03-06
///     start.SetTimeZone(1, 0);
///     start.ToString();                           // 2000-02-28+01:00
///
/// A plain value; objects share nothing, so different objects may be used on different threads.
///
/// Failures: a bad text or value throws CKzInvalidValueException, an operation that the kind of the value
/// forbids CKzInvalidStateException. A failed parse or setting leaves the value partly filled.
///
/// Deliberate oddities: the comparison of two values does not see the month of the right-hand one, an offset
/// between -00:59 and -00:01 loses its sign, `GetDayOfYear` adds the leap day to January and February, and
/// adding whole months does not shorten the day.
class QUILLON_EXPORT CDateTime {
public:
    /// The kind of a value. It says which fields the value has.
    enum DTType : std::int32_t {
        DTType_yearZero = 0,   ///< not set
        DTType_dateTime = 1,   ///< 2001-05-12T13:20:00
        DTType_date = 2,       ///< 2001-05-12
        DTType_gYearMonth = 3, ///< 2001-05
        DTType_gYear = 4,      ///< 2001
        DTType_time = 5,       ///< 13:20:00
        DTType_gDay = 6,       ///< ---12
        DTType_gMonth = 7,     ///< --05
        DTType_gMonthDay = 8,  ///< --05-12
    };

    /// The answer of a comparison in a partial order.
    enum DTCompareResult : std::int32_t {
        DTCompareResult_Equal = 0,
        DTCompareResult_Less = 1,
        DTCompareResult_Greater = 2,
        DTCompareResult_Indeterminate = 3,
    };

    /// A value that is not set.
    CDateTime();
    /// A value of the kind, with all fields zero.
    CDateTime(DTType kind);
    CDateTime(const CDateTime& other);
    /// Reads a dateTime, as ParseXSDDateTime does.
    CDateTime(const char16_t* text);

    /// The constructors from numbers and times give a dateTime, the one from three numbers a date.
    /// Deliberate: they do not report a value that is out of range, but leave this one not set.
    CDateTime(long long time);
    CDateTime(const SYSTEMTIME& time);
    CDateTime(const FILETIME& time);
    CDateTime(int year, int month, int day);
    CDateTime(int year, int month, int day, int hour, int minute, int second);
    CDateTime(int year, int month, int day, int hour, int minute, int second, int milli, int micro, int nano);

    virtual ~CDateTime();

    /// The assignments from times give a dateTime without a zone. The value must be not set or a dateTime
    /// already, or CKzInvalidStateException is thrown; a time outside the years -9999 to 9999 throws
    /// CKzInvalidValueException.
    CDateTime& operator=(const CDateTime& other);
    /// From the seconds since the start of 1970 in UTC.
    CDateTime& operator=(long long time);
    CDateTime& operator=(const SYSTEMTIME& time);
    /// In UTC; what is below a millisecond is dropped.
    CDateTime& operator=(const FILETIME& time);

    /// The present local time, in milliseconds, as a dateTime without a zone.
    static CDateTime GetTickCount();

    /// These set the kind that their name says, and all fields: what is not named becomes zero, and the zone
    /// goes. The value must be not set or of that kind already, or CKzInvalidStateException is thrown. A
    /// field out of range throws CKzInvalidValueException, and the fields stay as they were just set.
    void SetDateTime(int year, int month, int day, int hour, int minute, int second);
    void SetDateTime(int year, int month, int day, int hour, int minute, int second, int milli, int micro,
                     int nano);
    void SetDate(int year, int month, int day);
    void SetTime(int hour, int minute, int second);
    void SetTime(int hour, int minute, int second, int milli, int micro, int nano);
    /// Sets a time: hour, minute and second become zero.
    void SetFracTime(int milli, int micro, int nano);
    void SetGYear(int year);
    void SetGYearMonth(int year, int month);
    void SetGMonth(int month);
    void SetGMonthDay(int month, int day);
    void SetGDay(int day);

    /// Takes all fields of `source` as a value of the kind `target`, without masking and without validation.
    /// Throws CKzInvalidValueException if the kind of `source` does not hold the fields of `target`.
    void SetDateTime(const CDateTime& source, DTType target);

    DTType GetType() const;
    /// The name of the kind, such as "gYearMonth"; "yearZero" for a value that is not set.
    std::u16string GetTypeAsString() const;

    /// Access to the fields. A kind without the field throws CKzInvalidStateException.
    /// Deliberate: the setters check no range, and their failures name the getter.
    std::int16_t GetYear() const;
    void SetYear(std::int16_t year);
    std::uint8_t GetMonth() const;
    void SetMonth(std::uint8_t month);
    std::uint8_t GetDay() const;
    void SetDay(std::uint8_t day);
    std::uint8_t GetHour() const;
    void SetHour(std::uint8_t hour);
    std::uint8_t GetMinute() const;
    void SetMinute(std::uint8_t minute);
    std::uint8_t GetSecond() const;
    void SetSecond(std::uint8_t second);
    std::uint16_t GetMilliSecond() const;
    void SetMilliSecond(std::uint16_t milli);
    std::uint16_t GetMicroSecond() const;
    void SetMicroSecond(std::uint16_t micro);
    std::uint16_t GetNanoSecond() const;
    void SetNanoSecond(std::uint16_t nano);

    /// The second with its fraction.
    double GetRealSecond() const;
    /// 1 for Sunday to 7 for Saturday, of GetTime seen in the machine's time zone. For dateTime and date.
    int GetDayOfWeek() const;
    /// The number of the day in its year, from 1. For dateTime and date.
    /// Deliberate: the leap day counts in January and February and not from March on.
    int GetDayOfYear() const;

    /// Whether there is a zone designator at all. Deliberate: also true for an offset.
    bool IsUTC() const;
    /// Whether the zone is a numeric offset.
    bool HasTimeZone() const;
    /// The hours of the offset, with its sign. Without an offset CKzInvalidStateException is thrown.
    std::int16_t GetZoneHour() const;
    /// The minutes of the offset, without a sign. Without an offset CKzInvalidStateException is thrown.
    std::uint8_t GetZoneMinute() const;
    /// Sets an offset: -23 to 23 hours, which carry the sign, and 0 to 59 minutes.
    void SetTimeZone(std::int16_t hour, std::uint8_t minute);
    /// Sets the zone Z.
    void SetUTC();

    /// Throws CKzInvalidValueException for the first field that is out of range, or that is not zero though
    /// the kind does not have it.
    void Validate() const;

    /// Reads a dateTime: CCYY-MM-DDThh:mm:ss[.fffffffff][Z|[+|-]hh:mm].
    void ParseXSDDateTime(const char16_t* text);
    /// Reads a date, gYearMonth, gYear, gMonth, gMonthDay or gDay; the form of the text decides on the kind.
    /// Years have four digits.
    void ParseXSDDate(const char16_t* text);
    /// Reads a time: hh:mm:ss[.fffffffff][Z|[+|-]hh:mm].
    /// Deliberate: what follows the seconds and is no zone is ignored.
    void ParseXSDTime(const char16_t* text);

    /// The lexical form of XML Schema for the kind. A value that is not set throws CKzInvalidValueException,
    /// and so does one other than a time with all fields zero.
    std::u16string ToString() const;
    /// With the format "s" as ToString(); a null or empty one and "G" give the empty text, any other one
    /// "Unknown Format: " and the format.
    std::u16string ToString(const char16_t* format) const;

    /// A copy moved to the offset +00:00, if the zone is an offset; otherwise a plain copy.
    CDateTime GetNormalized() const;

    /// Compares in the partial order of XML Schema (Datatypes, 3.2.7.4). Where only one value has a zone, the
    /// other one is tried at +14:00 and -14:00.
    /// Deliberate: months of the right-hand value are not seen, years of different sign are indeterminate,
    /// and the second try starts from the result of the first.
    /// If `other` has a month and this value has none, CKzInvalidStateException is thrown.
    DTCompareResult CompareTo(const CDateTime& other) const;

    /// The operators ask CompareTo. Of an indeterminate pair only `!=` holds.
    bool operator==(const CDateTime& other) const;
    bool operator!=(const CDateTime& other) const;
    bool operator<(const CDateTime& other) const;
    bool operator<=(const CDateTime& other) const;
    bool operator>(const CDateTime& other) const;
    bool operator>=(const CDateTime& other) const;

    /// Adds a duration field by field, after Appendix E of XML Schema Datatypes. Throws
    /// CKzInvalidValueException where the count of months is so large that the resulting month is none.
    /// Deliberate: the day is not cut to the length of the new month unless days move it, and quotients have
    /// single precision.
    CDateTime operator+(const CDateTimeSpan& span) const;
    CDateTime& operator+=(const CDateTimeSpan& span);
    /// Deliberate: a negative duration moves the value backwards as well.
    CDateTime operator-(const CDateTimeSpan& span) const;
    CDateTime& operator-=(const CDateTimeSpan& span);
    /// Deliberate: the difference of two values is always the zero duration.
    CDateTimeSpan operator-(const CDateTime& other) const;

    /// The seconds since the start of 1970 of the normalised fields read as UTC, negative before it. For
    /// dateTime and date; other kinds throw CKzInvalidValueException.
    long long GetTime() const;
    /// The fields of a dateTime as they stand; other kinds throw CKzInvalidValueException.
    SYSTEMTIME GetAsSystemTime() const;

private:
    void SetDateTime(DTType kind, int year, int month = 0, int day = 0, int hour = 0, int minute = 0,
                     int second = 0, int milli = 0, int micro = 0, int nano = 0);
    static void ValidateFields(DTType kind, int year, int month, int day, int hour, int minute, int second,
                               int milli, int micro, int nano);
    static bool CheckConversion(DTType source, DTType target);

    void ReadDate(std::u16string_view text);
    bool ReadDateBody(std::u16string_view body);
    void ReadTime(std::u16string_view text);
    std::size_t ReadFraction(std::u16string_view text);
    void ReadZone(std::u16string_view zone);

    bool IsBlank() const;
    void AppendDate(DateTimeText& out) const;
    void AppendTime(DateTimeText& out) const;
    void AppendZone(DateTimeText& out) const;

    DTCompareResult CompareFields(const CDateTime& other) const;
    void AddDateTimeSpan(const CDateTimeSpan& span);
    void AddDays(long long days);

    DTType m_dtType = DTType_yearZero;
    std::int16_t m_year = 0;
    std::uint8_t m_month = 0;
    std::uint8_t m_day = 0;
    std::uint8_t m_hour = 0;
    std::uint8_t m_minute = 0;
    std::uint8_t m_second = 0;
    std::uint16_t m_milliSecond = 0;
    std::uint16_t m_microSecond = 0;
    std::uint16_t m_nanoSecond = 0;
    bool m_isUTC = false;
    bool m_hasTimeZone = false;
    std::int16_t m_zoneHour = 0;
    std::uint8_t m_zoneMinute = 0;
};

} // namespace KzXmlLib10
