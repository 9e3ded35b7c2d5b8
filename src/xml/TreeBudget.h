#pragma once

#include "object/CurrentLimit.h"
#include "object/Throw.h"
#include "xml/Messages.h"

#include <cstdint>
#include <limits>

namespace KzXmlLib10 {

/// How much a document may put into its tree: the bytes of all names, namespaces, values and texts, and these
/// together with the nodes that carry them. One byte of input can refer to a text of any length, so it is
/// what goes into the tree that must be counted.
class TreeBudget {
public:
    /// Before any input nothing but the base of each limit is allowed.
    TreeBudget()
        : m_text(&Limits::treeTextBytes, &Limits::treeTextBytesPerInputByte),
          m_all(&Limits::treeBytes, &Limits::treeBytesPerInputByte) {}

    /// Adds what more input allows: bytes as handed in, and as parsed after decompression.
    void Extend(std::uint64_t handedIn, std::uint64_t parsed) {
        m_all.Extend(handedIn);
        m_text.Extend(parsed);
    }

    /// Takes off the size of texts that are about to enter the tree, and of the nodes made for them. Throws
    /// CKzException once all is used up.
    void Charge(std::uint64_t codeUnits, std::uint64_t nodeBytes = 0) {
        const std::uint64_t bytes = codeUnits * sizeof(char16_t);
        if (!m_text.Take(bytes))
            Throw<CKzException>(messages::TreeTextTooLarge, m_text.limit);
        if (!m_all.Take(bytes + nodeBytes))
            Throw<CKzException>(messages::TreeTooLarge, m_all.limit);
    }

private:
    struct Account {
        Account(std::uint64_t Limits::*base, std::uint64_t Limits::*rate)
            : limit(CurrentLimit(base)), left(limit), perInputByte(CurrentLimit(rate)) {}

        void Extend(std::uint64_t inputBytes) {
            constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
            std::uint64_t more;
            if (__builtin_mul_overflow(perInputByte, inputBytes, &more) || more > most - limit)
                more = most - limit;
            limit += more;
            left += more;
        }

        bool Take(std::uint64_t bytes) {
            if (bytes > left)
                return false;
            left -= bytes;
            return true;
        }

        std::uint64_t limit;
        std::uint64_t left;
        std::uint64_t perInputByte;
    };

    Account m_text;
    Account m_all;
};

} // namespace KzXmlLib10
