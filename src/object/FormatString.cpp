#include <KzXmlLib10/object/FormatString.h>

#include "object/NotNull.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

namespace KzXmlLib10 {

namespace {

/// One placeholder: %[flags][width][.precision][modifiers]conversion
struct Placeholder {
    bool leftAligned = false;
    bool plus = false;
    bool blank = false;
    bool alternate = false;
    bool zeros = false;
    int width = 0;
    int precision = -1;
    int bits = 32;
    char16_t conversion = 0;
};

class Formatter {
public:
    Formatter(const char16_t* format, std::va_list arguments) : m_at(format) {
        va_copy(m_arguments, arguments);
    }
    ~Formatter() { va_end(m_arguments); }
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;

    std::u16string Run() {
        while (*m_at) {
            const char16_t* run = m_at;
            while (*m_at && *m_at != u'%')
                ++m_at;
            m_out.append(run, m_at);
            if (*m_at)
                WritePlaceholder();
        }
        return std::move(m_out);
    }

private:
    void WritePlaceholder() {
        const char16_t* start = m_at++;
        const Placeholder p = ReadPlaceholder();
        switch (p.conversion) {
        case u'%':
            m_out += u'%';
            break;
        case u'd':
        case u'i':
            WriteSigned(p);
            break;
        case u'u':
            WriteUnsigned(p, ReadUnsigned(p), 10);
            break;
        case u'o':
            WriteUnsigned(p, ReadUnsigned(p), 8);
            break;
        case u'x':
        case u'X':
            WriteUnsigned(p, ReadUnsigned(p), 16);
            break;
        case u'p':
            WritePointer(p);
            break;
        case u'c':
            WriteCharacter(p);
            break;
        case u's':
            WriteText(p);
            break;
        case u'e':
        case u'E':
        case u'f':
        case u'g':
        case u'G':
            WriteReal(p, va_arg(m_arguments, double));
            break;
        default:
            m_out.append(start, m_at); // not a placeholder: it stands as it is
        }
    }

    Placeholder ReadPlaceholder() {
        Placeholder p;
        while (ReadFlag(p))
            ++m_at;
        p.width = ReadNumber();
        if (p.width < 0) {
            p.leftAligned = true;
            p.width = p.width == std::numeric_limits<int>::min() ? 0 : -p.width;
        }
        if (*m_at == u'.') {
            ++m_at;
            p.precision = std::max(ReadNumber(), -1);
        }
        ReadModifiers(p);
        p.conversion = *m_at;
        if (*m_at)
            ++m_at;
        return p;
    }

    bool ReadFlag(Placeholder& p) const {
        switch (*m_at) {
        case u'-':
            p.leftAligned = true;
            return true;
        case u'+':
            p.plus = true;
            return true;
        case u' ':
            p.blank = true;
            return true;
        case u'#':
            p.alternate = true;
            return true;
        case u'0':
            p.zeros = true;
            return true;
        default:
            return false;
        }
    }

    int ReadNumber() {
        if (*m_at == u'*') {
            ++m_at;
            return va_arg(m_arguments, int);
        }
        std::int64_t number = 0;
        for (; *m_at >= u'0' && *m_at <= u'9'; ++m_at)
            number = std::min<std::int64_t>(number * 10 + (*m_at - u'0'), std::numeric_limits<int>::max());
        return static_cast<int>(number);
    }

    void ReadModifiers(Placeholder& p) {
        for (;; ++m_at) {
            if (*m_at == u'I' && m_at[1] == u'6' && m_at[2] == u'4') {
                p.bits = 64;
                m_at += 2;
            } else if (*m_at == u'l' && m_at[1] == u'l') {
                p.bits = 64;
                ++m_at;
            } else if (*m_at == u'h') {
                p.bits = 16;
            } else if (*m_at != u'l' && *m_at != u'F' && *m_at != u'L' && *m_at != u'N') {
                return;
            }
        }
    }

    std::uint64_t ReadUnsigned(const Placeholder& p) {
        if (p.bits == 64)
            return va_arg(m_arguments, unsigned long long);
        const auto value = va_arg(m_arguments, unsigned);
        return p.bits == 16 ? static_cast<std::uint16_t>(value) : value;
    }

    void WriteSigned(const Placeholder& p) {
        std::int64_t value;
        if (p.bits == 64)
            value = va_arg(m_arguments, long long);
        else
            value = va_arg(m_arguments, int);
        if (p.bits == 16)
            value = static_cast<std::int16_t>(value);
        const std::uint64_t magnitude =
            value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
        WriteInteger(p, SignOf(p, value < 0), magnitude, 10);
    }

    void WriteUnsigned(const Placeholder& p, std::uint64_t value, int base) {
        std::u16string prefix;
        if (p.alternate && base == 16 && value != 0)
            prefix = p.conversion == u'X' ? u"0X" : u"0x";
        WriteInteger(p, std::move(prefix), value, base);
    }

    void WritePointer(Placeholder p) {
        p.precision = 2 * sizeof(void*);
        p.conversion = u'X';
        WriteUnsigned(p, reinterpret_cast<std::uintptr_t>(va_arg(m_arguments, void*)), 16);
    }

