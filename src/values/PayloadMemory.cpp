#include "values/PayloadMemory.h"

#include <memory>
#include <utility>

namespace KzXmlLib10::detail {

constinit thread_local KeptPayloads keptPayloads;

void DropKeptPayloads(KeptPayloads& kept) noexcept {
    if (kept.text) {
        std::destroy_at(kept.text);
        ::operator delete(std::exchange(kept.text, nullptr));
    }
    while (kept.count > 0)
        ::operator delete(kept.memory[--kept.count]);
}

} // namespace KzXmlLib10::detail
