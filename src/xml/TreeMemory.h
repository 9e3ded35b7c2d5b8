#pragma once

#include "xml/NameTable.h"
#include "xml/NodePool.h"

#include <KzXmlLib10/xml/CXmlAttribute.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10 {

/// What the nodes of one tree share: the memory they stand in and the strings of their names.
struct TreeMemory {
    NodePool<CXmlElement> elements;
    NodePool<CXmlAttribute> attributes;
    NameTable localNames;
    NameTable namespaces;
};

} // namespace KzXmlLib10
