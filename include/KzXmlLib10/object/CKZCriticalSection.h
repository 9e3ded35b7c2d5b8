#pragma once

#include <KzXmlLib10/object/Export.h>

#include <pthread.h>

namespace KzXmlLib10 {

/// A recursive lock.
///
/// Deliberate: a copy is the plain copy of the system's record; no second lock is made. Nothing copies it in
/// normal use.
class QUILLON_EXPORT CKZCriticalSection {
public:
    CKZCriticalSection();
    CKZCriticalSection(const CKZCriticalSection&) = default;
    CKZCriticalSection& operator=(const CKZCriticalSection&) = default;
    virtual ~CKZCriticalSection();

    /// Waits for the lock; the thread that holds it may enter again.
    void Enter();
    /// Gives the lock back once.
    void Leave();

private:
    pthread_mutex_t m_lock;
};

} // namespace KzXmlLib10
