#pragma once

#include <cstddef>
#include <string>

namespace KzXmlLib10 {

/// A name as the nodes of a tree share it. Of no use by itself.
struct SharedName {
    const std::u16string* namespaceUri;
    const std::u16string* localName;

    /// The code units of both.
    std::size_t Size() const { return namespaceUri->size() + localName->size(); }
};

} // namespace KzXmlLib10
