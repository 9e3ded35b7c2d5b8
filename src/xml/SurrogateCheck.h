#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace KzXmlLib10 {

/// Makes expat refuse UTF-16 with a high surrogate that no low one follows, as XML demands. By itself it
/// takes such a surrogate and the next code unit for one character.
///
///     SurrogateCheck check;
///     for (each chunk of the input)
///         parse(check.Take(chunk, isFinal));
class SurrogateCheck {
public:
    /// The bytes to be parsed next: those that were held back, and the chunk up to a character that goes on
    /// in the next one. An unpaired high surrogate has become a low one, which expat takes nowhere. They
    /// stand in the chunk or in the object.
    std::span<const unsigned char> Take(std::span<const unsigned char> chunk, bool isFinal);

private:
    enum class Encoding { Unknown, BigEndian, LittleEndian, Other };

    static Encoding Recognise(std::span<const unsigned char> input);
    std::size_t Mend(std::span<const unsigned char>& input);
    void MakeLow(std::span<const unsigned char>& input, std::size_t at);

    Encoding m_encoding = Encoding::Unknown;
    std::vector<unsigned char> m_held;
    std::vector<unsigned char> m_joined;
};

} // namespace KzXmlLib10
