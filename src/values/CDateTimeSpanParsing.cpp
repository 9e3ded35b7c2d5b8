#include <KzXmlLib10/values/CDateTimeSpan.h>

#include "object/Digit.h"
#include "object/Throw.h"
#include "values/Messages.h"

namespace KzXmlLib10 {

/// Reads the fields of a duration, number and designator, one after the other.
class CDateTimeSpan::Reader {
public:
    Reader(CDateTimeSpan& span, const char16_t* text) : m_span(span), m_text(text), m_at(text) {}

    void Run() {
        if (*m_at == u'-') {
            m_span.m_isNegative = true;
            ++m_at;
        }
        if (*m_at != u'P')
            Fail();
        ++m_at;
        while (*m_at)
            ReadField();
        if (m_last == Nothing || m_last == TimeMark)
            Fail();
    }

private:
    /// What was read last, in the order of the lexical form.
    enum Field { Nothing, Years, Months, Days, TimeMark, Hours, Minutes, Seconds, Fraction };

    void ReadField() {
        const std::uint32_t number = ReadNumber();
        switch (*m_at) {
        case u'Y':
            // Deliberate: allowed behind any field, and a new series of fields may follow.
            Accept(true, Years);
            m_span.m_years = static_cast<std::uint16_t>(number);
            break;
        case u'M':
            if (m_last < Months) {
                Accept(true, Months);
                m_span.m_months = number;
            } else {
                Accept(m_last == TimeMark || m_last == Hours, Minutes);
                m_span.m_minutes = Widen(number);
            }
            break;
        case u'D':
            Accept(m_last <= Months, Days);
            m_span.m_days = number;
            break;
        case u'T':
            Accept(m_last <= Days, TimeMark); // Deliberate: the number is dropped.
            break;
        case u'H':
            Accept(m_last == TimeMark, Hours);
            m_span.m_hours = number;
            break;
        case u'S':
            AcceptSeconds(number);
            break;
        case u'.':
            AcceptSeconds(number);
            if (*m_at) // Deliberate: the point may end the text.
                ReadFraction();
            break;
        default:
            Fail();
        }
    }

    /// Deliberate: there may be no digits, and the number wraps in 32 bits.
    std::uint32_t ReadNumber() {
        std::uint32_t number = 0;
        for (; IsDigit(*m_at); ++m_at)
            number = number * 10 + static_cast<std::uint32_t>(*m_at - u'0');
        return number;
    }

    /// Deliberate: the 32-bit number counts as signed, so its top bit fills the upper half.
    static unsigned long long Widen(std::uint32_t number) {
        return static_cast<unsigned long long>(static_cast<std::int32_t>(number));
    }

    void Accept(bool allowed, Field field) {
        if (!allowed)
            Fail();
        m_last = field;
        ++m_at;
    }

    void AcceptSeconds(std::uint32_t number) {
        Accept(m_last == TimeMark || m_last == Hours || m_last == Minutes, Seconds);
        m_span.m_seconds = Widen(number);
    }

    void ReadFraction() {
        for (int count = 0; IsDigit(*m_at); ++count, ++m_at) {
            if (count == 9)
                Throw<CKzInvalidValueException>(messages::DurationFractionTooLong, m_text);
            AddFractionDigit(count, *m_at - u'0');
        }
        if (*m_at != u'S')
            Fail();
        Accept(true, Fraction);
    }

    void AddFractionDigit(int position, int digit) {
        constexpr int weights[] = {100, 10, 1};
        const auto weighted = static_cast<std::uint16_t>(digit * weights[position % 3]);
        if (position < 3)
            m_span.m_milliSeconds = static_cast<std::uint16_t>(m_span.m_milliSeconds + weighted);
        else if (position < 6)
            m_span.m_microSeconds = static_cast<std::uint16_t>(m_span.m_microSeconds + weighted);
        else
            // Deliberate: each digit replaces the one before, so only the last one stays.
            m_span.m_nanoSeconds = static_cast<std::uint16_t>(digit);
    }

    [[noreturn]] void Fail() const { Throw<CKzInvalidValueException>(messages::MalformedDuration, m_text); }

    CDateTimeSpan& m_span;
    const char16_t* m_text;
    const char16_t* m_at;
    Field m_last = Nothing;
};

void CDateTimeSpan::ParseXSDDuration(const char16_t* text) {
    *this = CDateTimeSpan();
    if (!text)
        Throw<CKzInvalidValueException>(messages::NullDuration);
    if (!*text)
        Throw<CKzInvalidValueException>(messages::EmptyDuration);
    Reader(*this, text).Run();
}

} // namespace KzXmlLib10
