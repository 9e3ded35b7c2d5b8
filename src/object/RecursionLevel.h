#pragma once

#include "values/PayloadMemory.h"

#include <KzXmlLib10/object/Fwd.h>

namespace KzXmlLib10 {

/// Counts one level of nested objects while it lives, and keeps memory of payloads for their values.
///
/// Generated classes recurse by nature. The constructor throws CKzException at Limits::nestedObjects, or when
/// no more than Limits::stackReserve of the thread's stack is left, so that a deep document ends in a clear
/// failure.
class RecursionLevel {
public:
    RecursionLevel();
    ~RecursionLevel();
    RecursionLevel(const RecursionLevel&) = delete;
    RecursionLevel& operator=(const RecursionLevel&) = delete;

    /// Counts an element that is skipped within the outermost level, and the attributes of its parent, if
    /// they are looked at again for that. Throws CKzException beyond Limits::skippedElements.
    [[gnu::cold]] static void CountSkippedElement(const CXmlElement* parent = nullptr);

private:
    struct Thread;
    static Thread& CurrentThread();
    [[noreturn]] void FailTooDeep() const;

    Thread& m_thread;
    PayloadMemory m_payloads;
};

} // namespace KzXmlLib10
