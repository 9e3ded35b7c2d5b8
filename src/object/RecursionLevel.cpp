#include "object/RecursionLevel.h"

#include "object/CurrentLimit.h"
#include "object/Messages.h"
#include "object/Throw.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include <pthread.h>

namespace KzXmlLib10 {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr std::uint64_t leastReserve = 512 * 1024;
#elif defined(__has_feature)
#    if __has_feature(address_sanitizer)
constexpr std::uint64_t leastReserve = 512 * 1024;
#    else
constexpr std::uint64_t leastReserve = 0;
#    endif
#else
constexpr std::uint64_t leastReserve = 0;
#endif

struct Stack {
    std::uintptr_t low;
    std::uintptr_t size;

    /// Whether the caller stands in the part that is kept for reporting the failure. A coroutine runs on a
    /// stack elsewhere, which is not known.
    bool IsUsedUp() const {
        const std::uint64_t reserve = std::max(CurrentLimit(&Limits::stackReserve), leastReserve);
        // Not the address of a variable, which a sanitizer may keep off the stack.
        const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
        return here - low <
               std::min<std::uint64_t>(size / 2, reserve); // a small stack keeps half for the work
    }
};

Stack FindStack() {
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
        return {0, 0};
    void* low = nullptr;
    std::size_t size = 0;
    pthread_attr_getstack(&attributes, &low, &size);
    pthread_attr_destroy(&attributes);
    return {reinterpret_cast<std::uintptr_t>(low), size};
}

} // namespace

struct RecursionLevel::Thread {
    std::uint32_t levels = 0;
    const Stack stack = FindStack();
};

RecursionLevel::RecursionLevel() : m_thread(CurrentThread()) {
    if (m_thread.levels >= CurrentLimit(&Limits::nestedObjects) || m_thread.stack.IsUsedUp())
        Throw<CKzException>(messages::NestedTooDeep, m_thread.levels);
    ++m_thread.levels;
}

RecursionLevel::~RecursionLevel() { --m_thread.levels; }

RecursionLevel::Thread& RecursionLevel::CurrentThread() {
    thread_local Thread thread;
    return thread;
}

} // namespace KzXmlLib10
