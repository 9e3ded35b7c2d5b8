#pragma once

#include "collections/Messages.h"
#include "object/Throw.h"

#include <bit>
#include <optional>
#include <utility>
#include <vector>

namespace KzXmlLib10 {

/// Walks a tree depth first without recursion, so that memory alone limits its depth.
///
/// A Frame is an open node: it does what stands in front of the children when it is made, EnterNextChild
/// makes the frame of the next child, if there is one left, and Leave does what stands behind the children.
/// Node is the identity of the node.
///
/// Throws CKzInvalidStateException for a node that is inside itself. Each node is compared with one of its
/// ancestors only, which moves down as the path grows (Brent's way to find a cycle), so this costs nothing to
/// speak of.
template <class Frame>
void WalkDepthFirst(Frame root) {
    std::vector<Frame> path;
    path.push_back(std::move(root));
    while (!path.empty()) {
        if (std::optional<Frame> child = path.back().EnterNextChild()) {
            if (child->Node() == path[std::bit_floor(path.size()) - 1].Node())
                Throw<CKzInvalidStateException>(messages::ElementInsideItself);
            path.push_back(std::move(*child));
        } else {
            Frame done = std::move(path.back());
            path.pop_back();
            done.Leave();
        }
    }
}

} // namespace KzXmlLib10
