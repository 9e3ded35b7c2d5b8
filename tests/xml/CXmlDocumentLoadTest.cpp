#include "support/FileTest.h"

#include "object/Utf8.h"

namespace {

constexpr std::size_t blockSize = 131072;
const std::string malformed = "not well-formed (invalid token) at line 1";

std::string TreeOfStream(const std::string& bytes) {
    CXmlDocument document;
    LoadBytes(document, bytes);
    return DumpTree(document.GetDocumentElement());
}

const std::string record = "<r a='\xC3\xA4'>\xE2\x82\xAC\xF0\x9F\x98\x80</r>\n";

/// A document of exactly `size` bytes, with records at both ends.
std::string DocumentOfSize(std::size_t size) {
    const std::string start = "<doc>" + record + "<!--";
    const std::string end = "-->" + record + record + "</doc>";
    return start + std::string(size - start.size() - end.size(), '.') + end;
}

/// Text in UTF-16 with a mark.
std::string Utf16(const std::u16string& text, bool bigEndian) {
    std::string bytes;
    for (const char16_t unit : u"\uFEFF" + text)
        for (const int shift : {bigEndian ? 8 : 0, bigEndian ? 0 : 8})
            bytes += static_cast<char>(unit >> shift & 0xFF);
    return bytes;
}

/// Loads through files, on the road that a test selects.
class CXmlDocumentLoad : public FileTest {
protected:
    std::string TreeOfFile(const std::string& bytes, bool async) {
        m_dir.Write("f.xml", bytes);
        AsyncFromXmlFile(async);
        CXmlDocument document;
        document.Load(m_dir.Path16("f.xml").c_str());
        return DumpTree(document.GetDocumentElement());
    }

