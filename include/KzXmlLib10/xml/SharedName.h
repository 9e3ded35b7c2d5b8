#pragma once

#include <KzXmlLib10/object/UniqueNumber.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string>

namespace KzXmlLib10 {

/// A name as the nodes of a tree share it. Of no use by itself.
struct SharedName {
    const std::u16string* namespaceUri;
    const std::u16string* localName;
    /// The number of the owner of the same name that was met last, 0 for none.
    mutable std::uint64_t knownAs = 0;

    /// The code units of both.
    std::size_t Size() const { return namespaceUri->size() + localName->size(); }

    /// Whether this was found to be the name of the number's owner, which spares comparing the texts again.
    bool IsKnownAs(const UniqueNumber& number) const {
        return std::atomic_ref(knownAs).load(std::memory_order_relaxed) == number.Get();
    }
    void MakeKnownAs(const UniqueNumber& number) const {
        std::atomic_ref(knownAs).store(number.Get(), std::memory_order_relaxed);
    }
};

} // namespace KzXmlLib10
