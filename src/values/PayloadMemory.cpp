#include "values/PayloadMemory.h"

#include "object/AddressSanitizer.h"

#include <iterator>
#include <new>

namespace KzXmlLib10 {

namespace {

/// Without a destructor, which a thread would have to be told of.
struct Kept {
    std::size_t keepers = 0;
    std::size_t count = 0;
    void* memory[4] = {};
};

[[gnu::tls_model("initial-exec")]] constinit thread_local Kept kept;

} // namespace

void* TakePayloadMemory() {
    Kept& here = kept;
    return here.count > 0 ? here.memory[--here.count] : ::operator new(payloadSize);
}

void GiveBackPayloadMemory(void* memory) noexcept {
    Kept& here = kept;
    if (!hasAddressSanitizer && here.keepers > 0 && here.count < std::size(here.memory))
        here.memory[here.count++] = memory;
    else
        ::operator delete(memory);
}

PayloadMemory::PayloadMemory() noexcept { ++kept.keepers; }

PayloadMemory::~PayloadMemory() {
    Kept& here = kept;
    if (--here.keepers > 0)
        return;
    while (here.count > 0)
        ::operator delete(here.memory[--here.count]);
}

} // namespace KzXmlLib10
