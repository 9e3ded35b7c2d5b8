/// The conversions of the kinds that a value class reads, and mostly writes as well.

#include <KzXmlLib10/conversions/CConversions.h>

#include "conversions/FromText.h"
#include "conversions/NumberText.h"
#include "conversions/WorkingText.h"

#include <algorithm>
#include <limits>

namespace KzXmlLib10 {

namespace {

using WhitespaceRule = CWhitespaceUtils::WhitespaceRule;

/// What the operation makes of the text, which ends at its first NUL.
template <auto Set>
CBinaryData ReadBinary(std::u16string_view given, WhitespaceRule rule) {
    const WorkingText working(given, rule);
    const std::u16string text(working.Get());
    CBinaryData value;
    if (text.find(u'\0') == std::u16string::npos)
        (value.*Set)(text);
    else
        (value.*Set)(text.c_str());
    return value;
}

/// What the parser makes of a value of that kind, which need not be of that kind any more.
template <auto Parse>
CDateTime ReadDateTime(CDateTime::DTType kind, std::u16string_view text, WhitespaceRule rule) {
    CDateTime value(kind);
    (value.*Parse)(WorkingText(text, rule).c_str());
    return value;
}

constexpr auto ReadDate = ReadDateTime<&CDateTime::ParseXSDDate>;

/// The integer at the head of a text, at the limit of its type if it is beyond.
int LeadingInteger(const std::u16string& text) {
    constexpr std::uint64_t limit = std::numeric_limits<int>::max();
    const ScannedInteger number = ScanInteger(text);
    const int magnitude = static_cast<int>(number.tooLarge ? limit : std::min(number.magnitude, limit));
    return number.negative ? -magnitude : magnitude;
}

} // namespace

std::u16string CConversions::hexBinaryToString(const CBinaryData& value) { return value.GetAsHexString(); }

CBinaryData fromText::hexBinary(Text text, Rule rule) {
    return ReadBinary<&CBinaryData::SetAsHexString>(text, rule);
}

std::u16string CConversions::base64BinaryToString(const CBinaryData& value) { return value.GetAsBase64(); }

CBinaryData fromText::base64Binary(Text text, Rule rule) {
    return ReadBinary<&CBinaryData::SetAsBase64>(text, rule);
}

std::u16string CConversions::integerToString(const CBigInteger& value) { return value.ToString(); }

CBigInteger fromText::integer(Text text, Rule rule) { return CBigInteger(WorkingText(text, rule).c_str()); }

std::u16string CConversions::decimalToString(const CDecimal& value) { return value.ToString(); }

std::u16string CConversions::decimalToString(const CDecimal& value, const std::u16string& format) {
    return format.empty() ? value.ToString() : value.ToString(LeadingInteger(format));
}

CDecimal fromText::decimal(Text text, Rule rule) { return CDecimal(WorkingText(text, rule).c_str()); }

std::u16string CConversions::durationToString(const CDateTimeSpan& value) { return value.ToString(); }

CDateTimeSpan fromText::duration(Text text, Rule rule) {
    CDateTimeSpan value;
    value.ParseXSDDuration(WorkingText(text, rule).c_str());
    return value;
}

std::u16string CConversions::datetimeToString(const CDateTime& value) { return value.ToString(); }
std::u16string CConversions::dateToString(const CDateTime& value) { return value.ToString(); }
std::u16string CConversions::timeToString(const CDateTime& value) { return value.ToString(); }
std::u16string CConversions::yearMonthToString(const CDateTime& value) { return value.ToString(); }
std::u16string CConversions::monthDayToString(const CDateTime& value) { return value.ToString(); }

CDateTime fromText::datetime(Text text, Rule rule) {
    return ReadDateTime<&CDateTime::ParseXSDDateTime>(CDateTime::DTType_dateTime, text, rule);
}

CDateTime fromText::time(Text text, Rule rule) {
    return ReadDateTime<&CDateTime::ParseXSDTime>(CDateTime::DTType_time, text, rule);
}

CDateTime fromText::date(Text text, Rule rule) { return ReadDate(CDateTime::DTType_date, text, rule); }

CDateTime fromText::yearMonth(Text text, Rule rule) {
    return ReadDate(CDateTime::DTType_gYearMonth, text, rule);
}

CDateTime fromText::monthDay(Text text, Rule rule) {
    return ReadDate(CDateTime::DTType_gMonthDay, text, rule);
}

std::uint16_t fromText::year(Text text, Rule rule) {
    // Deliberate: a negative year reads as its two's complement.
    return static_cast<std::uint16_t>(ReadDate(CDateTime::DTType_gYear, text, rule).GetYear());
}

std::uint8_t fromText::month(Text text, Rule rule) {
    return ReadDate(CDateTime::DTType_gMonth, text, rule).GetMonth();
}

std::uint8_t fromText::day(Text text, Rule rule) {
    return ReadDate(CDateTime::DTType_gDay, text, rule).GetDay();
}

} // namespace KzXmlLib10
