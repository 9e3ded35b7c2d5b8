#include "object/RecursionLevel.h"

#include "object/Messages.h"
#include "object/Throw.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include <pthread.h>

namespace KzXmlLib10 {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t reserveSize = 512 * 1024;
#elif defined(__has_feature)
#    if __has_feature(address_sanitizer)
constexpr std::size_t reserveSize = 512 * 1024;
#    else
constexpr std::size_t reserveSize = 128 * 1024;
#    endif
#else
constexpr std::size_t reserveSize = 128 * 1024;
#endif

constexpr int maxLevels = 10000;

/// The part of a stack that is kept for reporting the failure.
struct Reserve {
    std::uintptr_t begin;
    std::uintptr_t end;

    /// Whether the caller has come so far down. A coroutine runs on a stack elsewhere, which is not known.
    bool IsReached() const {
        // Not the address of a variable, which a sanitizer may keep off the stack.
        const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
        return here >= begin && here < end;
    }
};

Reserve FindReserve() {
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0)
        return {0, 0};
    void* low = nullptr;
    std::size_t size = 0;
    pthread_attr_getstack(&attributes, &low, &size);
    pthread_attr_destroy(&attributes);
    const auto begin = reinterpret_cast<std::uintptr_t>(low);
    return {begin, begin + std::min(size / 2, reserveSize)}; // a small stack keeps half for the work
}

thread_local int levels = 0;
thread_local const Reserve reserve = FindReserve();

} // namespace

RecursionLevel::RecursionLevel() {
    if (levels >= maxLevels || reserve.IsReached())
        Throw<CKzException>(messages::NestedTooDeep, levels);
    ++levels;
}

RecursionLevel::~RecursionLevel() { --levels; }

} // namespace KzXmlLib10
