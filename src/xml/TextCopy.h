#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace KzXmlLib10 {

namespace detail {

/// Some code units that are looked at and copied at once.
template <std::size_t width>
struct UnitBlock {
    typedef std::uint16_t Units __attribute__((vector_size(width * sizeof(char16_t))));

    explicit UnitBlock(const char16_t* from) { std::memcpy(&units, from, sizeof units); }

    void Store(char16_t* to) const { std::memcpy(to, &units, sizeof units); }

    template <char16_t... stops>
    bool Holds() const {
        Units found{};
        ((found |= reinterpret_cast<Units>(units == Units{} + static_cast<std::uint16_t>(stops))), ...);
        std::uint64_t words[sizeof units / sizeof(std::uint64_t)];
        std::memcpy(words, &found, sizeof words);
        std::uint64_t any = 0;
        for (const std::uint64_t word : words)
            any |= word;
        return any != 0;
    }

    Units units;
};

/// Copies by blocks, the last two of which may overlap, and stops behind a block with a stop in it. Returns
/// where that block starts, or the size.
template <std::size_t width, char16_t... stops>
std::size_t CopyBlocks(char16_t* to, const char16_t* from, std::size_t size) {
    std::size_t at = 0;
    for (;;) {
        const UnitBlock<width> block(from + at);
        block.Store(to + at);
        if (sizeof...(stops) > 0 && block.template Holds<stops...>())
            return at;
        if (at + width >= size)
            return size;
        at = std::min(at + width, size - width);
    }
}

} // namespace detail

/// Copies a text up to its end or to the first of the stops. Returns how many units it copied; what `to` has
/// behind them, up to the size, is of no use. Inline, since the texts of documents are short.
template <char16_t... stops>
inline std::size_t CopyUntil(char16_t* to, const char16_t* from, std::size_t size) {
    std::size_t at = 0;
    if (size >= 8)
        at = detail::CopyBlocks<8, stops...>(to, from, size);
    else if (size >= 4)
        at = detail::CopyBlocks<4, stops...>(to, from, size);
    for (; at < size && ((from[at] != stops) && ...); ++at)
        to[at] = from[at];
    return at;
}

} // namespace KzXmlLib10
