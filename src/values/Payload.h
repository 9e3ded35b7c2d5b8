#pragma once

namespace KzXmlLib10 {

/// How a variant owns what its cell points to. Neither operation is called with null.
struct PayloadKind {
    void* (*copy)(void* payload);
    void (*letGo)(void* payload);
};

/// A value on the heap, copied with the variant.
template <class T>
inline constexpr PayloadKind HeapValue = {
    [](void* payload) -> void* { return new T(*static_cast<const T*>(payload)); },
    [](void* payload) { delete static_cast<T*>(payload); },
};

/// A counted object, shared by the copies of the variant.
extern const PayloadKind CountedObject;

} // namespace KzXmlLib10
