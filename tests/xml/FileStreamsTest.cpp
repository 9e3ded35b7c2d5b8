// The two roads of text into a file: whole, by CFileBinaryStream, and block by block, by CFileTextStream.

#include "support/FileTest.h"

namespace {

/// Text as the writer hands it over: a flush after each piece.
using Pieces = std::vector<std::u16string>;

void WriteInBlocks(const Pieces& pieces, XmlEncoding encoding, const std::u16string& name) {
    CFileTextStream stream(name.c_str(), encoding);
    stream.Open();
    for (const std::u16string& piece : pieces) {
        stream.GetBuffer().Append(piece);
        stream.Flush();
    }
    stream.Close();
}

void WriteWhole(const Pieces& pieces, XmlEncoding encoding, const std::u16string& name) {
    CTextStream text(encoding);
    for (const std::u16string& piece : pieces) {
        text.GetBuffer().Append(piece);
        text.GetBuffer().AddChunk(); // which may part two surrogates
    }
    CFileBinaryStream stream(name.c_str(), encoding);
    stream.m_data = text.GetBytes();
    stream.SaveToFile();
}

class FileStreams : public FileTest {
protected:
    /// The bytes of the file by the one road; those of the other have to be the same.
    std::string BothRoads(const Pieces& pieces, XmlEncoding encoding) {
        WriteInBlocks(pieces, encoding, m_dir.Path16("blocks"));
        WriteWhole(pieces, encoding, m_dir.Path16("whole"));
        const std::string bytes = m_dir.Read("whole");
        EXPECT_TRUE(m_dir.Read("blocks") == bytes) << "encoding " << encoding;
        return bytes;
    }
};

TEST_F(FileStreams, Utf16HasAMarkAlsoBeforeNothing) {
    EXPECT_EQ(BothRoads({}, XmlEncoding_UTF8), "");
    EXPECT_EQ(BothRoads({}, XmlEncoding_UTF16), "\xFF\xFE");
    CFileBinaryStream stream(m_dir.Path16("f").c_str(), XmlEncoding_UTF16);
    stream.m_data.SetAsHexString(u"1F8B");
    stream.SaveToFile(); // the mark stands before any data
    EXPECT_EQ(m_dir.Read("f"), "\xFF\xFE\x1F\x8B");
}

TEST_F(FileStreams, LoneSurrogatesEndUtf8ForGood) {
    const std::tuple<Pieces, const char*, std::size_t> rows[] = {
        {{u"a\xD83D", u"\xDE00z"}, "a\xF0\x9F\x98\x80z", 4},
        {{u"\xD83D", u"", u"\xDE00"}, "\xF0\x9F\x98\x80", 2},
        {{u"a\xD83D", u"b", u"c"}, "a", 4},
        {{u"a\xD83D", u"\xD83D", u"\xDE00"}, "a", 4},
        {{u"a\xDE00", u"c"}, "a", 3},
        {{u"ab", u"\xDE00", u"c"}, "ab", 4},
        {{u"\xD83D"}, "", 1},
    };
    for (const auto& [pieces, utf8, units] : rows) {
        EXPECT_EQ(BothRoads(pieces, XmlEncoding_UTF8), utf8);
        EXPECT_EQ(BothRoads(pieces, XmlEncoding_UTF16).size(), 2 + 2 * units);
    }
}

TEST_F(FileStreams, BytesOfNoEncoding) {
    const std::string words =
        "Unknown Encoding, select UTF-8 (contact the Quillon Runtime maintainers for support)";
    for (const XmlEncoding encoding : {XmlEncoding_None, static_cast<XmlEncoding>(4)}) {
        CTextStream text(encoding);
        EXPECT_EQ(Failure([&] { text.GetBytes(); }), words);
        EXPECT_EQ(Failure([&] { WriteInBlocks({u"a"}, encoding, m_dir.Path16("f")); }), words);
    }
}

TEST_F(FileStreams, FullDevicesAreReported) {
    const std::string named = "Failed to write data to the file [/dev/full] error [0x0000001C]";
    const std::string block = "Failed to write data to the file. Error [0x0000001C]";
    const std::u16string full = u"/dev/full";
    EXPECT_EQ(Failure([&] { WriteWhole({u"a"}, XmlEncoding_UTF8, full); }), named);
    EXPECT_EQ(Failure([&] { WriteWhole({}, XmlEncoding_UTF16, full); }), named);
    EXPECT_EQ(Failure([&] { WriteInBlocks({u"a"}, XmlEncoding_UTF16, full); }), named);

    CFileTextStream stream(u"/dev/full", XmlEncoding_UTF8);
    const std::ptrdiff_t before = OpenDescriptors();
    stream.Open();
    stream.GetBuffer().Append(u"a");
    EXPECT_EQ(Failure([&] { stream.Flush(); }), block);
    EXPECT_EQ(OpenDescriptors(), before); // a failed stream is closed once
    EXPECT_EQ(Failure([&] { stream.Close(); }), "no failure");
    EXPECT_EQ(Failure([&] { stream.Flush(); }), "Failed to write data to the file. Error [0x00000009]");
}

} // namespace
