/// The conversions of the kinds that a value class reads, and mostly writes as well.

#include <KzXmlLib10/conversions/CConversions.h>

#include "conversions/NumberText.h"
#include "conversions/WorkingText.h"

#include <algorithm>
#include <limits>

namespace KzXmlLib10 {

namespace {

using WhitespaceRule = CWhitespaceUtils::WhitespaceRule;

/// What the operation makes of the text, which ends at its first NUL.
template <auto Set>
CBinaryData ReadBinary(const std::u16string& given, WhitespaceRule rule) {
    const WorkingText working(given, rule);
    const std::u16string& text = working.Get();
    CBinaryData value;
    if (text.find(u'\0') == std::u16string::npos)
        (value.*Set)(text);
    else
        (value.*Set)(text.c_str());
    return value;
}

/// What the parser makes of a value of that kind, which need not be of that kind any more.
template <auto Parse>
CDateTime ReadDateTime(CDateTime::DTType kind, const std::u16string& text, WhitespaceRule rule) {
    CDateTime value(kind);
    (value.*Parse)(WorkingText(text, rule).Get().c_str());
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

CBinaryData CConversions::hexBinaryFromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadBinary<&CBinaryData::SetAsHexString>(text, rule);
}

std::u16string CConversions::base64BinaryToString(const CBinaryData& value) { return value.GetAsBase64(); }

CBinaryData CConversions::base64BinaryFromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadBinary<&CBinaryData::SetAsBase64>(text, rule);
}

std::u16string CConversions::integerToString(const CBigInteger& value) { return value.ToString(); }

CBigInteger CConversions::integerFromString(const std::u16string& text, WhitespaceRule rule) {
    return CBigInteger(WorkingText(text, rule).Get().c_str());
}

std::u16string CConversions::decimalToString(const CDecimal& value) { return value.ToString(); }

std::u16string CConversions::decimalToString(const CDecimal& value, const std::u16string& format) {
    return format.empty() ? value.ToString() : value.ToString(LeadingInteger(format));
}

CDecimal CConversions::decimalFromString(const std::u16string& text, WhitespaceRule rule) {
    return CDecimal(WorkingText(text, rule).Get().c_str());
}

std::u16string CConversions::durationToString(const CDateTimeSpan& value) { return value.ToString(); }

CDateTimeSpan CConversions::durationFromString(const std::u16string& text, WhitespaceRule rule) {
    CDateTimeSpan value;
    value.ParseXSDDuration(WorkingText(text, rule).Get().c_str());
    return value;
}

std::u16string CConversions::datetimeToString(const CDateTime& value) { return value.ToString(); }
std::u16string CConversions::dateToString(const CDateTime& value) { return value.ToString(); }
std::u16string CConversions::timeToString(const CDateTime& value) { return value.ToString(); }
std::u16string CConversions::yearMonthToString(const CDateTime& value) { return value.ToString(); }
std::u16string CConversions::monthDayToString(const CDateTime& value) { return value.ToString(); }

CDateTime CConversions::datetimeFromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadDateTime<&CDateTime::ParseXSDDateTime>(CDateTime::DTType_dateTime, text, rule);
}

CDateTime CConversions::timeFromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadDateTime<&CDateTime::ParseXSDTime>(CDateTime::DTType_time, text, rule);
}

CDateTime CConversions::dateFromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadDate(CDateTime::DTType_date, text, rule);
}

CDateTime CConversions::yearMonthFromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadDate(CDateTime::DTType_gYearMonth, text, rule);
}

CDateTime CConversions::monthDayFromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadDate(CDateTime::DTType_gMonthDay, text, rule);
}

std::uint16_t CConversions::yearFromString(const std::u16string& text, WhitespaceRule rule) {
    // Deliberate: a negative year reads as its two's complement.
    return static_cast<std::uint16_t>(ReadDate(CDateTime::DTType_gYear, text, rule).GetYear());
}

std::uint8_t CConversions::monthFromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadDate(CDateTime::DTType_gMonth, text, rule).GetMonth();
}

std::uint8_t CConversions::dayFromString(const std::u16string& text, WhitespaceRule rule) {
    return ReadDate(CDateTime::DTType_gDay, text, rule).GetDay();
}

} // namespace KzXmlLib10
