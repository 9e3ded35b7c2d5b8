#pragma once

#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/values/CBinaryData.h>

namespace KzXmlLib10 {

/// The sink of binary output: collects bytes in memory. Derived classes carry them further.
class QUILLON_EXPORT CBinaryStream : public CInstanceMonitor {
public:
    CBinaryStream();
    ~CBinaryStream() override;

    CBinaryData m_data;
};

} // namespace KzXmlLib10
