#include "object/Deletion.h"

#include <KzXmlLib10/object/CXmlObjectBase.h>

#include <new>
#include <vector>

namespace KzXmlLib10 {

namespace {

constexpr int maxNestedDeletions = 256;

/// What the outermost call on a thread has in hand.
struct Deletions {
    int nested = 0;
    std::vector<CXmlObjectBase*> waiting;
};

/// Without a destructor of its own, so that objects may still be released while the thread ends.
[[gnu::tls_model("initial-exec")]] constinit thread_local Deletions* running = nullptr;

void DeleteWithAllBelow(CXmlObjectBase* object) {
    Deletions deletions;
    running = &deletions;
    delete object;
    while (!deletions.waiting.empty()) {
        CXmlObjectBase* next = deletions.waiting.back();
        deletions.waiting.pop_back();
        delete next;
    }
    running = nullptr;
}

bool PutOff(CXmlObjectBase* object) noexcept {
    try {
        running->waiting.push_back(object);
        return true;
    } catch (const std::bad_alloc&) {
        return false; // rather deeper on the stack than not at all
    }
}

} // namespace

void DeleteReleased(CXmlObjectBase* object) noexcept {
    if (!running)
        return DeleteWithAllBelow(object);
    if (running->nested >= maxNestedDeletions && PutOff(object))
        return;
    ++running->nested;
    delete object;
    --running->nested;
}

} // namespace KzXmlLib10
