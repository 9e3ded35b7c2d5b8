#pragma once

#include <cstddef>

namespace KzXmlLib10 {

/// The size of the memory of any payload of a variant.
inline constexpr std::size_t payloadSize = 128;

/// Memory for one payload. What was given back last on the thread serves again while a PayloadMemory lives
/// there, since most payloads live only until their value is in its property, or in the document.
void* TakePayloadMemory();
void GiveBackPayloadMemory(void* memory) noexcept;

/// Keeps memory of payloads on its thread while it lives; the outermost one gives it back.
class PayloadMemory {
public:
    PayloadMemory() noexcept;
    ~PayloadMemory();
    PayloadMemory(const PayloadMemory&) = delete;
    PayloadMemory& operator=(const PayloadMemory&) = delete;
};

} // namespace KzXmlLib10
