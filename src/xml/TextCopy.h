#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#    include <emmintrin.h>
#endif

namespace KzXmlLib10 {

/// How many code units are looked at and copied at once.
inline constexpr std::size_t unitsAtOnce = 8;

namespace detail {

typedef std::uint16_t EightUnits __attribute__((vector_size(unitsAtOnce * sizeof(char16_t))));

template <class Units>
Units LoadUnits(const char16_t* from) {
    Units units;
    std::memcpy(&units, from, sizeof units);
    return units;
}

template <class Units>
Units CopyUnits(char16_t* to, const char16_t* from) {
    const Units units = LoadUnits<Units>(from);
    std::memcpy(to, &units, sizeof units);
    return units;
}

/// Eight times a unit.
constexpr EightUnits All(std::uint16_t unit) { return EightUnits{} + unit; }

/// Whether a comparison holds for any of eight units.
template <class Mask>
bool Any(Mask mask) {
#ifdef __SSE2__
    return _mm_movemask_epi8(reinterpret_cast<__m128i>(mask)) != 0;
#else
    std::uint64_t words[2];
    std::memcpy(words, &mask, sizeof words);
    return (words[0] | words[1]) != 0;
#endif
}

inline EightUnits TwoWords(std::uint64_t low, std::uint64_t high) {
    typedef std::uint64_t Words __attribute__((vector_size(16)));
    return reinterpret_cast<EightUnits>(Words{low, high});
}

/// Copies fewer than eight units, at least one. False if there may be a stop among them.
template <class Stops>
bool CopyFew(char16_t* to, const char16_t* from, std::size_t size) {
    if (size >= 4) { // two words that may overlap
        const auto head = CopyUnits<std::uint64_t>(to, from);
        const auto tail = CopyUnits<std::uint64_t>(to + size - 4, from + size - 4);
        return !Any(Stops::Among(TwoWords(head, tail)));
    }
    const char16_t units[]{from[0], from[size / 2], from[size - 1], from[0]};
    to[0] = units[0];
    to[size / 2] = units[1];
    to[size - 1] = units[2];
    const auto word = LoadUnits<std::uint64_t>(units);
    return !Any(Stops::Among(TwoWords(word, word)));
}

} // namespace detail

// What ends a copy. Among marks the stops among eight units; it may mark others, but misses none.

struct StopAtZero {
    static bool Is(char16_t unit) { return unit == u'\0'; }
    static auto Among(detail::EightUnits units) { return units == 0; }
};

/// What cannot stand in character content as it is.
struct StopInContent {
    static bool Is(char16_t unit) {
        return unit == u'\0' || unit == u'\n' || unit == u'\r' || unit == u'&' || unit == u'<' ||
               unit == u'>';
    }
    static auto Among(detail::EightUnits units) {
        static_assert((u'<' | 2) == u'>');
        return (units <= detail::All(u'\r')) | (units == detail::All(u'&')) |
               ((units | detail::All(2)) == detail::All(u'>'));
    }
};

/// What cannot stand in an attribute as it is.
struct StopInAttribute {
    static bool Is(char16_t unit) { return StopInContent::Is(unit) || unit == u'"'; }
    static auto Among(detail::EightUnits units) {
        return StopInContent::Among(units) | (units == detail::All(u'"'));
    }
};

/// Copies a text up to its end or to the first stop. Returns how many units it copied; what `to` has behind
/// them, up to the size, is of no use. Inline, since the texts of documents are short.
template <class Stops>
inline std::size_t CopyUntil(char16_t* to, const char16_t* from, std::size_t size) {
    std::size_t at = 0;
    if (size >= unitsAtOnce) {
        // By blocks, the last two of which may overlap, until one has a stop in it.
        while (!detail::Any(Stops::Among(detail::CopyUnits<detail::EightUnits>(to + at, from + at)))) {
            if (at + unitsAtOnce >= size)
                return size;
            at = std::min(at + unitsAtOnce, size - unitsAtOnce);
        }
    } else if (size == 0 || detail::CopyFew<Stops>(to, from, size)) {
        return size;
    }
    for (; at < size && !Stops::Is(from[at]); ++at)
        to[at] = from[at];
    return at;
}

/// Copies a text by whole blocks: fewer than unitsAtOnce units more are read and written than it has.
inline char16_t* PutBlocks(char16_t* to, const char16_t* from, std::size_t size) {
    for (std::size_t at = 0; at < size; at += unitsAtOnce)
        detail::CopyUnits<detail::EightUnits>(to + at, from + at);
    return to + size;
}

} // namespace KzXmlLib10
