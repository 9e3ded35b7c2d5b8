#include <KzXmlLib10/xml/CBinaryStream.h>

namespace KzXmlLib10 {

CBinaryStream::CBinaryStream() : CInstanceMonitor(u"CBinaryStream") {}

CBinaryStream::~CBinaryStream() = default;

} // namespace KzXmlLib10
