#pragma once

#include <cstdint>

namespace KzXmlLib10Data {

/// How the children of a class are grouped: the compositor of its schema type.
enum XmlElementGroupType : std::int32_t {
    XmlElementGroupType_Sequence = 0, ///< read and written in the order of the table
    XmlElementGroupType_Choice = 1,   ///< one member of the table is present
    XmlElementGroupType_All = 2,      ///< read in any order, written in the order of the table
};

/// Whether a class has a tag of its own.
enum XmlElementType : std::int32_t {
    /// A real element: it has a start tag and an end tag, and reads from its own element.
    XmlElementType_Element = 0,
    /// A group nested in its parent's content: read from, and written into, the parent's element. Its
    /// attributes stand on the parent's start tag.
    XmlElementType_Pseudo = 1,
    /// A nested group whose attributes are not written.
    XmlElementType_PseudoNoAttributes = 2,
};

} // namespace KzXmlLib10Data
