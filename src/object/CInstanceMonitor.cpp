#include <KzXmlLib10/object/CInstanceMonitor.h>

namespace KzXmlLib10 {

CInstanceMonitor::~CInstanceMonitor() = default;

} // namespace KzXmlLib10
