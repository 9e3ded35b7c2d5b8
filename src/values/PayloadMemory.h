#pragma once

#include "object/AddressSanitizer.h"

#include <cstddef>
#include <iterator>
#include <new>
#include <string>
#include <utility>

namespace KzXmlLib10 {

/// The size of the memory of any payload of a variant.
inline constexpr std::size_t payloadSize = 128;

namespace detail {

/// Without a destructor, which a thread would have to be told of.
struct KeptPayloads {
    std::size_t keepers = 0;
    std::size_t count = 0;
    void* memory[4] = {};
    std::u16string* text = nullptr;
};

[[gnu::tls_model("initial-exec")]] extern constinit thread_local KeptPayloads keptPayloads;

void DropKeptPayloads(KeptPayloads& kept) noexcept;

} // namespace detail

/// Memory for one payload. What was given back last on the thread serves again while a PayloadMemory lives
/// there, since most payloads live only until their value is in its property, or in the document.
inline void* TakePayloadMemory() {
    detail::KeptPayloads& kept = detail::keptPayloads;
    return kept.count > 0 ? kept.memory[--kept.count] : ::operator new(payloadSize);
}

inline void GiveBackPayloadMemory(void* memory) noexcept {
    detail::KeptPayloads& kept = detail::keptPayloads;
    if (!hasAddressSanitizer && kept.keepers > 0 && kept.count < std::size(kept.memory))
        kept.memory[kept.count++] = memory;
    else
        ::operator delete(memory);
}

/// A kept payload with a copy of a text, or null if none is kept.
inline std::u16string* TakeKeptText(const std::u16string& text) {
    detail::KeptPayloads& kept = detail::keptPayloads;
    if (kept.text)
        *kept.text = text;
    return std::exchange(kept.text, nullptr);
}

/// Keeps a payload that is a text, along with the memory of its characters. False if it is not to be kept.
inline bool KeepText(std::u16string* text) noexcept {
    constexpr std::size_t longest = 512;
    detail::KeptPayloads& kept = detail::keptPayloads;
    if (hasAddressSanitizer || kept.keepers == 0 || kept.text || text->capacity() > longest)
        return false;
    kept.text = text;
    return true;
}

/// Keeps memory of payloads on its thread while it lives; the outermost one gives it back.
class PayloadMemory {
public:
    PayloadMemory() noexcept { ++detail::keptPayloads.keepers; }
    ~PayloadMemory() {
        if (--detail::keptPayloads.keepers == 0)
            detail::DropKeptPayloads(detail::keptPayloads);
    }
    PayloadMemory(const PayloadMemory&) = delete;
    PayloadMemory& operator=(const PayloadMemory&) = delete;
};

} // namespace KzXmlLib10
