#include "xml/AsyncFiles.h"
#include "support/FileTest.h"

namespace {

using AsyncFileTest = FileTest;

int Write(AsyncFile& file, std::uint64_t offset, const std::string& bytes) {
    std::size_t count = 0;
    if (const int error =
            file.StartWrite(offset, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()))
        return error;
    const int error = file.Finish(count);
    EXPECT_EQ(count, bytes.size());
    return error;
}

/// One block read to its end: the bytes, or the error in brackets.
std::string ReadBlock(AsyncFile& file, std::uint64_t offset, std::size_t length) {
    std::string buffer(length, '\0');
    const int started = file.StartRead(offset, reinterpret_cast<unsigned char*>(buffer.data()), length);
    std::size_t count = 0;
    const int finished = file.Finish(count);
    if (started != 0)
        return '[' + std::to_string(started) + (finished == started ? " twice]" : "]");
    return buffer.substr(0, count);
}

TEST_F(AsyncFileTest, WritesAtOffsetsBeyond32Bits) {
    AsyncFile file;
    m_dir.Write("f", "longer than what replaces it");
    ASSERT_EQ(file.OpenForWriting(m_dir.Path16("f")), 0);
    EXPECT_EQ(Write(file, 0, "head"), 0);
    EXPECT_EQ(m_dir.Read("f"), "head");
    EXPECT_EQ(Write(file, 0x100000000, "tail"), 0); // sparse
    ASSERT_EQ(file.OpenForReading(m_dir.Path16("f")), 0);
    EXPECT_EQ(ReadBlock(file, 0x100000000, 8), "tail");
}

TEST_F(AsyncFileTest, NamesThatCannotBeOpened) {
    ASSERT_EQ(symlink("loop", m_dir.Path("loop").c_str()), 0);
    const std::u16string a = m_dir.Path16("a");
    for (const auto& [name, error] :
         {std::pair(m_dir.Path16(""), EISDIR), std::pair(m_dir.Path16("no/such"), ENOENT),
          std::pair(m_dir.Path16("loop"), ELOOP), std::pair(a + u'\xD800', EILSEQ),
          std::pair(a + u'\0', EINVAL)}) {
        AsyncFile file;
        EXPECT_EQ(file.OpenForReading(name), error) << error;
        EXPECT_EQ(file.OpenForWriting(name), error);
        EXPECT_FALSE(file.IsOpen());
    }
    EXPECT_FALSE(std::filesystem::exists(m_dir.Path("a"))); // the name is not cut
    AsyncFile file;
    EXPECT_EQ(file.OpenForWriting(m_dir.Path16("\xC3\xA5\xF0\x9F\x98\x80")), 0);
    EXPECT_TRUE(std::filesystem::exists(m_dir.Path("\xC3\xA5\xF0\x9F\x98\x80")));
}

TEST_F(AsyncFileTest, PipesNeitherHangNorKill) {
    const std::u16string name = m_dir.Path16("fifo");
    ASSERT_EQ(mkfifo(m_dir.Path("fifo").c_str(), 0600), 0);
    AsyncFile in, out;
    EXPECT_EQ(out.OpenForWriting(name), ENXIO);
    ASSERT_EQ(in.OpenForReading(name), 0);
    std::uint64_t size;
    EXPECT_EQ(in.GetSize(size), ESPIPE);
    EXPECT_EQ(ReadBlock(in, 0, 5), '[' + std::to_string(ESPIPE) + ']');

    const int reader = open(m_dir.Path("fifo").c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_EQ(in.Close(), 0);
    ASSERT_EQ(out.OpenForWriting(name), 0);
    EXPECT_EQ(Write(out, 0, "abc"), 0);
    EXPECT_EQ(Write(out, 3, "def"), 0);
    char received[8];
    EXPECT_EQ(std::string(received, static_cast<std::size_t>(read(reader, received, 8))), "abcdef");
    close(reader);
    EXPECT_EQ(Write(out, 6, "ghi"), EPIPE);
}

TEST_F(AsyncFileTest, ClosesOnceAndReportsTheFirstClose) {
    static int closed, closeError;
    systemCalls.close = [](int file) {
        ++closed;
        close(file);
        errno = closeError;
        return closeError ? -1 : 0;
    };
    for (const int error : {0, EIO, EINTR}) {
        closed = 0;
        closeError = error;
        AsyncFile file;
        ASSERT_EQ(file.OpenForWriting(m_dir.Path16("f")), 0);
        EXPECT_EQ(file.Close(), error == EINTR ? 0 : error);
        EXPECT_EQ(file.Close(), 0);
        EXPECT_EQ(closed, 1);
    }
    systemCalls.fstat = [](int, struct stat*) { return errno = EOVERFLOW, -1; };
    AsyncFile file;
    EXPECT_EQ(file.OpenForReading(m_dir.Path16("f")), EOVERFLOW);
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(closed, 2);
}

} // namespace
