#include "values/CBase64.h"

#include <array>

namespace KzXmlLib10 {

namespace {

constexpr char16_t alphabet[] = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::uint8_t skipped = 64;
constexpr std::uint8_t invalid = 65;

/// What each character stands for: its six bits, `skipped` or `invalid`.
constexpr std::array<std::uint8_t, 128> classes = [] {
    std::array<std::uint8_t, 128> table{};
    table.fill(invalid);
    for (std::uint8_t value = 0; value < 64; ++value)
        table[alphabet[value]] = value;
    for (const char16_t c : {u' ', u'\t', u'\n', u'\r', u'='})
        table[c] = skipped;
    return table;
}();

} // namespace

std::u16string CBase64::Encode() {
    if (!m_input)
        return {};
    const auto* at = static_cast<const unsigned char*>(m_input);
    const auto* const end = at + m_length;
    std::u16string text((m_length + 2) / 3 * 4, u'=');
    char16_t* to = text.data();
    for (; end - at >= 3; at += 3) {
        m_accumulator = static_cast<std::uint32_t>(at[0] << 16 | at[1] << 8 | at[2]);
        *to++ = alphabet[m_accumulator >> 18];
        *to++ = alphabet[m_accumulator >> 12 & 0x3F];
        *to++ = alphabet[m_accumulator >> 6 & 0x3F];
        *to++ = alphabet[m_accumulator & 0x3F];
    }
    m_accumulator = 0;
    for (; at < end; ++at, m_bitCount += 8)
        m_accumulator |= static_cast<std::uint32_t>(*at << (16 - m_bitCount));
    for (std::uint32_t done = 0; done < m_bitCount; done += 6)
        *to++ = alphabet[m_accumulator >> (18 - done) & 0x3F];
    return text;
}

std::size_t CBase64::Decode(unsigned char* out) {
    const auto* const text = static_cast<const char16_t*>(m_input);
    unsigned char* to = out;
    for (std::size_t i = 0; i < m_length; ++i) {
        // Deliberate: a character above U+007F is read as the ASCII character that its low seven bits make.
        const std::uint8_t value = classes[text[i] & 0x7F];
        if (value == skipped)
            continue;
        if (value == invalid)
            return 0;
        m_accumulator = m_accumulator << 6 | value;
        m_bitCount += 6;
        if (m_bitCount >= 8) {
            m_bitCount -= 8;
            *to++ = static_cast<unsigned char>(m_accumulator >> m_bitCount);
        }
    }
    return static_cast<std::size_t>(to - out);
}

} // namespace KzXmlLib10
