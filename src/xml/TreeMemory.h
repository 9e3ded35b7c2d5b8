#pragma once

#include "xml/AttributeLists.h"
#include "xml/ChunkMemory.h"
#include "xml/NodePool.h"
#include "xml/SharedNames.h"
#include "xml/TextArena.h"

#include <KzXmlLib10/xml/CXmlAttribute.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10 {

/// What the nodes of one tree share: the memory they and their texts stand in and the strings of their
/// names.
struct TreeMemory {
    ChunkMemory chunks;
    NodePool<CXmlElement> elements{&chunks};
    NodePool<CXmlAttribute> attributes{&chunks};
    AttributeLists attributeLists{&chunks};
    SharedNames names{&chunks};
    TextArena texts;
};

} // namespace KzXmlLib10
