#pragma once

#include "values/PayloadMemory.h"

#include <memory>
#include <new>
#include <string>
#include <utility>

namespace KzXmlLib10 {

/// How a variant owns what its cell points to. Neither operation is called with null.
struct PayloadKind {
    void* (*copy)(void* payload);
    void (*letGo)(void* payload);
};

/// What an operation makes, as a new value on the heap.
template <class Make>
void* MakePayloadBy(Make make) {
    using T = decltype(make());
    static_assert(sizeof(T) <= payloadSize);
    struct GiveBack {
        void operator()(void* memory) const noexcept { GiveBackPayloadMemory(memory); }
    };
    std::unique_ptr<void, GiveBack> memory(TakePayloadMemory());
    ::new (memory.get()) T(make());
    return memory.release();
}

/// A new value on the heap.
template <class T, class... Arguments>
void* MakePayload(Arguments&&... arguments) {
    return MakePayloadBy([&] { return T(std::forward<Arguments>(arguments)...); });
}

/// A value on the heap, copied with the variant.
template <class T>
inline constexpr PayloadKind HeapValue = {
    [](void* payload) { return MakePayload<T>(*static_cast<const T*>(payload)); },
    [](void* payload) {
        static_cast<T*>(payload)->~T();
        GiveBackPayloadMemory(payload);
    },
};

/// A text, whose memory serves CopyString again.
template <>
inline constexpr PayloadKind HeapValue<std::u16string> = {
    [](void* payload) { return MakePayload<std::u16string>(*static_cast<const std::u16string*>(payload)); },
    [](void* payload) {
        if (KeepText(static_cast<std::u16string*>(payload)))
            return;
        std::destroy_at(static_cast<std::u16string*>(payload));
        GiveBackPayloadMemory(payload);
    },
};

/// A counted object, shared by the copies of the variant.
extern const PayloadKind CountedObject;

} // namespace KzXmlLib10
