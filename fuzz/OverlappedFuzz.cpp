// A file that is read block by block gives the tree that its text gives, or fails as that does, wherever the
// edges of the blocks fall. The file is in memory.
//
// First byte: the length of a block, 1 to 64. Second byte: 1 ignore namespaces, 2 keep CDATA.
#include "support/Targets.h"
#include "support/Tree.h"

#include "xml/AsyncFiles.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/AsyncFiles.h>

#include <algorithm>
#include <sys/stat.h>

namespace fuzz {

namespace {

using namespace KzXmlLib10;

std::string content;
int openFiles = 0;

/// The system calls of a machine with one file.
constexpr SystemCalls memoryFile = {
    [](const char*, int, mode_t) { return 1000 + openFiles++; },
    [](int, struct stat* status) {
        *status = {};
        status->st_mode = S_IFREG;
        status->st_size = static_cast<off_t>(content.size());
        return 0;
    },
    [](int) { return 0; },
    [](int, off_t, off_t, int) { return 0; },
    [](int, void* buffer, std::size_t length, off_t offset) {
        const std::size_t start = std::min(static_cast<std::size_t>(offset), content.size());
        return static_cast<ssize_t>(content.copy(static_cast<char*>(buffer), length, start));
    },
    [](int, const void*, std::size_t, off_t) -> ssize_t { Fail("reading does not write"); },
    [](int, const void*, std::size_t) -> ssize_t { Fail("reading does not write"); },
    [](int) { return --openFiles, 0; },
};

/// Puts the memory file, and the length of blocks, in place of the system's while it lives.
class MemoryFile {
public:
    explicit MemoryFile(std::uint32_t blockSize) {
        systemCalls = memoryFile;
        readBlockSize = blockSize;
        AsyncFromXmlFile(true);
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() {
        systemCalls = m_calls;
        readBlockSize = m_blockSize;
        AsyncFromXmlFile(false);
    }

private:
    SystemCalls m_calls = systemCalls;
    std::uint32_t m_blockSize = readBlockSize;
};

} // namespace

void Overlapped(Input input) {
    std::uint32_t blockSize = input.Byte() % 64 + 1;
    const std::uint8_t options = input.Byte();
    content = input.Bytes();
    content.resize(std::char_traits<char>::length(content.c_str()));
    if (content.empty())
        return;
    while (content.size() % blockSize == 0) // a file that ends with a full block is refused
        ++blockSize;
    CXmlSerializationContext context;
    context.SetSchemaType(options & 1 ? SchemaType_NoNamespaces : SchemaType_Default);
    context.SetStripCDATA(!(options & 2));

    CXmlDocument whole(context);
    const std::u16string expected = Outcome(whole, [&] { whole.LoadXml(content.c_str()); });
    CXmlDocument inBlocks(context);
    openFiles = 0;
    const MemoryFile file(blockSize);
    const std::u16string result = Outcome(inBlocks, [&] { inBlocks.Load(u"file"); });
    // Of several faults in one line the parser reports what it comes upon first, which depends on the edges.
    if (!expected.starts_with(u'!') || !result.starts_with(u'!'))
        ExpectSame(expected, result, "a file in blocks reads as its text");
    Expect(openFiles == 0, "a file is closed");
}

} // namespace fuzz