    /// The failure of loading a file, with its path as "NAME".
    std::string FailureOf(const std::string& name, bool async) {
        AsyncFromXmlFile(async);
        CXmlDocument document;
        std::string message = Failure([&] { document.Load(m_dir.Path16(name).c_str()); });
        const std::size_t at = message.find(m_dir.Path(name));
        return at == message.npos ? message : message.replace(at, m_dir.Path(name).size(), "NAME");
    }
};

TEST_F(CXmlDocumentLoad, GivesTheSameTreeOnEveryRoad) {
    const std::string tree = "{urn:a}a[@b=\xC3\xA4 \"\\nx\\n\" {urn:a}c]";
    const std::string xml = "<a xmlns='urn:a' b='\xC3\xA4'>\r\nx<c/>\n</a>";
    const std::string latin =
        "<?xml version='1.0' encoding='iso-8859-1'?><a xmlns='urn:a' b='\xE4'>\r\nx<c/>\n</a>";
    for (const std::string& bytes : {xml, "\xEF\xBB\xBF" + xml, latin, Utf16(FromUtf8(xml), false)}) {
        EXPECT_EQ(TreeOfStream(bytes), tree);
        EXPECT_EQ(TreeOfFile(bytes, false), tree);
        EXPECT_EQ(TreeOfFile(bytes, true), tree);
    }
}

TEST_F(CXmlDocumentLoad, FindsOutWhetherTheInputIsCompressed) {
    const std::string xml = DocumentOfSize(1000);
    const std::string tree = TreeOfFile(xml, false);
    for (const CompressionType type : {CompressionType_GZip, CompressionType_ZLib}) {
        const std::string bytes = Compressed(xml, type) + "garbage";
        EXPECT_EQ(TreeOfStream(bytes), tree);
        EXPECT_EQ(TreeOfFile(bytes, false), tree);
        // Neither text nor blocks are decompressed.
        EXPECT_EQ(FailureOf("f.xml", true), malformed);
        EXPECT_EQ(Failure([&] { CXmlDocument().LoadXml(bytes.c_str()); }), malformed);
    }
    // What is no complete stream of XML is left to the parser.
    const std::string compressed = Compressed(DocumentOfSize(100'001), CompressionType_GZip);
    EXPECT_EQ(Failure([&] { TreeOfStream(compressed.substr(0, compressed.size() - 1)); }), malformed);
}

TEST_F(CXmlDocumentLoad, ReadsAcrossTheEdgesOfBlocks) {
    const std::string r = "r[@a=\xC3\xA4 \"\xE2\x82\xAC\xF0\x9F\x98\x80\"]";
    const std::string tree = "doc[\"\\n\\n\\n\" " + r + " " + r + " " + r + "]";
    // The edge walks over each byte of two records and of the end tag.
    for (std::size_t size = blockSize - 3; size <= blockSize + 53; size += size == blockSize - 1 ? 2 : 1)
        EXPECT_EQ(TreeOfFile(DocumentOfSize(size), true), tree) << size;
    EXPECT_EQ(TreeOfFile(DocumentOfSize(3 * blockSize + 1), true), tree);
    for (const std::size_t blocks : {1, 2}) {
        EXPECT_EQ(TreeOfFile(DocumentOfSize(blocks * blockSize), false), tree);
        EXPECT_EQ(FailureOf("f.xml", true), "Failed to read the contents of the file. Error [0x00000026]");
    }
}

TEST_F(CXmlDocumentLoad, RefusesUnpairedSurrogatesOnEveryRoad) {
    const std::pair<std::u16string, std::string> rows[] = {
        {u"<a b='\U0001F600'>\U0010FFFF</a>", "a[@b=\xF0\x9F\x98\x80 \"\xF4\x8F\xBF\xBF\"]"},
        {u"<a>\n\xD83Dx</a>", "not well-formed (invalid token) at line 2"},
        {u"<a>\xD83D\xD83D\xDE00</a>", malformed},
        {u"<a b='\n\xDBFF'/>", "not well-formed (invalid token) at line 2"},
        {u"<a><![CDATA[\xD800<]]></a>", malformed},
        {u"<a>\xDE00</a>", malformed}};
    const std::uint32_t usual = readBlockSize;
    for (const auto& [xml, outcome] : rows)
        for (const bool bigEndian : {false, true})
            for (const std::uint32_t blocks : {0, 3, 5, 7}) {
                std::string bytes = Utf16(xml, bigEndian);
                while (blocks != 0 && bytes.size() % blocks == 0) // or the end would fall on that of a block
                    bytes.append(bigEndian ? "\0 " : " \0", 2);
                readBlockSize = blocks ? blocks : usual;
                std::string tree;
                const std::string failure = Failure([&] { tree = TreeOfFile(bytes, blocks != 0); });
                EXPECT_EQ(tree.empty() ? failure : tree, outcome) << ToUtf8WithReplacements(xml) << blocks;
            }
    readBlockSize = usual;
    EXPECT_EQ(Failure([] { CXmlDocument().LoadXml(u"<a>\xD800</a>"); }), malformed);
}

TEST_F(CXmlDocumentLoad, ReportsWhatIsWrongWithAFile) {
    m_dir.Write("empty", "");
    m_dir.Write("broken", "<a>\n</b>");
    m_dir.Write("huge", "");
    ASSERT_EQ(truncate(m_dir.Path("huge").c_str(), off_t{1} << 32), 0);
    ASSERT_EQ(mkfifo(m_dir.Path("fifo").c_str(), 0600), 0);
    const std::array<const char*, 3> rows[] = {
        // The name; the failure of reading it whole, and in blocks if that is another.
        {"none", "Failed to open the file [NAME] Error [0x00000002]", nullptr},
        {"", "Failed to open the file [NAME] Error [0x00000015]", nullptr}, // a directory
        {"fifo", "Failed to get the size of the file [NAME] Error [0x0000001d]",
         "Failed to read the contents of the file. Error [0x0000001d]"},
        {"huge", "Failed to get the size of the file [NAME] Error [0x0000001b]", malformed.c_str()},
        {"empty", "no element found at line 1",
         "Failed to read the contents of the file [NAME] Error [0x00000026]"},
        {"broken", "mismatched tag at line 2", nullptr},
    };
    for (const auto& [name, whole, inBlocks] : rows) {
        EXPECT_EQ(FailureOf(name, false), whole);
        EXPECT_EQ(FailureOf(name, true), inBlocks ? inBlocks : whole);
    }
    CXmlDocument document;
    EXPECT_EQ(Failure([&] { document.LoadXmlStream(nullptr, 0); }), "XML Stream is empty!");
    EXPECT_EQ(InvalidParam([&] { document.LoadXmlStream(nullptr, 1); }), "The argument data may not be null");
}

TEST_F(CXmlDocumentLoad, ReportsFaultsBehindTheRoot) {
    m_dir.Write("f.xml", DocumentOfSize(blockSize) + " ");
    systemCalls.pread = [](int file, void* buffer, std::size_t length, off_t offset) -> ssize_t {
        return offset == 0 ? pread(file, buffer, length, offset) : (errno = EIO, -1);
    };
    EXPECT_EQ(FailureOf("f.xml", true), "Failed to read the contents of the file. Error [0x00000005]");
}

TEST_F(CXmlDocumentLoad, AFailingBlockEmptiesTheTree) {
    AsyncFromXmlFile(true);
    for (const char* end : {"<a>", "<b/></a> "}) {
        m_dir.Write("f.xml", "<a>" + std::string(2 * blockSize, ' ') + end);
        CXmlDocument document([](CXmlElement*) -> bool { throw CKzException(u"enough"); });
        EXPECT_NE(Failure([&] { document.Load(m_dir.Path16("f.xml").c_str()); }), "no failure");
        EXPECT_EQ(document.GetDocumentElement(), nullptr);
    }
}

TEST_F(CXmlDocumentLoad, GoesOnWhereTheLastLoadInBlocksEnded) {
    AsyncFromXmlFile(true);
    m_dir.Write("4.xml", "<a/>");
    m_dir.Write("9.xml", "____<b/>\n");
    CXmlDocument document;
    document.Load(m_dir.Path16("4.xml").c_str());
    document.Load(m_dir.Path16("9.xml").c_str());
    EXPECT_EQ(DumpTree(document.GetDocumentElement()), "b");
    EXPECT_EQ(Failure([&] { document.Load(m_dir.Path16("9.xml").c_str()); }),
              "Failed to read the contents of the file [" + m_dir.Path("9.xml") + "] Error [0x00000026]");
    AsyncFromXmlFile(false);
    document.Load(m_dir.Path16("4.xml").c_str());
    EXPECT_EQ(DumpTree(document.GetDocumentElement()), "a");
}

} // namespace
