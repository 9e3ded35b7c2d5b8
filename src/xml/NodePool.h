#pragma once

#include "object/AddressSanitizer.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace KzXmlLib10 {

/// The memory of nodes of one class. Blocks come from chunks, which grow with their number and go with the
/// pool; what is given back is used again first.
///
/// Under the address sanitizer each block is one of the heap, so that it sees a node used after its end.
template <class Node>
class NodePool {
public:
    NodePool() = default;
    NodePool(const NodePool&) = delete;
    NodePool& operator=(const NodePool&) = delete;

    /// Room for one node.
    void* Take() {
        if constexpr (hasAddressSanitizer)
            return ::operator new(sizeof(Node));
        if (m_free)
            return std::exchange(m_free, m_free->next);
        if (m_next == m_end)
            AddChunk();
        return m_next++;
    }

    /// Takes back the room of a node that has been destroyed.
    void GiveBack(void* block) noexcept {
        if constexpr (hasAddressSanitizer)
            return ::operator delete(block);
        m_free = ::new (block) Free{m_free};
    }

private:
    struct Free {
        Free* next;
    };
    struct Block {
        alignas(Node) std::byte bytes[sizeof(Node)];
    };
    static_assert(sizeof(Node) >= sizeof(Free) && alignof(Node) >= alignof(Free));

    void AddChunk() {
        constexpr std::size_t first = 8, most = 512;
        m_chunkSize = std::clamp(2 * m_chunkSize, first, most);
        m_chunks.push_back(std::make_unique_for_overwrite<Block[]>(m_chunkSize));
        m_next = m_chunks.back().get();
        m_end = m_next + m_chunkSize;
    }

    std::vector<std::unique_ptr<Block[]>> m_chunks;
    std::size_t m_chunkSize = 0;
    Block* m_next = nullptr; ///< the first block of the newest chunk that was never taken
    Block* m_end = nullptr;
    Free* m_free = nullptr;
};

} // namespace KzXmlLib10
