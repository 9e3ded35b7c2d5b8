#include "support/Test.h"

namespace {

/// A writer over a stream of its own; the tests compare text as UTF-8 so that failures can be read.
struct Output {
    explicit Output(bool formatted = false, EOLType eol = EOLType_LF, XmlEncoding encoding = XmlEncoding_None)
        : stream(encoding), writer(&stream) {
        writer.SetFormatted(formatted);
        writer.SetEOLType(eol);
    }
    std::string Text() { return ToUtf8({stream.GetBuffer().GetString(), stream.GetBuffer().GetLength()}); }
    std::string Run(const std::string& words) {
        RunScript(writer, words);
        return Text();
    }

    CTextStream stream;
    CXmlTextWriter writer;
};

TEST(CXmlTextWriter, FormatsWithTabsAndLineEnds) {
    for (const auto& [formatted, encoding, text] :
         {std::tuple(true, XmlEncoding_UTF16,
                     " encoding=\"UTF-16\"?>\r\n<a>\r\n\t<b>x</b>\r\n\t<c/>\r\n</a>\r\n"),
          std::tuple(false, XmlEncoding_UTF16NoDecl, "?>\r\n<a><b>x</b><c/></a>")}) {
        Output out(formatted, EOLType_CRLF, encoding);
        out.writer.WriteDeclaration();
        EXPECT_EQ(out.Run("<a <b 'x > <c > >"), "<?xml version=\"1.0\""s + text);
    }
    // Mixed content, and a start tag that is open at an empty text.
    EXPECT_EQ(Output(true).Run("<a 'before <b <c > > 'after >"),
              "<a>before\t<b>\n\t\t<c/>\n\t</b>\nafter</a>\n");
    EXPECT_EQ(Output(true).Run("<a ' @n= >"), "<a n=\"\"/>\n");
}

TEST(CXmlTextWriter, EscapesTextAndAttributes) {
    const std::u16string value = u"a\r\nb\nc\rd\t\"'&<>\x01\u00e9\U0001F600]]>";
    const std::string tail = "\x01\xC3\xA9\xF0\x9F\x98\x80]]&gt;";
    const std::tuple<EOLType, std::u16string, std::vector<std::u16string>, std::string> rows[] = {
        {EOLType_LF,
         value,
         {value},
         "a&#xA;b&#xA;cd\t&quot;'&amp;&lt;&gt;" + tail + "\">a\nb\ncd\t\"'&amp;&lt;&gt;" + tail},
        {EOLType_CRLF, u"\n", {u"\n\r\n"}, "&#xA;\">\r\n\r\n"},
        // Texts end at their first NUL.
        {EOLType_LF, u"v\0w"s, {u"a&\0b"s, u"<![CDATA[x\0y"s}, "v\">a&amp;<![CDATA[x"},
        // A text that begins as CDATA is not escaped.
        {EOLType_LF,
         u"",
         {u"<![CDATA[<&]]><\r\n", u"<![CDATA", u" <![CDATA[]]>"},
         "\"><![CDATA[<&]]><\r\n&lt;![CDATA &lt;![CDATA[]]&gt;"}};
    for (const auto& [eol, attribute, texts, xml] : rows) {
        Output out(false, eol);
        out.Run("<e");
        out.writer.WriteAttribute(u"n", u"", attribute, ItemType_string);
        for (const std::u16string& text : texts)
            out.writer.WriteText(text, ItemType_string);
        EXPECT_EQ(out.Run(">"), "<e n=\"" + xml + "</e>");
    }
}

TEST(CXmlTextWriter, WritesCommentsInstructionsAndInlineSchema) {
    Output out(true, EOLType_CRLF);
    out.writer.WriteProcessingInstruction(u"<?x a<b?>");
    out.writer.WriteComment(u"a--b<\n");
    out.Run("<e @n=1");
    out.writer.WriteInlineSchema(u"<s/>");
    EXPECT_EQ(out.Run("'t >"), "<?x a<b?>\r\n\r\n<!--a--b&lt;\r\n-->\r\n<e n=\"1\" \r\n<s/>\r\n>t</e>\r\n");
}

TEST(CXmlTextWriter, DeclaresNamespaces) {
    const std::string types = "\" xmlns:AA=\"http://www.w3.org/2001/XMLSchema-instance\" AA:type=\"T\">";
    const std::pair<std::string, std::string> rows[] = {
        // The root declares them in the order of their URIs, without those that begin as that of "xml".
        {"+z=urn:a +y=urn:b +q=http://www.w3.org/XML/1998/namespace/more "
         "+w=http://www.w3.org/XML/1998/namespac +=urn:d\"< <{urn:new}e <{urn:d\"<}d "
         "@{http://www.w3.org/XML/1998/namespace}lang=en @{urn:d\"<}n=1 > <{urn:b}b <none > > >",
         "<AA:e xmlns:AA=\"urn:new\" xmlns=\"urn:d\"<\" xmlns:w=\"http://www.w3.org/XML/1998/namespac\" "
         "xmlns:z=\"urn:a\" xmlns:y=\"urn:b\"><d xml:lang=\"en\" xmlns:AB=\"urn:d\"<\" AB:n=\"1\"/>"
         "<y:b><none/></y:b></AA:e>"},
        // Generated prefixes live as long as their element.
        {"<r <{urn:x}a <{urn:x}c @{urn:y}n=1 @{urn:y}m=2 > > <{urn:x}b <{urn:x}c @{urn:y}n=1 > > >",
         "<r><AA:a xmlns:AA=\"urn:x\"><AA:c xmlns:AB=\"urn:y\" AB:n=\"1\" AB:m=\"2\"/></AA:a>"
         "<AA:b xmlns:AA=\"urn:x\"><AA:c xmlns:AB=\"urn:y\" AB:n=\"1\"/></AA:b></r>"},
        // A generated prefix is the first free one.
        {"+AB=urn:b +AA=urn:a +AA=urn:a2 <r @{urn:c}n=1 +p=urn:a @{urn:d}n=1 +p=urn:a2 @{urn:e}n=1 "
         "@{urn:f}n=1 >",
         "<r xmlns:AA=\"urn:a\" xmlns:AA=\"urn:a2\" xmlns:AB=\"urn:b\" xmlns:AC=\"urn:c\" AC:n=\"1\" "
         "xmlns:AD=\"urn:d\" AD:n=\"1\" xmlns:AA=\"urn:e\" AA:n=\"1\" xmlns:AE=\"urn:f\" AE:n=\"1\"/>"},
        // What is added inside an element is silent and local.
        {"<r <a +p=urn:p +=urn:d <{urn:p}b <{urn:d}c > > > <{urn:p}b > <{urn:d}c > >",
         "<r><a><p:b><c/></p:b></a><AA:b xmlns:AA=\"urn:p\"/><AA:c xmlns:AA=\"urn:d\"/></r>"},
        // An element whose default namespace changes ends with an empty prefix.
        {"+=urn:d <{urn:d}e +=urn:other 'x >", "<e xmlns=\"urn:d\">x</:e>"},
        {"+=urn:d <r type=T <a type={urn:d}T <b type={urn:t}T nil > > >",
         "<r xmlns=\"urn:d" + types +
             "<a AA:type=\"T\">"
             "<b xmlns:AB=\"urn:t\"  AA:type=\"AB:T\" AA:nil=\"true\"/></a></r>"},
        // A second root declares again.
        {"+p=urn:p <r > <r >", "<r xmlns:p=\"urn:p\"/><r xmlns:p=\"urn:p\"/>"}};
    for (const auto& [script, xml] : rows)
        EXPECT_EQ(Output().Run(script), xml);
}

TEST(CXmlTextWriter, OperationsInTheWrongPlaceFailCleanly) {
    const auto none = "There is no open element to write to";
    Output out;
    out.writer.CloseStartTag();
    for (const char* operation : {"'x", ">", "@n=", "nil", "type=t"})
        EXPECT_EQ(InvalidState([&] { out.Run(operation); }), none) << operation;
    out.Run("<r <c >");
    for (const char* operation : {"@n=", "type={u}t", "nil"})
        EXPECT_EQ(Failure([&] { out.Run(operation); }), "Attributes must be added before elements");
    EXPECT_EQ(Failure([&] { out.writer.SetEOLType(static_cast<EOLType>(2)); }), "Invalid EOL type.");
    EXPECT_EQ(Failure([&] { out.writer.Close(); }), "An Element has not been closed.");
    out.Run(">");
    out.writer.Close();
    EXPECT_EQ(InvalidState([&] { out.Run("'x"); }), none);
    EXPECT_EQ(out.Text(), "<r><c/></r>");
}

/// Has a way of its own with text.
struct DerivedWriter : CXmlTextWriter {
    using CXmlTextWriter::CXmlTextWriter;
    using CXmlWriter::MakeAlias;
    void WriteText(const std::u16string&, ItemType type) override { CXmlTextWriter::WriteText(u"own", type); }
};

TEST(CXmlTextWriter, GeneratedPrefixesArePairsOfLetters) {
    constexpr std::uint32_t end = (0xD800 - u'A') * 26;
    for (const auto& [index, alias] :
         {std::pair(0u, u"AA"), {27u, u"BB"}, {675u, u"ZZ"}, {676u, u"[A"}, {end - 1, u"\uD7FFZ"}})
        EXPECT_EQ(DerivedWriter::MakeAlias(index), alias);
    EXPECT_THROW(DerivedWriter::MakeAlias(end), CKzException);
}

/// Records what a stream is asked to do, and keeps what it flushes.
struct RecordingStream : CTextStream {
    RecordingStream() : CTextStream(XmlEncoding_UTF8) {}
    void Open() override {
        log += "open ";
        CTextStream::Open();
    }
    void Close() override { log += "close "; }
    void Flush() override {
        log += std::to_string(GetBuffer().GetLength()) + " ";
        text.append(GetBuffer().GetString(), GetBuffer().GetLength());
        CTextStream::Open();
    }
    std::string log;
    std::u16string text;
};

TEST(CXmlTextWriter, FlushesBetweenOperations) {
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

TEST(CXmlTextWriter, WritesALeafAsThreeOperationsWould) {
    const std::u16string texts[] = {u"", u"x", u"a<b", u"12345678", u"one & two\n\r'\"", u"<![CDATA[<]]>",
                                    u"<", u"\0"s, u"seven77\0x"s,
                                    // longer than what is written at one go
                                    std::u16string(1'100, u'>'), std::u16string(300, u'&') + u"\u00e9"};
    const auto written = [&](bool atOnce, const char* before, const char16_t* uri) {
        RecordingStream stream;
        CXmlTextWriter writer(&stream);
        for (const char* words : {before, "<m ", "<m +q=urn:x +=urn:y ", "> > "}) {
            RunScript(writer, words);
            for (const std::u16string& name :
                 {u"e"s, u"name"s, u"customer"s, u"a_rather_long_name"s, u"cut\0off"s})
                for (const std::u16string& text : texts)
                    WriteLeaf(writer, atOnce, name, uri, text);
        }
        stream.Flush();
        return stream.text + FromUtf8(stream.log);
    };
    for (const auto* before : {"", "<r ", "<r 'x ", "<r <s <t > ", "<r nil <{urn:x}s ", "+=urn:x <{urn:x}r ",
                               "+p=urn:x <{urn:x}r <s ", "+p=urn:x <{urn:x}r +p=urn:y +q=urn:x ",
                               "<a <a <a <a <a <a <a <a <a <a <a <a <a <a <a <a <a <a <{urn:x}a "})
        for (const auto* uri : {u"", u"urn:x", u"urn:y"})
            EXPECT_EQ(written(true, before, uri), written(false, before, uri)) << before;
    CTextStream stream(XmlEncoding_None);
    DerivedWriter derived(&stream);
    WriteLeaf(derived, true, u"e", u"", u"x");
    EXPECT_EQ(stream.GetBuffer().GetString(), u"<e>own</e>\n"s);
}

} // namespace
