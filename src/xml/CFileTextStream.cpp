#include <KzXmlLib10/xml/CFileTextStream.h>

#include "object/NotNull.h"
#include "object/Throw.h"
#include "xml/AsyncFiles.h"
#include "xml/EncodeText.h"
#include "xml/Messages.h"

#include <KzXmlLib10/xml/AsyncFiles.h>

#include <cerrno>

namespace KzXmlLib10 {

namespace {

bool asyncToXmlFile = false;

bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }

void CheckBlock(int error) {
    if (error != 0)
        Throw<CKzException>(messages::FileBlockNotWritten, error);
}

} // namespace

void AsyncToXmlFile(bool async) { asyncToXmlFile = async; }

bool IsAsyncToXmlFile() { return asyncToXmlFile; }

CFileTextStream::CFileTextStream(const char16_t* fileName, XmlEncoding encoding)
    : CTextStream(encoding), m_fileName(NotNull(fileName, u"fileName")),
      m_file(std::make_unique<AsyncFile>()) {}

CFileTextStream::~CFileTextStream() = default;

void CFileTextStream::Open() {
    CTextStream::Open();
    m_writeOffset = 0;
    m_textHasEnded = false;
    int error = m_file->OpenForWriting(m_fileName);
    m_pending = ByteOrderMark(m_encoding);
    if (error == 0)
        error = m_file->StartWrite(m_writeOffset, m_pending.GetData(), m_pending.GetLength());
    if (error == 0)
        return;
    (void)m_file->Close();
    Throw<CKzException>(messages::FileNotWritten, m_fileName, error);
}

void CFileTextStream::Flush() {
    try {
        WriteBuffer(false);
    } catch (...) {
        (void)m_file->Close();
        throw;
    }
}

void CFileTextStream::Close() {
    if (!m_file->IsOpen())
        return;
    try {
        WriteBuffer(true);
        FinishWrite();
        CheckBlock(m_file->Close());
    } catch (...) {
        (void)m_file->Close();
        throw;
    }
}

/// Starts to write the buffer and empties it. A high surrogate at its end stays for the next block, where its
/// partner may come, unless this is the last.
void CFileTextStream::WriteBuffer(bool isLast) {
    std::u16string_view text(m_buffer.GetString(), m_buffer.GetLength());
    const char16_t last = text.empty() ? u'\0' : text.back();
    const bool staysBehind = !isLast && m_encoding == XmlEncoding_UTF8 && IsHighSurrogate(last);
    if (staysBehind)
        text.remove_suffix(1);
    if (text.empty())
        return;
    if (!m_file->IsOpen())
        CheckBlock(EBADF);
    if (!m_textHasEnded) {
        const EncodedText encoded = EncodeText({&text, 1}, m_encoding); // while the block before is written
        m_textHasEnded = !encoded.isWhole;
        StartWrite(encoded.bytes);
    }
    CTextStream::Open();
    if (staysBehind)
        m_buffer.AppendChar(last);
}

/// At most one write is in flight, and its bytes stay until it is done.
void CFileTextStream::StartWrite(const CBinaryData& data) {
    FinishWrite();
    m_pending = data;
    CheckBlock(m_file->StartWrite(m_writeOffset, m_pending.GetData(), m_pending.GetLength()));
}

void CFileTextStream::FinishWrite() {
    static_assert(sizeof m_writeOffset == sizeof(off_t), "a file would be overwritten behind 4 GiB");
    std::size_t written;
    CheckBlock(m_file->Finish(written));
    m_writeOffset += written;
}

} // namespace KzXmlLib10
