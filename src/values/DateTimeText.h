#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

namespace KzXmlLib10 {

/// The text of a date, time or duration while it is made, on the stack. All of their fields together have at
/// most 90 digits and 10 marks.
class DateTimeText {
public:
    DateTimeText& operator+=(char16_t unit) {
        *m_end++ = unit;
        return *this;
    }

    /// Appends a number in decimal, with zeros in front up to `width` digits.
    void AppendNumber(unsigned long long number, std::size_t width = 1) {
        if (number < 100 && width == 2) { // as most are
            *this += static_cast<char16_t>(u'0' + number / 10);
            *this += static_cast<char16_t>(u'0' + number % 10);
            return;
        }
        if (number < 10000 && width == 4) {
            AppendNumber(number / 100, 2);
            return AppendNumber(number % 100, 2);
        }
        char16_t digits[20];
        char16_t* const end = std::end(digits);
        char16_t* begin = end;
        for (; number > 0; number /= 10)
            *--begin = static_cast<char16_t>(u'0' + number % 10);
        while (static_cast<std::size_t>(end - begin) < width)
            *--begin = u'0';
        m_end = std::copy(begin, end, m_end);
    }

    /// Appends the fraction of a second: nothing if it is zero, otherwise a point and the groups of three
    /// digits, without the zeros at the end.
    void AppendFraction(unsigned milli, unsigned micro, unsigned nano) {
        if (milli == 0 && micro == 0 && nano == 0)
            return;
        *this += u'.';
        AppendNumber(milli, 3);
        if (micro != 0 || nano != 0)
            AppendNumber(micro, 3);
        if (nano != 0)
            AppendNumber(nano, 3);
        while (m_end[-1] == u'0')
            --m_end;
    }

    std::u16string Get() const { return std::u16string(m_units, static_cast<const char16_t*>(m_end)); }

private:
    char16_t m_units[100];
    char16_t* m_end = m_units;
};

} // namespace KzXmlLib10
