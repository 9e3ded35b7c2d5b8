#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace KzXmlLib10 {

/// Orders texts of the same length by their bytes in memory, which tells equal ones from others sooner than
/// an order by units does.
inline int CompareBytes(std::u16string_view a, std::u16string_view b) {
    // An empty view may have no address, which memcmp must not see.
    return a.empty() ? 0 : std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t));
}

/// Four units of a text at once, and a one in each of them.
using UnitBlock = std::uint64_t;
inline constexpr std::size_t unitsOfBlock = sizeof(UnitBlock) / sizeof(char16_t);
inline constexpr UnitBlock eachUnit = 0x0001'0001'0001'0001;

/// Whether two texts are equal, by blocks that overlap at the end. Inline, since names are short.
inline bool SameText(std::u16string_view a, std::u16string_view b) {
    const std::size_t size = a.size();
    if (size != b.size())
        return false;
    if (size < unitsOfBlock) {
        for (std::size_t at = 0; at < size; ++at)
            if (a[at] != b[at])
                return false;
        return true;
    }
    const auto difference = [from = a.data(), other = b.data()](std::size_t at) {
        UnitBlock left, right;
        std::memcpy(&left, from + at, sizeof left);
        std::memcpy(&right, other + at, sizeof right);
        return left ^ right;
    };
    constexpr std::size_t two = 2 * unitsOfBlock;
    std::size_t at = 0;
    for (; at + two < size; at += two)
        if ((difference(at) | difference(at + unitsOfBlock)) != 0)
            return false;
    return (difference(std::min(at, size - unitsOfBlock)) | difference(size - unitsOfBlock)) == 0;
}

/// What a test finds in some block of a text, four units at once; the last block overlaps the one before, and
/// a short text is one block.
template <class Test>
inline bool AnyBlock(std::u16string_view text, Test test) {
    const std::size_t size = text.size();
    UnitBlock block, found = 0;
    if (size < unitsOfBlock) {
        if (size == 0)
            return false;
        const char16_t units[] = {text[0], text[size / 2], text[size - 1], text[0]};
        std::memcpy(&block, units, sizeof block);
        return test(block) != 0;
    }
    for (std::size_t at = 0; at + unitsOfBlock < size; at += unitsOfBlock) {
        std::memcpy(&block, text.data() + at, sizeof block);
        found |= test(block);
    }
    std::memcpy(&block, text.data() + size - unitsOfBlock, sizeof block);
    return (found | test(block)) != 0;
}

/// Whether a unit of the text is below the limit, which is at most 0x8000.
inline bool HoldsUnitBelow(char16_t limit, std::u16string_view text) {
    return AnyBlock(
        text, [limit](UnitBlock block) { return (block - limit * eachUnit) & ~block & (eachUnit << 15); });
}

/// Whether a text holds a zero or that unit.
inline bool HoldsZeroOr(char16_t wanted, std::u16string_view text) {
    const auto zeros = [](UnitBlock block) { return (block - eachUnit) & ~block & (eachUnit << 15); };
    return AnyBlock(text, [=](UnitBlock block) { return zeros(block) | zeros(block ^ (wanted * eachUnit)); });
}

/// False only if no unit of the text is that ASCII character; true where a byte of another unit looks like
/// it. Quicker than a search among units.
inline bool MayHold(std::u16string_view text, char character) {
    return !text.empty() && std::memchr(text.data(), character, text.size() * sizeof(char16_t)) != nullptr;
}

} // namespace KzXmlLib10
