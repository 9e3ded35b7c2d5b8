#pragma once

#include "object/AddressSanitizer.h"

#include <algorithm>
#include <cstddef>
#include <memory_resource>
#include <new>
#include <utility>

namespace KzXmlLib10 {

/// The memory of nodes of one class. Blocks are taken in chunks, which grow with their number; what is given
/// back is used again first.
///
/// Under the address sanitizer each block is one of the heap, so that it sees a node used after its end.
template <class Node>
class NodePool {
public:
    explicit NodePool(std::pmr::memory_resource* memory) : m_memory(memory) {}
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
        m_next = static_cast<Block*>(m_memory->allocate(m_chunkSize * sizeof(Block), alignof(Block)));
        m_end = m_next + m_chunkSize;
    }

    std::pmr::memory_resource* m_memory;
    std::size_t m_chunkSize = 0;
    Block* m_next = nullptr; ///< the first block of the newest chunk that was never taken
    Block* m_end = nullptr;
    Free* m_free = nullptr;
};

} // namespace KzXmlLib10
