#pragma once

#include <KzXmlLib10/object/Export.h>

namespace KzXmlLib10 {

/// A marker base without data: the classes whose instances a diagnostic build might want to count.
class QUILLON_EXPORT CInstanceMonitor {
public:
    /// The class name is not kept.
    explicit CInstanceMonitor(const char16_t*) {}
    CInstanceMonitor(const CInstanceMonitor&) {}
    CInstanceMonitor& operator=(const CInstanceMonitor&) { return *this; }
    virtual ~CInstanceMonitor();
};

} // namespace KzXmlLib10
