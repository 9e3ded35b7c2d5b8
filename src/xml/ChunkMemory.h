#pragma once

#include "object/AddressSanitizer.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <new>
#include <utility>
#include <vector>

namespace KzXmlLib10 {

/// Memory that is taken in small pieces and goes all at once. It comes in chunks, which grow up to a size
/// that the heap has at hand; the first one does for small documents.
///
/// Under the address sanitizer each piece is a block of the heap, so that it sees one used after its end.
class ChunkMemory final : public std::pmr::memory_resource {
private:
    /// How all pieces are aligned: for pointers and for the numbers in names, which is all that a tree needs.
    static constexpr std::size_t unit = alignof(std::uint64_t);

    void* do_allocate(std::size_t size, [[maybe_unused]] std::size_t alignment) override {
        assert(alignment <= unit);
        if constexpr (hasAddressSanitizer)
            return ::operator new(size);
        const std::size_t whole = (size + unit - 1) / unit * unit;
        if (whole > m_left)
            AddChunk(whole);
        m_left -= whole;
        return std::exchange(m_next, m_next + whole);
    }
    void do_deallocate(void* piece, std::size_t, std::size_t) override {
        if constexpr (hasAddressSanitizer)
            ::operator delete(piece);
    }
    bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override {
        return this == &other;
    }

    void AddChunk(std::size_t least) {
        constexpr std::size_t first = 8 * 1024, doublings = 3;
        const std::size_t size = std::max(least, first << std::min(m_chunks.size(), doublings));
        m_chunks.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
        m_next = m_chunks.back().get();
        m_left = size;
    }

    std::vector<std::unique_ptr<std::byte[]>> m_chunks;
    std::byte* m_next = nullptr; ///< in the newest chunk
    std::size_t m_left = 0;
};

} // namespace KzXmlLib10
