#pragma once

#include <KzXmlLib10/xml/CXmlElement.h>

#include <vector>

namespace quillon {

/// Visits an element and all below it in document order, at any depth: `enter` is called with each element
/// before its children, `leave` after them.
template <class Enter, class Leave>
void WalkTree(const KzXmlLib10::CXmlElement& root, Enter enter, Leave leave) {
    std::vector<const KzXmlLib10::CXmlElement*> open;
    for (const KzXmlLib10::CXmlElement* next = &root; next;) {
        enter(*next);
        open.push_back(next);
        next = next->GetFirstElement();
        while (!next && !open.empty()) {
            leave(*open.back());
            next = open.size() > 1 ? open.back()->GetNextSiblingElement() : nullptr;
            open.pop_back();
        }
    }
}

} // namespace quillon