    void WriteInteger(const Placeholder& p, std::u16string prefix, std::uint64_t magnitude, int base) {
        char digits[24];
        char* end = std::to_chars(digits, digits + sizeof digits, magnitude, base).ptr;
        if (magnitude == 0 && p.precision == 0)
            end = digits;
        std::size_t length = static_cast<std::size_t>(end - digits);
        std::size_t zeros = p.precision > 0 && static_cast<std::size_t>(p.precision) > length
                                ? static_cast<std::size_t>(p.precision) - length
                                : 0;
        if (p.alternate && base == 8 && zeros == 0 && (length == 0 || digits[0] != '0'))
            zeros = 1;
        std::u16string body(zeros, u'0');
        AppendAscii(body, std::string_view(digits, length), p.conversion == u'X');
        WritePadded(p, prefix, body, p.precision < 0);
    }

    void WriteCharacter(const Placeholder& p) {
        const std::u16string body(1, static_cast<char16_t>(va_arg(m_arguments, int)));
        WritePadded(p, u"", body, true);
    }

    void WriteText(const Placeholder& p) {
        const char16_t* text = va_arg(m_arguments, const char16_t*);
        if (!text)
            text = u"(null)";
        std::size_t length = 0;
        while ((p.precision < 0 || length < static_cast<std::size_t>(p.precision)) && text[length])
            ++length;
        WritePadded(p, u"", std::u16string_view(text, length), true);
    }

    void WriteReal(const Placeholder& p, double value) {
        const bool finite = std::isfinite(value);
        const std::string text = finite ? RealDigits(p, std::fabs(value)) : std::isnan(value) ? "nan" : "inf";
        std::u16string body;
        AppendAscii(body, text, p.conversion == u'E' || p.conversion == u'G');
        WritePadded(p, SignOf(p, std::signbit(value)), body, finite);
    }

    static std::string RealDigits(const Placeholder& p, double value) {
        const int precision = p.precision < 0 ? 6 : p.precision;
        const bool general = p.conversion == u'g' || p.conversion == u'G';
        if (!general) {
            const auto style =
                p.conversion == u'f' ? std::chars_format::fixed : std::chars_format::scientific;
            return WithPoint(ToChars(value, style, precision), p.alternate);
        }
        if (!p.alternate)
            return ToChars(value, std::chars_format::general, precision);
        // The alternate form keeps trailing zeros, which to_chars has no way to ask for.
        const int digits = std::max(precision, 1);
        const std::string scientific = ToChars(value, std::chars_format::scientific, digits - 1);
        int exponent = 0;
        const char* exponentText = scientific.data() + scientific.find('e') + 1;
        std::from_chars(exponentText + (*exponentText == '+'), scientific.data() + scientific.size(),
                        exponent);
        if (exponent < -4 || exponent >= digits)
            return WithPoint(scientific, true);
        return WithPoint(ToChars(value, std::chars_format::fixed, digits - 1 - exponent), true);
    }

    static std::string ToChars(double value, std::chars_format style, int precision) {
        constexpr std::size_t longestInteger = std::numeric_limits<double>::max_exponent10 + 16;
        std::string digits(longestInteger + static_cast<std::size_t>(precision), '\0');
        const auto result =
            std::to_chars(digits.data(), digits.data() + digits.size(), value, style, precision);
        digits.resize(static_cast<std::size_t>(result.ptr - digits.data()));
        return digits;
    }

    static std::string WithPoint(std::string digits, bool wanted) {
        if (wanted && digits.find('.') == std::string::npos)
            digits.insert(std::min(digits.find('e'), digits.size()), 1, '.');
        return digits;
    }

    static std::u16string SignOf(const Placeholder& p, bool negative) {
        return negative ? u"-" : p.plus ? u"+" : p.blank ? u" " : u"";
    }

    /// Appends the text of a number, whose only characters from 'a' on are letters.
    static void AppendAscii(std::u16string& to, std::string_view text, bool upperCase) {
        for (const char c : text)
            to += static_cast<char16_t>(upperCase && c >= 'a' ? c - 'a' + 'A' : c);
    }

    void WritePadded(const Placeholder& p, std::u16string_view prefix, std::u16string_view body,
                     bool zerosAllowed) {
        const std::size_t length = prefix.size() + body.size();
        const std::size_t padding =
            static_cast<std::size_t>(p.width) > length ? static_cast<std::size_t>(p.width) - length : 0;
        const bool zeros = p.zeros && zerosAllowed && !p.leftAligned;
        if (!p.leftAligned && !zeros)
            m_out.append(padding, u' ');
        m_out.append(prefix);
        if (zeros)
            m_out.append(padding, u'0');
        m_out.append(body);
        if (p.leftAligned)
            m_out.append(padding, u' ');
    }

    const char16_t* m_at;
    std::va_list m_arguments;
    std::u16string m_out;
};

} // namespace

std::u16string FormatString(const char16_t* format, ...) {
    NotNull(format, u"format");
    std::va_list arguments;
    va_start(arguments, format);
    std::u16string text = Formatter(format, arguments).Run();
    va_end(arguments);
    return text;
}

} // namespace KzXmlLib10
