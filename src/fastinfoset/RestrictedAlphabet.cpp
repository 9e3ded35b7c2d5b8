#include "fastinfoset/RestrictedAlphabet.h"

#include "fastinfoset/Messages.h"
#include "object/Throw.h"

#include <algorithm>
#include <bit>

namespace KzXmlLib10::fastinfoset {

namespace {

constexpr unsigned padding = 0xF;

bool IsAlphabetSize(std::size_t size) { return size >= 2 && size <= 0x100000; }

/// At least 2, and enough for one position more than the alphabet has.
unsigned BitsPerCharacter(std::size_t alphabetSize) {
    return std::max(static_cast<unsigned>(std::bit_width(alphabetSize)), 2u);
}

unsigned PositionOf(char16_t character, const std::u16string& alphabet) {
    const std::size_t position = alphabet.find(character);
    if (position == std::u16string::npos)
        Throw<CKzException>(messages::NotInAlphabet);
    return static_cast<unsigned>(position);
}

/// Takes numbers of any width off a run of bytes.
class BitReader {
public:
    explicit BitReader(std::span<const Byte> octets) : m_octets(octets) {}

    unsigned ReadBits(unsigned count) {
        unsigned value = 0;
        for (; count > 0; --count, ++m_at)
            value = value << 1 | (m_octets[m_at / 8] >> (7 - m_at % 8) & 1u);
        return value;
    }

private:
    std::span<const Byte> m_octets;
    std::size_t m_at = 0;
};

/// Whether the pattern of all ones ends the text rather than being a position.
bool MayBePadding(unsigned bits, std::size_t item) { return bits == 4 ? item % 2 == 1 : bits != 8; }

} // namespace

std::string PackRestrictedAlphabetString(const std::u16string& alphabet, const std::u16string& text) {
    if (!IsAlphabetSize(alphabet.size()))
        Throw<CKzException>(messages::WrittenAlphabetSize);
    const unsigned bits = BitsPerCharacter(alphabet.size());
    std::string octets;
    if (bits == 8) {
        for (const char16_t character : text)
            octets += static_cast<char>(PositionOf(character, alphabet));
    } else if (bits == 4) {
        for (std::size_t i = 0; i < text.size(); i += 2) {
            const unsigned high = PositionOf(text[i], alphabet);
            const unsigned low = i + 1 < text.size() ? PositionOf(text[i + 1], alphabet) : padding;
            octets += static_cast<char>(high << 4 | low);
        }
    } else {
        Throw<CKzException>(messages::UnsupportedAlphabet);
    }
    return octets;
}

std::u16string UnpackRestrictedAlphabetString(const std::u16string& alphabet, std::span<const Byte> octets) {
    if (!IsAlphabetSize(alphabet.size()))
        Throw<CKzException>(messages::ReadAlphabetSize);
    const unsigned bits = BitsPerCharacter(alphabet.size());
    const unsigned allOnes = (1u << bits) - 1;
    const std::size_t count = octets.size() * 8 / bits;
    BitReader reader(octets);
    std::u16string text;
    for (std::size_t item = 0; item < count; ++item) {
        const unsigned position = reader.ReadBits(bits);
        if (position == allOnes && MayBePadding(bits, item))
            break;
        if (position >= alphabet.size())
            Throw<CKzException>(messages::PositionBeyondAlphabet, position);
        text += alphabet[position];
    }
    return text;
}

} // namespace KzXmlLib10::fastinfoset
