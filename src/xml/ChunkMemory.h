#pragma once

#include "object/AddressSanitizer.h"

#include <cstddef>
#include <memory_resource>

namespace KzXmlLib10 {

/// Memory that is taken in small pieces and goes all at once. It comes in chunks, each larger than the one
/// before; the first one does for small documents.
///
/// Under the address sanitizer each piece is a block of the heap, so that it sees one used after its end.
class ChunkMemory {
public:
    std::pmr::memory_resource* Get() {
        return hasAddressSanitizer ? std::pmr::new_delete_resource() : &m_chunks;
    }

private:
    static constexpr std::size_t firstChunk = 8 * 1024;

    std::pmr::monotonic_buffer_resource m_chunks{firstChunk, std::pmr::new_delete_resource()};
};

} // namespace KzXmlLib10
