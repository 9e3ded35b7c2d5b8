#include "object/RecursionLevel.h"

#include "object/CurrentLimit.h"
#include "object/Messages.h"
#include "object/Throw.h"

#include <KzXmlLib10/xml/CXmlElement.h>

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

} // namespace

/// Without a destructor, which a thread would have to be told of.
struct RecursionLevel::Thread {
    std::uint32_t levels = 0;
    std::uint64_t skippedElements = 0;
    bool isStackKnown = false;
    std::uintptr_t stackLow = 0;
    std::size_t stackSize = 0;

    /// Whether the caller stands in the part that is kept for reporting the failure. A coroutine runs on a
    /// stack elsewhere, which is not known.
    bool IsStackUsedUp() const {
        const std::uint64_t reserve = std::max(CurrentLimit(&Limits::stackReserve), leastReserve);
        // Not the address of a variable, which a sanitizer may keep off the stack.
        const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
        return here - stackLow <
               std::min<std::uint64_t>(stackSize / 2, reserve); // a small stack keeps half for the work
    }

    [[gnu::noinline]] void FindStack() {
        isStackKnown = true;
        pthread_attr_t attributes;
        if (pthread_getattr_np(pthread_self(), &attributes) != 0)
            return;
        void* low = nullptr;
        pthread_attr_getstack(&attributes, &low, &stackSize);
        pthread_attr_destroy(&attributes);
        stackLow = reinterpret_cast<std::uintptr_t>(low);
    }
};

RecursionLevel::RecursionLevel() : m_thread(CurrentThread()) {
    if (!m_thread.isStackKnown)
        m_thread.FindStack();
    if (m_thread.levels >= CurrentLimit(&Limits::nestedObjects) || m_thread.IsStackUsedUp())
        FailTooDeep();
    if (m_thread.levels++ == 0)
        m_thread.skippedElements = 0;
}

void RecursionLevel::FailTooDeep() const { Throw<CKzException>(messages::NestedTooDeep, m_thread.levels); }

void RecursionLevel::CountSkippedElement(const CXmlElement* parent) {
    const std::size_t attributes = parent ? parent->GetAttributes().size() : 0;
    const std::uint64_t limit = CurrentLimit(&Limits::skippedElements);
    if ((CurrentThread().skippedElements += 1 + attributes) > limit)
        Throw<CKzException>(messages::TooManySkipped, limit);
}

RecursionLevel::~RecursionLevel() { --m_thread.levels; }

RecursionLevel::Thread& RecursionLevel::CurrentThread() {
    [[gnu::tls_model("initial-exec")]] static constinit thread_local Thread thread;
    return thread;
}

} // namespace KzXmlLib10
