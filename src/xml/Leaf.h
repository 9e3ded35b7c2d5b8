#pragma once

#include <KzXmlLib10/xml/CXmlWriter.h>

#include <string>
#include <utility>

namespace KzXmlLib10 {

/// Writes an element that holds the text that an operation makes. That comes first; if it fails, the element
/// stands open all the same, since the text is asked for inside of it.
template <class MakeText>
void WriteLeafOf(CXmlWriter& writer, const CXmlWriter::LeafName& name, ItemType type, MakeText makeText) {
    const auto text = [&] {
        try {
            return makeText();
        } catch (...) {
            writer.StartElement(name.local, name.namespaceUri);
            throw;
        }
    };
    writer.WriteLeaf(name, text(), type);
}

} // namespace KzXmlLib10
