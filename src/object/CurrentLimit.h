#pragma once

#include <KzXmlLib10/object/Limits.h>

#include <atomic>
#include <cstdint>

namespace KzXmlLib10 {

extern Limits limitsInForce;

/// One figure of the limits in force, as CurrentLimit(&Limits::inflatedBytes).
inline std::uint64_t CurrentLimit(std::uint64_t Limits::*figure) noexcept {
    return std::atomic_ref(limitsInForce.*figure).load(std::memory_order_relaxed);
}

} // namespace KzXmlLib10
