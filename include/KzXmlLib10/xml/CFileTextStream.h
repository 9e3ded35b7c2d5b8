#pragma once

#include <KzXmlLib10/xml/CTextStream.h>

#include <cstdint>
#include <memory>
#include <string>

namespace KzXmlLib10 {

class AsyncFile;

/// A sink of the text writer that carries the text into a file as it comes.
///
///     CFileTextStream stream(u"order.xml", XmlEncoding_UTF8);
///     CXmlTextWriter writer(&stream); // opens the stream, which creates or replaces the file
///     ...
///     stream.Close();
///     writer.Close();
///
/// The file has the same bytes as GetBytes of the whole text would have, after the byte order mark of the
/// UTF-16 encodings. At most one block is being written, and the next one is encoded meanwhile.
///
/// A failure throws CKzException with errno, such as "Failed to write data to the file. Error [0x0000001C]";
/// the file is then closed, and what has been written stays.
class QUILLON_EXPORT CFileTextStream : public CTextStream {
public:
    /// A null name throws CKzInvalidParamException.
    CFileTextStream(const char16_t* fileName, XmlEncoding encoding);
    /// Closes the file if it is still open; the text still in the buffer is lost.
    ~CFileTextStream() override;

    /// Creates the file and starts to write its mark.
    void Open() override;
    /// Writes what is in the buffer, waits and closes the file. Does nothing if it is closed already.
    void Close() override;
    /// Waits for the block before, and starts to write the buffer.
    void Flush() override;

private:
    void WriteBuffer(bool isLast);
    void StartWrite(const CBinaryData& data);
    void FinishWrite();

    std::u16string m_fileName;
    /// The bytes of the write in flight.
    CBinaryData m_pending;
    /// The bytes written before the write in flight.
    std::uint64_t m_writeOffset = 0;
    /// The file, with the record of the write in flight.
    std::unique_ptr<AsyncFile> m_file;
    /// The text has ended at a surrogate without its partner, and nothing more is written.
    bool m_textHasEnded = false;
};

} // namespace KzXmlLib10
