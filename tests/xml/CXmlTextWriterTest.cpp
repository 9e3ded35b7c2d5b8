#include <KzXmlLib10/xml/CXmlTextWriter.h>

#include "support/Failure.h"

#include <KzXmlLib10/object/Text.h>

#include <gtest/gtest.h>

using namespace KzXmlLib10;
using support::Failure;

namespace {

const std::u16string xsi = u"http://www.w3.org/2001/XMLSchema-instance";

/// A writer over a stream of its own; the tests compare text as UTF-8 so that failures can be read.
struct Output {
    explicit Output(bool formatted = false, EOLType eol = EOLType_LF, XmlEncoding encoding = XmlEncoding_None)
        : stream(encoding), writer(&stream) {
        writer.SetFormatted(formatted);
        writer.SetEOLType(eol);
    }

    std::string Text() {
        return ToUtf8(std::u16string(stream.GetBuffer().GetString(), stream.GetBuffer().GetLength()));
    }

    void Start(const char16_t* name, const char16_t* uri = u"") { writer.StartElement(name, uri); }
    void End() { writer.EndElement(); }
    void Write(const std::u16string& text) { writer.WriteText(text, ItemType_string); }
    void Attribute(const char16_t* name, const std::u16string& value, const char16_t* uri = u"") {
        writer.WriteAttribute(name, uri, value, ItemType_string);
    }

