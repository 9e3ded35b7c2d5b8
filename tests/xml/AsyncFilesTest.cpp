#include "xml/AsyncFiles.h"
#include "support/FileTest.h"

using AsyncFileTest = FileTest;

const unsigned char tail[] = {'t', 'a', 'i', 'l'};

TEST_F(AsyncFileTest, WritesAtOffsetsBeyond32Bits) {
    AsyncFile file;
    ASSERT_EQ(file.OpenForWriting(m_dir.Path16("f")), 0);
    EXPECT_EQ(file.StartWrite(0x100000000, tail, 4), 0); // sparse
    std::size_t count = 0;
    EXPECT_EQ(file.Finish(count), 0);
    EXPECT_EQ(count, 4u);
    ASSERT_EQ(file.OpenForReading(m_dir.Path16("f")), 0);
    unsigned char buffer[8];
    EXPECT_EQ(file.StartRead(0x100000000, buffer, 8), 0);
    EXPECT_EQ(file.Finish(count), 0);
    EXPECT_EQ(std::string(buffer, buffer + count), "tail");
}

TEST_F(AsyncFileTest, NamesThatCannotBeOpened) {
    ASSERT_EQ(symlink("loop", m_dir.Path("loop").c_str()), 0);
    const std::u16string a = m_dir.Path16("a");
    for (const auto& [name, error] :
         {std::pair(m_dir.Path16(""), EISDIR), std::pair(m_dir.Path16("no/such"), ENOENT),
          std::pair(m_dir.Path16("loop"), ELOOP), std::pair(a + u'\xD800', EILSEQ),
          std::pair(a + u'\0', EINVAL)}) {
        AsyncFile file;
        EXPECT_EQ(file.OpenForReading(name), error);
        EXPECT_EQ(file.OpenForWriting(name), error);
    }
    EXPECT_FALSE(std::filesystem::exists(m_dir.Path("a"))); // the name is not cut
    AsyncFile file;
    EXPECT_EQ(file.OpenForWriting(m_dir.Path16("\xC3\xA5\xF0\x9F\x98\x80")), 0);
    EXPECT_TRUE(std::filesystem::exists(m_dir.Path("\xC3\xA5\xF0\x9F\x98\x80")));
}

TEST_F(AsyncFileTest, PipesNeitherHangNorKill) {
    const std::u16string name = m_dir.Path16("fifo");
    ASSERT_EQ(mkfifo(m_dir.Path("fifo").c_str(), 0600), 0);
    AsyncFile out;
    EXPECT_EQ(out.OpenForWriting(name), ENXIO);
    const int reader = open(m_dir.Path("fifo").c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_EQ(out.OpenForWriting(name), 0);
    EXPECT_EQ(out.StartWrite(3, tail, 4), 0);
    std::size_t count = 0;
    EXPECT_EQ(out.Finish(count), 0);
    char received[8];
    EXPECT_EQ(std::string(received, static_cast<std::size_t>(read(reader, received, 8))), "tail");
    const std::vector<unsigned char> much(200'000); // more than a pipe holds: the write has to wait
    fcntl(reader, F_SETFL, 0);
    {
        const std::jthread drain([&] {
            while (read(reader, received, 8) > 0) {
            }
        });
        EXPECT_EQ(out.StartWrite(7, much.data(), much.size()), 0);
        out.Close();
    }
    ASSERT_EQ(out.OpenForWriting(name), 0);
    close(reader);
    EXPECT_EQ(out.StartWrite(7, tail, 4), EPIPE);
}

TEST_F(AsyncFileTest, AnInterruptedCloseIsNotRepeated) {
    static int closed;
    closed = 0;
    systemCalls.close = [](int file) {
        ++closed;
        close(file);
        return errno = EINTR, -1;
    };
    AsyncFile file;
    ASSERT_EQ(file.OpenForWriting(m_dir.Path16("f")), 0);
    EXPECT_EQ(file.Close() + file.Close(), 0);
    EXPECT_EQ(closed, 1);
}
