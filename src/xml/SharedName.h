#pragma once

#include <cstddef>
#include <string>

namespace KzXmlLib10 {

/// A name whose strings the nodes of a tree share.
struct SharedName {
    const std::u16string* namespaceUri = nullptr;
    const std::u16string* localName = nullptr;

    /// The code units of both.
    std::size_t Size() const { return namespaceUri->size() + localName->size(); }
};

} // namespace KzXmlLib10