    CTextStream stream;
    CXmlTextWriter writer;
};

void WriteSample(Output& out) {
    out.writer.WriteDeclaration();
    out.Start(u"a");
    out.Start(u"b");
    out.Write(u"x");
    out.End();
    out.Start(u"c");
    out.End();
    out.End();
    out.writer.Close();
}

TEST(CXmlTextWriter, FormatsWithTabsAndTheChosenLineEnd) {
    Output lf(true, EOLType_LF, XmlEncoding_UTF8);
    WriteSample(lf);
    EXPECT_EQ(lf.Text(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>\n\t<b>x</b>\n\t<c/>\n</a>\n");

    Output crlf(true, EOLType_CRLF, XmlEncoding_UTF16);
    WriteSample(crlf);
    EXPECT_EQ(crlf.Text(),
              "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n<a>\r\n\t<b>x</b>\r\n\t<c/>\r\n</a>\r\n");

    Output plain(false, EOLType_CRLF, XmlEncoding_UTF16NoDecl);
    WriteSample(plain);
    EXPECT_EQ(plain.Text(), "<?xml version=\"1.0\"?>\r\n<a><b>x</b><c/></a>");
}

TEST(CXmlTextWriter, StartsFormattedWithLineFeedsInAnEmptiedStream) {
    CTextStream stream(XmlEncoding_None);
    stream.GetBuffer().Append(u"old");
    CXmlTextWriter writer(&stream);
    writer.StartElement(u"a", u"");
    writer.StartElement(u"b", u"");
    writer.EndElement();
    writer.EndElement();
    EXPECT_EQ(ToUtf8(stream.GetBuffer().GetString()), "<a>\n\t<b/>\n</a>\n");
}

TEST(CXmlTextWriter, FormatsMixedContent) {
    Output out(true);
    out.Start(u"a");
    out.Write(u"before");
    out.Start(u"b");
    out.Start(u"c");
    out.End();
    out.End();
    out.Write(u"after");
    out.End();
    EXPECT_EQ(out.Text(), "<a>before\t<b>\n\t\t<c/>\n\t</b>\nafter</a>\n");
}

TEST(CXmlTextWriter, EmptyTextLeavesTheStartTagOpen) {
    Output out(true);
    out.Start(u"a");
    out.Write(u"");
    out.Attribute(u"n", u"");
    out.End();
    EXPECT_EQ(out.Text(), "<a n=\"\"/>\n");
}

TEST(CXmlTextWriter, EscapesTextAndAttributes) {
    const std::u16string value = u"a\r\nb\nc\rd\t\"'&<>\x01\u00e9\U0001F600]]>";
    const std::string tail = "\x01\xC3\xA9\xF0\x9F\x98\x80]]&gt;";
    Output out;
    out.Start(u"e");
    out.Attribute(u"n", value);
    out.Write(value);
    out.End();
    EXPECT_EQ(out.Text(), "<e n=\"a&#xA;b&#xA;cd\t&quot;'&amp;&lt;&gt;" + tail +
                              "\">a\nb\ncd\t\"'&amp;&lt;&gt;" + tail + "</e>");

    Output crlf(false, EOLType_CRLF);
    crlf.Start(u"e");
    crlf.Attribute(u"n", u"\n");
    crlf.Write(u"\n\r\n");
    crlf.End();
    EXPECT_EQ(crlf.Text(), "<e n=\"&#xA;\">\r\n\r\n</e>");
}

TEST(CXmlTextWriter, TextsEndAtTheirFirstZero) {
    Output out;
    out.Start(u"e");
    out.Attribute(u"n", std::u16string(u"v\0w", 3));
    out.Write(std::u16string(u"a&\0b", 4));
    out.Write(std::u16string(u"<![CDATA[x\0y", 12));
    out.End();
    EXPECT_EQ(out.Text(), "<e n=\"v\">a&amp;<![CDATA[x</e>");
}

TEST(CXmlTextWriter, LoneSurrogatesPass) {
    Output out;
    out.Start(u"e");
    out.Write(u"\xD800x");
    EXPECT_EQ(std::u16string(out.stream.GetBuffer().GetString()), u"<e>\xD800x");
}

TEST(CXmlTextWriter, TextInCDataFormIsNotEscaped) {
    Output out;
    out.Start(u"e");
    out.Write(u"<![CDATA[<&]]><\r\n");
    out.Write(u"<![CDATA");
    out.Write(u" <![CDATA[]]>");
    out.End();
    EXPECT_EQ(out.Text(), "<e><![CDATA[<&]]><\r\n&lt;![CDATA &lt;![CDATA[]]&gt;</e>");
}

TEST(CXmlTextWriter, WritesCommentsInstructionsAndInlineSchema) {
    Output out(true, EOLType_CRLF);
    out.writer.WriteProcessingInstruction(u"<?x a<b?>");
    out.writer.WriteComment(u"a--b<\n");
    out.Start(u"e");
    out.Attribute(u"n", u"1");
    out.writer.WriteInlineSchema(u"<s/>");
    out.Write(u"t");
    out.End();
    EXPECT_EQ(out.Text(), "<?x a<b?>\r\n\r\n<!--a--b&lt;\r\n-->\r\n<e n=\"1\" \r\n<s/>\r\n>t</e>\r\n");
}

TEST(CXmlTextWriter, RootDeclaresTheNamespacesInOrderOfTheirUris) {
    Output out;
    out.writer.AddNamespace(u"z", u"urn:a");
    out.writer.AddNamespace(u"y", u"urn:b");
    out.writer.AddNamespace(u"q", u"http://www.w3.org/XML/1998/namespace/more");
    out.writer.AddNamespace(u"w", u"http://www.w3.org/XML/1998/namespac");
    out.writer.SetDefaultNamespace(u"urn:d\"<");
    out.Start(u"e", u"urn:new");
    out.Start(u"d", u"urn:d\"<");
    out.Attribute(u"lang", u"en", u"http://www.w3.org/XML/1998/namespace");
    out.Attribute(u"n", u"1", u"urn:d\"<");
    out.End();
    out.Start(u"b", u"urn:b");
    out.Start(u"none");
    out.End();
    out.End();
    out.End();
    EXPECT_EQ(out.Text(), "<AA:e xmlns:AA=\"urn:new\" xmlns=\"urn:d\"<\" "
                          "xmlns:w=\"http://www.w3.org/XML/1998/namespac\" xmlns:z=\"urn:a\" "
                          "xmlns:y=\"urn:b\"><d xml:lang=\"en\" xmlns:AB=\"urn:d\"<\" AB:n=\"1\"/>"
                          "<y:b><none/></y:b></AA:e>");
}

TEST(CXmlTextWriter, GeneratedPrefixesLiveAsLongAsTheirElement) {
    Output out;
    out.Start(u"r");
    for (const char16_t* name : {u"a", u"b"}) {
        out.Start(name, u"urn:x");
        out.Start(u"c", u"urn:x");
        out.Attribute(u"n", u"1", u"urn:y");
        out.Attribute(u"m", u"2", u"urn:y");
        out.End();
        out.End();
    }
    out.End();
    EXPECT_EQ(out.Text(), "<r><AA:a xmlns:AA=\"urn:x\">"
                          "<AA:c xmlns:AB=\"urn:y\" AB:n=\"1\" AB:m=\"2\"/></AA:a>"
                          "<AA:b xmlns:AA=\"urn:x\">"
                          "<AA:c xmlns:AB=\"urn:y\" AB:n=\"1\" AB:m=\"2\"/></AA:b></r>");
}

TEST(CXmlTextWriter, GeneratedPrefixIsTheFirstFreeOne) {
    Output out;
    out.writer.AddNamespace(u"AB", u"urn:b");
    out.writer.AddNamespace(u"AA", u"urn:a");
    out.writer.AddNamespace(u"AA", u"urn:a2");
    out.Start(u"r");
    out.Attribute(u"n", u"1", u"urn:c");
    out.writer.AddNamespace(u"p", u"urn:a");
    out.Attribute(u"n", u"1", u"urn:d");
    out.writer.AddNamespace(u"p", u"urn:a2");
    out.Attribute(u"n", u"1", u"urn:e");
    out.Attribute(u"n", u"1", u"urn:f");
    out.End();
    EXPECT_EQ(out.Text(), "<r xmlns:AA=\"urn:a\" xmlns:AA=\"urn:a2\" xmlns:AB=\"urn:b\""
                          " xmlns:AC=\"urn:c\" AC:n=\"1\" xmlns:AD=\"urn:d\" AD:n=\"1\""
                          " xmlns:AA=\"urn:e\" AA:n=\"1\" xmlns:AE=\"urn:f\" AE:n=\"1\"/>");
}

TEST(CXmlTextWriter, NamespacesAddedInsideAnElementAreSilentAndLocal) {
    Output out;
    out.Start(u"r");
    out.Start(u"a");
    out.writer.AddNamespace(u"p", u"urn:p");
    out.writer.SetDefaultNamespace(u"urn:d");
    out.Start(u"b", u"urn:p");
    out.Start(u"c", u"urn:d");
    out.End();
    out.End();
    out.End();
    out.Start(u"b", u"urn:p");
    out.End();
    out.Start(u"c", u"urn:d");
    out.End();
    out.End();
    EXPECT_EQ(out.Text(), "<r><a><p:b><c/></p:b></a><AA:b xmlns:AA=\"urn:p\"/>"
                          "<AA:c xmlns:AA=\"urn:d\"/></r>");
}

TEST(CXmlTextWriter, ElementWhoseDefaultNamespaceChangesEndsWithAnEmptyPrefix) {
    Output out;
    out.writer.SetDefaultNamespace(u"urn:d");
    out.Start(u"e", u"urn:d");
    out.writer.SetDefaultNamespace(u"urn:other");
    out.Write(u"x");
    out.End();
    EXPECT_EQ(out.Text(), "<e xmlns=\"urn:d\">x</:e>");
}

TEST(CXmlTextWriter, WritesTypeAndNil) {
    Output out;
    out.writer.SetDefaultNamespace(u"urn:d");
    out.Start(u"r");
    out.writer.WriteXsiType(u"", u"T", ItemType_string);
    out.Start(u"a");
    out.writer.WriteXsiType(u"urn:d", u"T", ItemType_string);
    out.Start(u"b");
    out.writer.WriteXsiType(u"urn:t", u"T", ItemType_string);
    out.writer.WriteXsiNil();
    out.End();
    out.End();
    out.End();
    EXPECT_EQ(out.Text(), "<r xmlns=\"urn:d\" xmlns:AA=\"" + ToUtf8(xsi) +
                              "\" AA:type=\"T\"><a AA:type=\"T\">"
                              "<b xmlns:AB=\"urn:t\"  AA:type=\"AB:T\" AA:nil=\"true\"/></a></r>");
}

TEST(CXmlTextWriter, SecondRootDeclaresAgain) {
    Output out;
    out.writer.AddNamespace(u"p", u"urn:p");
    for (int i = 0; i < 2; ++i) {
        out.Start(u"r");
        out.End();
    }
    EXPECT_EQ(out.Text(), "<r xmlns:p=\"urn:p\"/><r xmlns:p=\"urn:p\"/>");
}

/// Reaches what only derived writers reach.
struct DerivedWriter : CXmlTextWriter {
    using CXmlTextWriter::CXmlTextWriter;
    using CXmlTextWriter::m_eolType;
    using CXmlWriter::MakeAlias;
};

TEST(CXmlTextWriter, Failures) {
    const auto late = "Attributes must be added before elements";
    Output out;
    out.Start(u"r");
    out.Start(u"c");
    out.End();
    EXPECT_EQ(Failure([&] { out.Attribute(u"n", u""); }), late);
    EXPECT_EQ(Failure([&] { out.writer.WriteXsiType(u"u", u"t", ItemType_string); }), late);
    EXPECT_EQ(Failure([&] { out.writer.WriteXsiNil(); }), late);
    EXPECT_EQ(Failure([&] { out.writer.SetEOLType(static_cast<EOLType>(2)); }), "Invalid EOL type.");
    EXPECT_EQ(Failure([&] { out.writer.Close(); }), "An Element has not been closed.");
    out.End();
    out.writer.Close();
    EXPECT_EQ(out.Text(), "<r><c/></r>");

    DerivedWriter derived(&out.stream);
    derived.StartElement(u"r", u"");
    derived.m_eolType = static_cast<EOLType>(2);
    derived.WriteAttribute(u"n", u"", u"\n", ItemType_string);
    EXPECT_EQ(Failure([&] { derived.WriteText(u"a\nb", ItemType_string); }), "Invalid EOL type.");
    EXPECT_EQ(out.Text(), "<r n=\"&#xA;\">a");
}

TEST(CXmlTextWriter, OperationsWithoutAnOpenElementFailCleanly) {
    const auto none = "There is no open element to write to";
    Output out;
    out.Write(u"");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Failure<CKzInvalidStateException>([&] { out.Write(u"x"); }), none);
        EXPECT_EQ(Failure<CKzInvalidStateException>([&] { out.End(); }), none);
        EXPECT_EQ(Failure<CKzInvalidStateException>([&] { out.Attribute(u"n", u""); }), none);
        EXPECT_EQ(Failure<CKzInvalidStateException>([&] { out.writer.WriteXsiNil(); }), none);
        EXPECT_EQ(
            Failure<CKzInvalidStateException>([&] { out.writer.WriteXsiType(u"", u"t", ItemType_string); }),
            none);
        out.writer.CloseStartTag();
        out.Start(u"r");
        out.End();
    }
    EXPECT_EQ(out.Text(), "<r/><r/>");
    EXPECT_THROW(CXmlTextWriter(nullptr), CKzInvalidParamException);
}

TEST(CXmlTextWriter, GeneratedPrefixesRunThroughPairsOfLettersAndStopAtTheSurrogates) {
    EXPECT_EQ(DerivedWriter::MakeAlias(0), u"AA");
    EXPECT_EQ(DerivedWriter::MakeAlias(27), u"BB");
    EXPECT_EQ(DerivedWriter::MakeAlias(675), u"ZZ");
    EXPECT_EQ(DerivedWriter::MakeAlias(676), u"[A");
    constexpr std::uint32_t end = (0xD800 - u'A') * 26;
    EXPECT_EQ(DerivedWriter::MakeAlias(end - 1), u"\uD7FFZ");
    EXPECT_THROW(DerivedWriter::MakeAlias(end), CKzException);
}

/// Records what a stream is asked to do.
struct RecordingStream : CTextStream {
    RecordingStream() : CTextStream(XmlEncoding_UTF8) {}
    void Open() override {
        log += "open ";
        CTextStream::Open();
    }
    void Close() override { log += "close "; }
    void Flush() override {
        log += std::to_string(GetBuffer().GetLength()) + " ";
        CTextStream::Open();
    }
    std::string log;
};

TEST(CXmlTextWriter, FlushesAfterTheOperationThatReachesTheMark) {
    RecordingStream stream;
    CXmlTextWriter writer(&stream);
    writer.SetFormatted(false);
    writer.StartElement(u"e", u"");
    writer.WriteText(std::u16string(4092, u'x'), ItemType_string); // 4095 with the start tag
    writer.WriteText(u"", ItemType_string);
    writer.WriteText(u"&", ItemType_string); // 4100
    const std::u16string big(4096, u'y');
    writer.StartElement(big, u"");                          // 4097
    writer.WriteAttribute(u"n", u"", big, ItemType_string); // 4101
    writer.WriteInlineSchema(big);                          // 4099
    EXPECT_THROW(writer.Close(), CKzException);
    writer.EndElement();                    // 2
    writer.WriteComment(big);               // 4106 with the end of the element
    writer.WriteProcessingInstruction(big); // 4098
    writer.EndElement();
    writer.Close();
    EXPECT_EQ(stream.log, "open 4100 4097 4101 4099 close 4106 4098 close ");
}

TEST(CXmlTextWriter, ManyOpenElementsNeedNoStack) {
    Output out;
    for (int i = 0; i < 250'000; ++i)
        out.Start(u"e", u"urn:x");
    out.Attribute(u"n", u"1");
    for (int i = 0; i < 2; ++i)
        out.End();
    const std::u16string_view text = out.stream.GetBuffer().GetString();
    EXPECT_TRUE(text.starts_with(u"<AA:e xmlns:AA=\"urn:x\"><AA:e><AA:e>"));
    EXPECT_TRUE(text.ends_with(u"<AA:e><AA:e n=\"1\"/></AA:e>"));
}

TEST(CXmlTextWriter, ManyNestedNamespacesStayCheap) {
    constexpr int depth = 5'000;
    Output out;
    for (int i = 0; i < depth; ++i)
        out.writer.StartElement(u"e", u"urn:" + FromUtf8(std::to_string(i)));
    out.Start(u"e", u"urn:7");
    out.End();
    EXPECT_TRUE(out.Text().ends_with("<" + ToUtf8(DerivedWriter::MakeAlias(depth - 1)) + ":e xmlns:" +
                                     ToUtf8(DerivedWriter::MakeAlias(depth - 1)) + "=\"urn:4999\"><AH:e/>"));
    for (int i = 0; i < depth - 1; ++i)
        out.End();
    out.Start(u"e", u"urn:new");
    EXPECT_TRUE(out.Text().ends_with("<AB:e xmlns:AB=\"urn:new\""));
}

} // namespace
