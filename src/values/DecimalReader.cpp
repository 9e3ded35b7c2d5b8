#include "values/DecimalReader.h"

#include <KzXmlLib10/conversions/CWhitespaceUtils.h>

#include "object/Digit.h"
#include "object/Throw.h"
#include "values/Messages.h"

#include <algorithm>

namespace KzXmlLib10 {

namespace {

constexpr long long largestExponentRead = 1'000'000'000'000;

bool IsSign(char16_t unit) { return unit == u'-' || unit == u'+'; }

bool StartsExponent(char16_t unit) { return unit == u'e' || unit == u'E'; }

} // namespace

const DecimalText& DecimalReader::Read() {
    ReadInteger();
    if (*m_at == u'.') {
        ++m_at;
        ReadFraction();
    }
    if (StartsExponent(*m_at)) {
        ++m_at;
        ReadExponent();
    }
    if (*m_at)
        Refuse();
    return m_parts;
}

void DecimalReader::ReadInteger() {
    for (; *m_at && *m_at != u'.' && !StartsExponent(*m_at); ++m_at) {
        if (IsDigit(*m_at))
            m_at = AppendDigits(m_parts.integerDigits) - 1;
        else if (IsSign(*m_at))
            m_parts.negative = *m_at == u'-'; // Deliberate: wherever it stands, the last one counting
        else if (!CWhitespaceUtils::IsWhiteSpace(*m_at))
            Refuse();
    }
}

void DecimalReader::ReadFraction() {
    for (; IsDigit(*m_at) || CWhitespaceUtils::IsWhiteSpace(*m_at); ++m_at) {
        if (IsDigit(*m_at))
            m_at = AppendDigits(m_parts.fractionDigits) - 1;
    }
}

/// Appends the digits that stand here. Returns the place behind them.
const char16_t* DecimalReader::AppendDigits(std::u16string& digits) const {
    const char16_t* end = m_at;
    while (IsDigit(*end))
        ++end;
    digits.append(m_at, end);
    return end;
}

void DecimalReader::ReadExponent() {
    for (; IsSign(*m_at) || CWhitespaceUtils::IsWhiteSpace(*m_at); ++m_at) {
        if (IsSign(*m_at))
            m_parts.exponentNegative = *m_at == u'-';
    }
    for (; IsDigit(*m_at); ++m_at) {
        m_parts.hasExponent = true;
        m_parts.exponent = std::min(m_parts.exponent * 10 + (*m_at - u'0'), largestExponentRead);
    }
}

void DecimalReader::Refuse() const {
    Throw<CKzInvalidValueException>(messages::InvalidCharInDecimal, static_cast<int>(m_at - m_text), m_text);
}

} // namespace KzXmlLib10
