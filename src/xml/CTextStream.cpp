#include <KzXmlLib10/xml/CTextStream.h>

#include "xml/EncodeText.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace KzXmlLib10 {

CTextStream::CTextStream(XmlEncoding encoding) : CInstanceMonitor(u"CTextStream"), m_encoding(encoding) {}

CTextStream::~CTextStream() = default;

void CTextStream::Open() { m_buffer.Reuse(); }

void CTextStream::Close() {}

void CTextStream::Flush() {}

CBinaryData CTextStream::GetBytes() {
    std::vector<std::u16string_view> chunks;
    chunks.reserve(m_buffer.GetChunkCount());
    for (std::size_t i = 0; i < m_buffer.GetChunkCount(); ++i)
        chunks.push_back(m_buffer.GetChunk(i));
    return EncodeText(chunks, m_encoding).bytes;
}

} // namespace KzXmlLib10
