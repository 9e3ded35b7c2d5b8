#include <KzXmlLib10/xml/CTextStream.h>

namespace KzXmlLib10 {

CTextStream::CTextStream(XmlEncoding encoding) : CInstanceMonitor(u"CTextStream"), m_encoding(encoding) {}

CTextStream::~CTextStream() = default;

void CTextStream::Open() { m_buffer.Reuse(); }

void CTextStream::Close() {}

void CTextStream::Flush() {}

} // namespace KzXmlLib10
