#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace fuzz {

/// The bytes of one input, taken from the front. Behind the end there are zeros.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : m_at(data), m_end(data + size) {}

    bool IsEmpty() const { return m_at == m_end; }
    std::size_t Size() const { return static_cast<std::size_t>(m_end - m_at); }
    const std::uint8_t* Data() const { return m_at; }

    std::uint8_t Byte() { return IsEmpty() ? std::uint8_t{0} : *m_at++; }

    template <class T>
    T Number() {
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < sizeof(T); ++i)
            value |= std::uint64_t{Byte()} << (8 * i);
        return static_cast<T>(value);
    }

    /// All that is left, as it stands.
    std::string Bytes() { return std::string(reinterpret_cast<const char*>(m_at), Size()); }

    /// Text up to the next line feed, which is taken too, or to the end: a byte is a character of Latin-1,
    /// but that FF is followed by the two bytes of any code unit.
    std::u16string Line() {
        std::u16string text;
        while (!IsEmpty()) {
            const std::uint8_t byte = Byte();
            if (byte == '\n')
                break;
            text += byte == 0xFF ? Number<char16_t>() : char16_t{byte};
        }
        return text;
    }

private:
    const std::uint8_t* m_at;
    const std::uint8_t* m_end;
};

} // namespace fuzz
