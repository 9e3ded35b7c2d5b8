#include <KzXmlLib10/object/CKZCriticalSection.h>

namespace KzXmlLib10 {

CKZCriticalSection::CKZCriticalSection() {
    pthread_mutexattr_t attributes;
    pthread_mutexattr_init(&attributes);
    pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutex_init(&m_lock, &attributes);
    pthread_mutexattr_destroy(&attributes);
}

CKZCriticalSection::~CKZCriticalSection() { pthread_mutex_destroy(&m_lock); }

void CKZCriticalSection::Enter() { pthread_mutex_lock(&m_lock); }

void CKZCriticalSection::Leave() { pthread_mutex_unlock(&m_lock); }

} // namespace KzXmlLib10
