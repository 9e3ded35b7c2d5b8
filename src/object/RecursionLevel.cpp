#include "object/RecursionLevel.h"

#include "object/Messages.h"
#include "object/Throw.h"

#include <cstddef>
#include <cstdint>

#include <pthread.h>

namespace KzXmlLib10 {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t reserve = 512 * 1024;
#elif defined(__has_feature)
#    if __has_feature(address_sanitizer)
constexpr std::size_t reserve = 512 * 1024;
#    else
constexpr std::size_t reserve = 128 * 1024;
#    endif
#else
constexpr std::size_t reserve = 128 * 1024;
#endif

constexpr int maxLevels = 10000;

/// The lowest address to which this thread's stack may grow, with the reserve for reporting the failure.
std::uintptr_t FindStackLimit() {
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
        return 0;
    void* low = nullptr;
    std::size_t size = 0;
    pthread_attr_getstack(&attributes, &low, &size);
    pthread_attr_destroy(&attributes);
    // A small stack keeps half for the work.
    return reinterpret_cast<std::uintptr_t>(low) + (size / 2 < reserve ? size / 2 : reserve);
}

thread_local int levels = 0;
thread_local std::uintptr_t stackLimit = FindStackLimit();

} // namespace

RecursionLevel::RecursionLevel() {
    // Not the address of a variable, which a sanitizer may keep off the stack.
    if (levels >= maxLevels || reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) < stackLimit)
        Throw<CKzException>(messages::NestedTooDeep, levels);
    ++levels;
}

RecursionLevel::~RecursionLevel() { --levels; }

} // namespace KzXmlLib10
