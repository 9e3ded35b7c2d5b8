#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace KzXmlLib10 {

/// One conversion between bytes and their base64 text (RFC 4648).
///
/// The input is an array of bytes for Encode and one of 16-bit characters for Decode.
class CBase64 {
public:
    CBase64(const void* input, std::size_t length) : m_input(input), m_length(length) {}
    virtual ~CBase64() = default;

    /// The text, padded, on one line; empty for a null input.
    std::u16string Encode();
    /// Writes the bytes to `out`, which has room for one a character, and returns their number: 0 if the text
    /// holds a character that is neither of the alphabet nor skipped.
    std::size_t Decode(unsigned char* out);

private:
    const void* m_input;
    std::size_t m_length;
    std::uint32_t m_bitCount = 0;
    std::uint32_t m_accumulator = 0;
};

} // namespace KzXmlLib10
