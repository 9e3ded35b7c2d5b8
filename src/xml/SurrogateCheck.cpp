#include "xml/SurrogateCheck.h"

namespace KzXmlLib10 {

std::span<const unsigned char> SurrogateCheck::Take(std::span<const unsigned char> chunk, bool isFinal) {
    if (m_encoding == Encoding::Other)
        return chunk;
    if (!m_held.empty()) {
        m_joined.swap(m_held);
        m_joined.insert(m_joined.end(), chunk.begin(), chunk.end());
        chunk = m_joined;
    }
    if (m_encoding == Encoding::Unknown)
        m_encoding = Recognise(chunk);
    const std::size_t size = isFinal ? (Mend(chunk), chunk.size()) : Mend(chunk);
    m_held.assign(chunk.begin() + static_cast<std::ptrdiff_t>(size), chunk.end());
    return chunk.first(size);
}

/// As expat does, by the first two bytes: a byte order mark, or a zero, since a document begins with ASCII.
SurrogateCheck::Encoding SurrogateCheck::Recognise(std::span<const unsigned char> input) {
    if (input.size() < 2)
        return Encoding::Unknown;
    if ((input[0] == 0xFE && input[1] == 0xFF) || input[0] == 0)
        return Encoding::BigEndian;
    if ((input[0] == 0xFF && input[1] == 0xFE) || input[1] == 0)
        return Encoding::LittleEndian;
    return Encoding::Other;
}

/// Returns the size of what can be parsed without knowing what follows. Only what has to be mended is copied.
std::size_t SurrogateCheck::Mend(std::span<const unsigned char>& input) {
    if (m_encoding == Encoding::Unknown)
        return 0;
    if (m_encoding == Encoding::Other)
        return input.size();
    const std::size_t high = m_encoding == Encoding::BigEndian ? 0 : 1;
    std::size_t at = 0;
    for (; at + 1 < input.size(); at += 2) {
        if ((input[at + high] & 0xFC) != 0xD8)
            continue;
        if (at + 3 >= input.size())
            break;
        if ((input[at + 2 + high] & 0xFC) == 0xDC)
            at += 2;
        else
            MakeLow(input, at + high);
    }
    return at;
}

void SurrogateCheck::MakeLow(std::span<const unsigned char>& input, std::size_t at) {
    if (input.data() != m_joined.data()) {
        m_joined.assign(input.begin(), input.end());
        input = m_joined;
    }
    m_joined[at] |= 0x04;
}

} // namespace KzXmlLib10
