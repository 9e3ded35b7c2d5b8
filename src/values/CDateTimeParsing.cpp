#include <KzXmlLib10/values/CDateTime.h>

#include "object/Digit.h"
#include "object/Throw.h"
#include "values/Messages.h"

namespace KzXmlLib10 {

namespace {

using View = std::u16string_view;

/// Whether `text` has the given form: # stands for an ASCII digit, ? for any character.
template <std::size_t formSize>
bool HasForm(View text, const char16_t (&form)[formSize]) {
    constexpr std::size_t size = formSize - 1;
    if (text.size() != size)
        return false;
    for (std::size_t i = 0; i < size; ++i)
        if (form[i] == u'#' ? !IsDigit(text[i]) : form[i] != u'?' && text[i] != form[i])
            return false;
    return true;
}

/// The number that `count` digits from `position` on stand for.
int Number(View text, std::size_t position, std::size_t count = 2) {
    int number = 0;
    for (const char16_t digit : text.substr(position, count))
        number = number * 10 + (digit - u'0');
    return number;
}

} // namespace

void CDateTime::ParseXSDDate(const char16_t* text) {
    *this = CDateTime();
    if (!text)
        Throw<CKzInvalidValueException>(messages::NullDate);
    ReadDate(text);
    Validate();
}

void CDateTime::ParseXSDTime(const char16_t* text) {
    *this = CDateTime();
    if (!text)
        Throw<CKzInvalidValueException>(messages::NullTime);
    ReadTime(text);
    Validate();
}

void CDateTime::ParseXSDDateTime(const char16_t* text) {
    if (!text)
        Throw<CKzInvalidValueException>(messages::NullDateTime);
    const View whole = text;
    const std::size_t separator = whole.find(u'T');
    if (separator == View::npos)
        Throw<CKzInvalidValueException>(messages::DateTimeWithoutT, text);
    *this = CDateTime();
    // Deliberate: the date may have a zone of its own, which stays unless the time brings one.
    ReadDate(whole.substr(0, separator));
    if (m_dtType != DTType_date)
        Throw<CKzInvalidValueException>(messages::MalformedDateTime, text);
    ReadTime(whole.substr(separator + 1));
    m_dtType = DTType_dateTime;
    Validate();
}

void CDateTime::ReadDate(View text) {
    if (text.empty())
        Throw<CKzInvalidValueException>(messages::EmptyDate);
    if (text.find(u'T') != View::npos)
        Throw<CKzInvalidValueException>(messages::DateWithT);
    if (HasForm(text, u"####-##-##")) { // as most have
        ReadDateBody(text);
        return;
    }
    const bool endsInZ = text.back() == u'Z';
    const bool hasColon = text.find(u':') != View::npos;
    if (endsInZ && hasColon)
        Throw<CKzInvalidValueException>(messages::DateWithTwoZones);

    const std::size_t zoneLength = endsInZ ? 1 : hasColon ? 6 : 0;
    if (text.size() < zoneLength || !ReadDateBody(text.substr(0, text.size() - zoneLength)))
        Throw<CKzInvalidValueException>(messages::MalformedDate, std::u16string(text));
    if (zoneLength != 0)
        ReadZone(text.substr(text.size() - zoneLength));
}

/// Sets the kind and the fields of the form that `body` has. Returns false if it has none.
bool CDateTime::ReadDateBody(View body) {
    // The older form of a gMonth was --MM--. Deliberate: its last two characters are not looked at.
    if (HasForm(body, u"--##") || HasForm(body, u"--##??")) {
        m_dtType = DTType_gMonth;
        m_month = static_cast<std::uint8_t>(Number(body, 2));
        return true;
    }
    if (HasForm(body, u"---##")) {
        m_dtType = DTType_gDay;
        m_day = static_cast<std::uint8_t>(Number(body, 3));
        return true;
    }
    if (HasForm(body, u"--##-##")) {
        m_dtType = DTType_gMonthDay;
        m_month = static_cast<std::uint8_t>(Number(body, 2));
        m_day = static_cast<std::uint8_t>(Number(body, 5));
        return true;
    }

    const bool negative = body.starts_with(u'-');
    if (negative)
        body.remove_prefix(1);
    if (HasForm(body, u"####-##-##"))
        m_dtType = DTType_date;
    else if (HasForm(body, u"####-##"))
        m_dtType = DTType_gYearMonth;
    else if (HasForm(body, u"####"))
        m_dtType = DTType_gYear;
    else
        return false;
    const int year = Number(body, 0, 4);
    m_year = static_cast<std::int16_t>(negative ? -year : year);
    if (m_dtType != DTType_gYear)
        m_month = static_cast<std::uint8_t>(Number(body, 5));
    if (m_dtType == DTType_date)
        m_day = static_cast<std::uint8_t>(Number(body, 8));
    return true;
}

void CDateTime::ReadTime(View text) {
    if (text.empty())
        Throw<CKzInvalidValueException>(messages::EmptyTime);
    constexpr char16_t form[] = u"##:##:##";
    if (!HasForm(text.substr(0, View(form).size()), form) || Number(text, 0) > 23 || Number(text, 3) > 59 ||
        Number(text, 6) > 59)
        Throw<CKzInvalidValueException>(messages::MalformedTime, std::u16string(text));
    m_hour = static_cast<std::uint8_t>(Number(text, 0));
    m_minute = static_cast<std::uint8_t>(Number(text, 3));
    m_second = static_cast<std::uint8_t>(Number(text, 6));

    std::size_t end = View(form).size();
    if (end < text.size() && text[end] == u'.')
        end = ReadFraction(text);
    if (end < text.size())
        ReadZone(text.substr(end));
    m_dtType = DTType_time;
}

/// Reads the digits behind the point of a time. Returns the position behind them.
/// Deliberate: there may be none.
std::size_t CDateTime::ReadFraction(View text) {
    constexpr std::size_t first = View(u"hh:mm:ss.").size();
    constexpr int weights[] = {100, 10, 1};
    std::uint16_t* const groups[] = {&m_milliSecond, &m_microSecond, &m_nanoSecond};
    std::size_t count = 0;
    for (; first + count < text.size() && IsDigit(text[first + count]); ++count) {
        if (count == 9)
            Throw<CKzInvalidValueException>(messages::TimeFractionTooLong, std::u16string(text));
        std::uint16_t& group = *groups[count / 3];
        group = static_cast<std::uint16_t>(group + weights[count % 3] * (text[first + count] - u'0'));
    }
    return first + count;
}

void CDateTime::ReadZone(View zone) {
    if (zone.front() == u'Z') {
        // Deliberate: what follows the Z is ignored.
        SetUTC();
        return;
    }
    if (zone.front() != u'+' && zone.front() != u'-')
        return; // Deliberate: a text that is no zone is ignored.
    if (!HasForm(zone, u"?##:##"))
        Throw<CKzInvalidValueException>(messages::MalformedTimeZone, std::u16string(zone));
    int hour = Number(zone, 1);
    if (hour == 24)
        hour = 0; // Deliberate: 24 hours are none.
    // Deliberate: the sign of an offset below an hour is lost.
    SetTimeZone(static_cast<std::int16_t>(zone.front() == u'-' ? -hour : hour),
                static_cast<std::uint8_t>(Number(zone, 4)));
}

} // namespace KzXmlLib10
