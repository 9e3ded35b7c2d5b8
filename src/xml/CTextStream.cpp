#include <KzXmlLib10/xml/CTextStream.h>

#include "xml/EncodeText.h"

namespace KzXmlLib10 {

CTextStream::CTextStream(XmlEncoding encoding) : CInstanceMonitor(u"CTextStream"), m_encoding(encoding) {}

CTextStream::~CTextStream() = default;

void CTextStream::Open() { m_buffer.Reuse(); }

void CTextStream::Close() {}

void CTextStream::Flush() {}

CBinaryData CTextStream::GetBytes() {
    return EncodeText({m_buffer.GetString(), m_buffer.GetLength()}, m_encoding).bytes;
}

} // namespace KzXmlLib10
