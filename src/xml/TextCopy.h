#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#ifdef __SSE2__
#    include <emmintrin.h>
#endif

namespace KzXmlLib10 {

/// How many code units are looked at and copied at once.
inline constexpr std::size_t unitsAtOnce = 8;

namespace detail {

typedef std::uint16_t EightUnits __attribute__((vector_size(unitsAtOnce * sizeof(char16_t))));

inline EightUnits CopyUnits(char16_t* to, const char16_t* from) {
    EightUnits units;
    std::memcpy(&units, from, sizeof units);
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

/// A mask of the first units of eight.
inline EightUnits FirstUnits(std::size_t count) {
    static constexpr auto none = std::uint16_t{0};
    static constexpr auto all = static_cast<std::uint16_t>(~0);
    static constexpr std::uint16_t masks[] = {all,  all,  all,  all,  all,  all,  all,  all,
                                              none, none, none, none, none, none, none, none};
    EightUnits mask;
    std::memcpy(&mask, masks + unitsAtOnce - count, sizeof mask);
    return mask;
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
/// them, up to the size, is of no use.
template <class Stops>
std::size_t CopyUntil(char16_t* to, std::u16string_view text) {
    const char16_t* const from = text.data();
    const std::size_t size = text.size();
    std::size_t at = 0;
    if (size >= unitsAtOnce) {
        // By blocks, the last two of which may overlap, until one has a stop in it.
        while (!detail::Any(Stops::Among(detail::CopyUnits(to + at, from + at)))) {
            if (at + unitsAtOnce >= size)
                return size;
            at = std::min(at + unitsAtOnce, size - unitsAtOnce);
        }
    }
    for (; at < size && !Stops::Is(from[at]); ++at)
        to[at] = from[at];
    return at;
}

/// The same for a string, of which it reads and writes eight units at least: a string has room for them in
/// itself. Inline, since the texts of documents are short.
template <class Stops>
inline std::size_t CopyStringUntil(char16_t* to, const std::u16string& text) {
    static_assert(sizeof(std::u16string) >= unitsAtOnce * sizeof(char16_t) + sizeof(void*));
    assert(text.capacity() + 1 >= unitsAtOnce);
    const std::size_t size = text.size();
    if (size < unitsAtOnce &&
        !detail::Any(Stops::Among(detail::CopyUnits(to, text.data())) & detail::FirstUnits(size)))
        return size;
    return CopyUntil<Stops>(to, text);
}

/// Copies a text by whole blocks: fewer than unitsAtOnce units more are read and written than it has.
inline char16_t* PutBlocks(char16_t* to, const char16_t* from, std::size_t size) {
    for (std::size_t at = 0; at < size; at += unitsAtOnce)
        detail::CopyUnits(to + at, from + at);
    return to + size;
}

} // namespace KzXmlLib10
