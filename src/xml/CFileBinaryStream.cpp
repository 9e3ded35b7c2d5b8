#include <KzXmlLib10/xml/CFileBinaryStream.h>

#include "object/NotNull.h"
#include "object/Throw.h"
#include "xml/AsyncFiles.h"
#include "xml/EncodeText.h"
#include "xml/Messages.h"

namespace KzXmlLib10 {

namespace {

int Write(AsyncFile& file, std::uint64_t offset, const CBinaryData& data) {
    if (data.GetLength() == 0)
        return 0;
    if (const int error = file.StartWrite(offset, data.GetData(), data.GetLength()))
        return error;
    std::size_t written;
    return file.Finish(written);
}

} // namespace

CFileBinaryStream::CFileBinaryStream(const char16_t* fileName, XmlEncoding encoding)
    : m_fileName(NotNull(fileName, u"fileName")), m_encoding(encoding) {}

CFileBinaryStream::~CFileBinaryStream() = default;

void CFileBinaryStream::SaveToFile() {
    AsyncFile file;
    const CBinaryData mark = ByteOrderMark(m_encoding);
    int error = file.OpenForWriting(m_fileName);
    if (error == 0)
        error = Write(file, 0, mark);
    if (error == 0)
        error = Write(file, mark.GetLength(), m_data);
    if (error == 0)
        error = file.Close();
    if (error != 0)
        Throw<CKzException>(messages::FileNotWritten, m_fileName, error);
}

} // namespace KzXmlLib10
