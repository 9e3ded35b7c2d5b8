// Stands in front of the allocator of the C library, which all others in the process end in.
#include "support/Allocations.h"

#include <cstddef>

namespace {

unsigned long allocations = 0; // the benchmarks have one thread

} // namespace

unsigned long CountAllocations() { return allocations; }

extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

void* malloc(std::size_t size) {
    ++allocations;
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
    ++allocations;
    return __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size) {
    ++allocations;
    return __libc_realloc(block, size);
}
}
