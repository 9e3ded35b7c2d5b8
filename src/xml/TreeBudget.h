#pragma once

#include "object/Throw.h"
#include "xml/Messages.h"

#include <cstdint>

namespace KzXmlLib10 {

/// How much a document may put into its tree: the bytes of all names, namespaces, values and text, beyond
/// what any honest document comes to. One byte of input can refer to a text of any length, so it is what goes
/// into the tree that must be counted.
class TreeBudget {
public:
    explicit TreeBudget(std::uint64_t inputBytes)
        : m_limit(Base + PerInputByte * inputBytes), m_left(m_limit) {}

    /// Adds what more input allows.
    void Extend(std::uint64_t inputBytes) {
        m_limit += PerInputByte * inputBytes;
        m_left += PerInputByte * inputBytes;
    }

    /// Takes off the size of a text that is about to enter the tree. Throws CKzException once all is used up.
    void Charge(std::uint64_t codeUnits) {
        const std::uint64_t bytes = codeUnits * sizeof(char16_t);
        if (bytes > m_left)
            Throw<CKzException>(messages::TreeTooLarge, m_limit);
        m_left -= bytes;
    }

private:
    static constexpr std::uint64_t Base = 64ull << 20;
    static constexpr std::uint64_t PerInputByte = 256;

    std::uint64_t m_limit;
    std::uint64_t m_left;
};

} // namespace KzXmlLib10
