#include <KzXmlLib10/fastinfoset/CFIVocabulary.h>

#include "object/TextScan.h"

#include <algorithm>
#include <cstring>

namespace KzXmlLib10 {

namespace {

constexpr std::size_t fewestSlots = 64;

__extension__ typedef unsigned __int128 Product;

std::uint64_t Mix(std::uint64_t a, std::uint64_t b) {
    const Product product = static_cast<Product>(a ^ 0x9E37'79B9'7F4A'7C15) * (b ^ 0xD6E8'FEB8'6659'FD93);
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

std::uint64_t LoadFourUnits(const char16_t* from) {
    std::uint64_t units;
    std::memcpy(&units, from, sizeof units);
    return units;
}

} // namespace

/// The seed is a place in memory, which nobody knows who makes up texts that collide.
CFIVocabulary::IndexMap::IndexMap() : m_seed(reinterpret_cast<std::uintptr_t>(this)) {}

std::uint64_t CFIVocabulary::IndexMap::HashOf(std::u16string_view text) const {
    std::uint64_t hash = m_seed + text.size();
    if (text.size() >= 4) {
        for (std::size_t at = 0; at + 4 < text.size(); at += 4)
            hash = Mix(hash, LoadFourUnits(text.data() + at));
        return Mix(hash, LoadFourUnits(text.data() + text.size() - 4));
    }
    std::uint64_t units = 0;
    for (const char16_t unit : text)
        units = units << 16 | unit;
    return Mix(hash, units);
}

std::uint32_t CFIVocabulary::IndexMap::Find(std::u16string_view text) const {
    return Find(text, HashOf(text));
}

std::uint32_t CFIVocabulary::IndexMap::Find(std::u16string_view text, std::uint64_t hash) const {
    if (m_slots.empty())
        return 0;
    for (std::size_t slot = hash & (m_slots.size() - 1);; slot = (slot + 1) & (m_slots.size() - 1)) {
        const std::uint32_t index = m_slots[slot];
        if (index == 0 || (m_entries[index - 1].hash == hash && SameText(TextOf(index), text)))
            return index;
    }
}

void CFIVocabulary::IndexMap::Add(std::u16string_view text) {
    const std::uint64_t hash = HashOf(text);
    if (m_entries.size() == MaxEntries || Find(text, hash) != 0)
        return;
    if (m_slots.empty())
        m_texts.reserve(fewestSlots * 4);
    if (2 * (m_entries.size() + 1) > m_slots.size()) {
        const std::size_t slots = std::max(fewestSlots, 2 * m_slots.size());
        m_entries.reserve(slots / 2);
        m_slots.assign(slots, 0);
        for (std::uint32_t index = 1; index <= m_entries.size(); ++index)
            Place(index);
    }
    m_entries.push_back({m_texts.size(), text.size(), hash});
    try {
        m_texts += text;
    } catch (...) {
        m_entries.pop_back();
        throw;
    }
    Place(static_cast<std::uint32_t>(m_entries.size()));
}

/// Puts an index into the first free slot for it.
void CFIVocabulary::IndexMap::Place(std::uint32_t index) {
    std::size_t slot = m_entries[index - 1].hash & (m_slots.size() - 1);
    while (m_slots[slot] != 0)
        slot = (slot + 1) & (m_slots.size() - 1);
    m_slots[slot] = index;
}

} // namespace KzXmlLib10
