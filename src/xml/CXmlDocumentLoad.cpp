// How files and byte buffers reach a CXmlDocument.

#include <KzXmlLib10/xml/CXmlDocument.h>

#include "fastinfoset/CFastInfosetReader.h"
#include "object/NotNull.h"
#include "object/Throw.h"
#include "xml/AsyncFiles.h"
#include "xml/CExpatReader.h"
#include "xml/Inflate.h"
#include "xml/Messages.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/xml/AsyncFiles.h>

#include <cerrno>
#include <cstring>
#include <limits>
#include <utility>

namespace KzXmlLib10 {

std::uint32_t readBlockSize = 0x20000;

namespace {

bool asyncFromXmlFile = false;

std::unique_ptr<unsigned char[]> NewBlock() {
    return std::make_unique_for_overwrite<unsigned char[]>(readBlockSize);
}

void OpenForReading(AsyncFile& file, const std::u16string& fileName) {
    if (const int error = file.OpenForReading(fileName))
        Throw<CKzException>(messages::FileNotOpened, fileName, error);
}

/// The size of a file that can be read whole.
std::uint32_t GetSize(const AsyncFile& file, const std::u16string& fileName) {
    std::uint64_t size = 0;
    int error = file.GetSize(size);
    if (error == 0 && size > std::numeric_limits<std::uint32_t>::max())
        error = EFBIG;
    if (error != 0)
        Throw<CKzException>(messages::FileSizeUnknown, fileName, error);
    return static_cast<std::uint32_t>(size);
}

/// Closes a file on every way out of its scope, after it has waited for the read in flight.
class FileCloser {
public:
    explicit FileCloser(std::unique_ptr<AsyncFile>& file) : m_file(file) {}
    FileCloser(const FileCloser&) = delete;
    FileCloser& operator=(const FileCloser&) = delete;
    ~FileCloser() { m_file.reset(); }

private:
    std::unique_ptr<AsyncFile>& m_file;
};

} // namespace

void AsyncFromXmlFile(bool async) { asyncFromXmlFile = async; }

void CXmlDocument::LoadXmlStream(const unsigned char* data, unsigned long size) {
    Cleanup();
    if (size == 0)
        Throw<CKzException>(messages::XmlStreamIsEmpty);
    NotNull(data, u"data");
    if (m_elementCallback) { // which may do to the bytes what it likes
        std::memcpy(SetBuffer(NewBuffer(size), size), data, size);
    } else {
        RequireInputSize(size);
        SetInput(data, size);
    }
    Parse();
}

void CXmlDocument::Load(const char16_t* fileName) {
    const std::u16string name = NotNull(fileName, u"fileName"); // it may stand in the tree
    Cleanup();
    if (asyncFromXmlFile)
        LoadInBlocks(name);
    else
        LoadWhole(name);
}

void CXmlDocument::LoadWhole(const std::u16string& fileName) {
    AsyncFile file;
    OpenForReading(file, fileName);
    const std::uint32_t size = GetSize(file, fileName);
    if (const int error = file.ReadAll(SetBuffer(NewBuffer(size), size), size))
        Throw<CKzException>(messages::FileNotRead, fileName, error);
    (void)file.Close();
    Parse();
}

/// Reads the form that the buffer turns out to have; text is what is nothing else.
void CXmlDocument::Parse() {
    const std::uint64_t handedIn = m_inputSize;
    DecompressBuffer();
    CFastInfosetReader reader(&m_context->GetFIContext(), this, handedIn);
    if (!reader.IsFastInfoset())
        return ParseText(handedIn);
    reader.ReadHeader();
    reader.ParseDocument();
    ReleaseBuffer();
}

/// Replaces the input by its content if it is a complete gzip or zlib stream.
void CXmlDocument::DecompressBuffer() {
    CBinaryData content;
    if (!Inflate(m_input, m_inputSize, content))
        return;
    const std::uint64_t size = content.GetLength();
    SetBuffer(std::unique_ptr<unsigned char[]>(content.ReleaseData()), size);
}

void CXmlDocument::LoadInBlocks(const std::u16string& fileName) {
    m_file = std::make_unique<AsyncFile>();
    const FileCloser closer(m_file);
    OpenForReading(*m_file, fileName);
    m_buffer = NewBlock();
    ReadChunkFromFile(m_buffer.get());
    std::size_t count = 0;
    if (const int error = m_file->Finish(count))
        Throw<CKzException>(messages::FileNotRead, fileName, error);
    m_readOffset += count;
    SetInput(m_buffer.get(), count);
    AsyncParse(count < readBlockSize);
}

/// Starts to read the next block. The end of the file is reported by Finish.
void CXmlDocument::ReadChunkFromFile(unsigned char* block) {
    static_assert(sizeof m_readOffset == sizeof(off_t), "a file would begin again behind 4 GiB");
    const int error = m_file->StartRead(m_readOffset, block, readBlockSize);
    if (error != 0 && error != AsyncFile::EndOfFile)
        Throw<CKzException>(messages::FileBlockNotRead, error);
}

/// Parses the block in the buffer, and all that follow unless it is the last. While one is parsed the next is
/// on its way into the spare block.
void CXmlDocument::AsyncParse(bool isLast) {
    std::unique_ptr<unsigned char[]> spare = NewBlock();
    const FileCloser closer(m_file); // the read in flight is over before its block goes
    try {
        CExpatReader reader(this);
        reader.Initialize();
        while (!isLast) {
            ReadChunkFromFile(spare.get());
            reader.ParseChunk(false, m_inputSize);
            std::size_t count = 0;
            // Deliberate: a file that ends with a full block fails here, since only a short one is the last.
            if (const int error = m_file->Finish(count))
                Throw<CKzException>(messages::FileBlockNotRead, error);
            std::swap(m_buffer, spare);
            m_readOffset += count;
            SetInput(m_buffer.get(), count);
            isLast = count < readBlockSize;
        }
        reader.ParseChunk(true, m_inputSize);
        if (!m_documentElement)
            Throw<CKzException>(messages::NoRootElement);
    } catch (...) {
        Cleanup();
        throw;
    }
    ReleaseBuffer();
}

} // namespace KzXmlLib10
