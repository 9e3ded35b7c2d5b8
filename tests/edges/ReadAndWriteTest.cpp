#include "support/FileTest.h"

namespace {

using kit::Mnd;

class ReadAndWriteTest : public FileTest {
protected:
    ReadAndWriteTest() { m_note.Prim(u"text", Mnd, ItemType_string); }

    CSmartPtr<kit::CModelObject> Note(const char16_t* text) const {
        CSmartPtr<kit::CModelObject> note = m_note.New();
        note->properties[0].SetString(text);
        return note;
    }
    /// What any of the forms of Read makes of a source.
    template <class ReadInto>
    std::string TextOf(ReadInto readInto) const {
        const CSmartPtr<kit::CModelObject> note = m_note.New();
        readInto(*note);
        return ToUtf8(note->Text(0));
    }

    kit::Model m_note{u"note"};
};

TEST_F(ReadAndWriteTest, EveryFormComesBack) {
    const CSmartPtr<kit::CModelObject> note = Note(u"\u00E5\U0001F600"); // short: it grows when compressed
    std::size_t row = 0;
    for (const DocumentFormat format : {DocumentFormat::Text, DocumentFormat::FastInfoset}) {
        for (const CompressionType compression :
             {CompressionType_None, CompressionType_GZip, CompressionType_ZLib}) {
            const ByteStyle style{.format = format, .compression = compression};
            const std::vector<std::byte> bytes = WriteBytes(*note, style);
            constexpr unsigned char firsts[] = {'<', 0x1F, 0x78, 0xE0, 0x1F, 0x78};
            EXPECT_EQ(bytes[0], std::byte(firsts[row++]));
            const std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
            const std::filesystem::path file = m_dir.Path("\xC3\xA5");
            WriteFile(*note, file, style);
            EXPECT_EQ(m_dir.Read("\xC3\xA5"), text);
            EXPECT_EQ(TextOf([&](auto& object) { Read(object, bytes); }), "\xC3\xA5\xF0\x9F\x98\x80");
            EXPECT_EQ(TextOf([&](auto& object) { Read(object, text); }), "\xC3\xA5\xF0\x9F\x98\x80");
            EXPECT_EQ(TextOf([&](auto& object) { ReadFile(object, file); }), "\xC3\xA5\xF0\x9F\x98\x80");
        }
    }
}

TEST_F(ReadAndWriteTest, TextHasTheStyleAskedFor) {
    const CSmartPtr<kit::CModelObject> note = Note(u"\u00E5");
    CXmlSerializationContext context;
    context.SetDefaultNamespaceURI(u"urn:d");
    context.SetIgnoreUnknownElements(true);
    EXPECT_EQ(WriteText(*note, {.declaration = false, .eol = EOLType_CRLF}, context).substr(0, 27),
              "<note xmlns=\"urn:d\">\r\n\t<tex");
    EXPECT_EQ(TextOf([&](auto& o) { Read(o, "<note><other/><text>x</text></note>", context); }), "x");
}

TEST_F(ReadAndWriteTest, AGenericElementBecomesTheRoot) {
    CElement element(u"any");
    const std::string root = "<AA:r xmlns:AA=\"u\" a=\"1\"><AA:c>x</AA:c></AA:r>";
    m_dir.Write("root", root);
    for (const auto& read : {std::function([&] { Read(element, root); }),
                             std::function([&] { ReadFile(element, m_dir.Path("root")); })}) {
        Read(element, "<e b='2'>text<f/></e>");
        EXPECT_EQ(WriteText(element, {.declaration = false, .formatted = false}), "<e b=\"2\"><f/>text</e>");
        read();
        EXPECT_EQ(WriteText(element, {.declaration = false, .formatted = false}), root);
    }
    CElement restricted(u"any", u"v");
    EXPECT_EQ(Failure<CKzInvalidNamespaceException>([&] { Read(restricted, root); }),
              "The root of the document is in the namespace [u], which the element does not admit");
}

TEST_F(ReadAndWriteTest, FailuresLoseNothing) {
    m_dir.Write("kept", "as it was");
    EXPECT_EQ(InvalidValue([&] { WriteFile(*Note(u"\xDC00"), m_dir.Path("kept")); }),
              "Malformed UTF-16: surrogate without its partner at position 36");
    EXPECT_EQ(m_dir.Read("kept"), "as it was");
    const CSmartPtr<kit::CModelObject> note = m_note.New();
    EXPECT_EQ(Failure([&] { ReadFile(*note, "/none"); }),
              "Failed to open the file [/none] Error [0x00000002]");
    EXPECT_EQ(InvalidValue([&] { ReadFile(*note, "\xFF"); }), "Malformed UTF-8 at byte 0");
    EXPECT_EQ(InvalidValue([&] { ReadFile(*note, std::string("kept\0x", 6)); }),
              "A file name cannot hold a zero");
}

static_assert(std::ranges::forward_range<ElementChildren> && std::ranges::forward_range<ElementAttributes>);
static_assert(std::ranges::random_access_range<CstringCol> && std::ranges::random_access_range<CbooleanCol>);
static_assert(std::ranges::forward_range<CAttributeCol> && std::ranges::forward_range<const CElementCol>);
static_assert(std::ranges::forward_range<const CXmlCollection>);

TEST(Ranges, AttributesAreWalked) { // as children are in the guide
    CXmlDocument document;
    document.LoadXml("<a b='1' c='2'>text</a>");
    std::u16string seen;
    for (const CXmlAttribute& attribute : Attributes(*document.GetDocumentElement()))
        seen += attribute.GetLocalName() + attribute.GetValue();
    EXPECT_EQ(seen, u"b1c2");
}

} // namespace
