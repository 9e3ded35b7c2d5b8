#include "support/Test.h"

namespace {

template <class Text>
std::string Tree(const Text& xml, const CXmlSerializationContext& context = CXmlSerializationContext()) {
    CXmlDocument document(context);
    document.LoadXml(xml);
    return DumpTree(document.GetDocumentElement());
}

// What the callbacks of the tests below have seen.
std::string g_seen;

TEST(CXmlDocument, BuildsTheTreeOfADocument) {
    ExpectRows(
        {"<a b='1' d='3' c='2'/> -> a[@b=1 @d=3 @c=2]", "<a>x<b/>y<c><d/></c>z</a> -> a[\"xyz\" b c[d]]",
         "<?pi x?><!--c--><!DOCTYPE a [<!ENTITY e 'E'>]><a><!--c-->&e;<?pi?>&lt;</a><!--c--> -> a[\"E<\"]",
         // Line ends are normalised by the parser; what is written as a reference is dropped here.
         "<a>1\r\n2&#13;3&#13;&#13;4&#13;</a> -> a[\"1\\n234\"]", "<a>&#13;</a> -> a",
         "<!DOCTYPE a [<!ENTITY e '&#13;1&#13;\n<b>2&#13;</b>&#13;'>]><a>&e;&e;</a> -> a[\"1\\n1\\n\" "
         "b[\"2\"] b[\"2\"]]",
         "<a b='1&#13;2'/> -> a[@b=1\\r2]", "<a>x<![CDATA[<y>]]>z<![CDATA[]]></a> -> a[\"x<y>z\"]",
         // External entities are left alone.
         "<!DOCTYPE a SYSTEM 'file:///dev/null' [<!ENTITY e SYSTEM 'file:///etc/hostname'>]><a>1&e;2</a> -> "
         "a[\"12\"]",
         // Names keep their namespace and lose their prefix.
         "<a xmlns='urn:d' b='1'><c/></a> -> {urn:d}a[@b=1 {urn:d}c]",
         "<p:a xmlns:p='urn:p' p:b='1' b='2'><c/></p:a> -> {urn:p}a[@{urn:p}b=1 @b=2 c]",
         "<a xml:lang='en'/> -> a[@{http://www.w3.org/XML/1998/namespace}lang=en]"},
        [](const std::u16string& xml) { return Tree(ToUtf8(xml).c_str()); });
}

TEST(CXmlDocument, HeedsTheContext) {
    CXmlSerializationContext keep, whole;
    keep.SetStripCDATA(false);
    EXPECT_EQ(Tree("<a>x<![CDATA[<y>\n]]>z<b><![CDATA[]]></b></a>", keep),
              R"(a["x<![CDATA[<y>\n]]>z" b["<![CDATA[]]>"]])");
    whole.SetSchemaType(SchemaType_NoNamespaces);
    EXPECT_EQ(Tree("<p:a xmlns:p='u' xmlns='v' q:b='1'/>", whole), "p:a[@xmlns:p=u @xmlns=v @q:b=1]");

    // The type of schema counts at construction, CDATA at each load.
    CXmlSerializationContext context;
    CXmlDocument document(context);
    context.SetSchemaType(SchemaType_NoNamespaces);
    context.SetStripCDATA(false);
    document.LoadXml("<a xmlns='u'><![CDATA[x]]></a>");
    EXPECT_EQ(DumpTree(document.GetDocumentElement()), R"({u}a["<![CDATA[x]]>"])");
}

TEST(CXmlDocument, ReadsTheEncodingsOfTheParser) {
    EXPECT_EQ(Failure([] { Tree("<?xml version='1.0' encoding='windows-1252'?><a/>"); }),
              "unknown encoding at line 1");
    // Wide text is read whatever it declares.
    for (const char16_t* encoding : {u"UTF-8", u"UTF-16BE", u"UTF-16LE", u"ISO-8859-1", u"none-such"}) {
        const std::u16string xml = u"<?xml version='1.0' encoding='" + std::u16string(encoding) +
                                   u"'?>\n<a b='\u00E4'>\u20AC\U0001F600</a>";
        EXPECT_EQ(Tree(xml.c_str()), "a[@b=\xC3\xA4 \"\xE2\x82\xAC\xF0\x9F\x98\x80\"]");
    }
}

TEST(CXmlDocument, FailsWithTheWordsOfTheParserAndTheLine) {
    ExpectRows({" -> XML String is empty!", "  -> no element found at line 1",
                "<a>\n<b>\n</a> -> mismatched tag at line 3", "<a>\n -> no element found at line 2",
                "<a>\n\n<b -> unclosed token at line 3",
                "<a/>\n<b/> -> junk after document element at line 2",
                "<a>&x;</a> -> undefined entity at line 1", "<p:a/> -> unbound prefix at line 1",
                "<a b='1' b='2'/> -> duplicate attribute at line 1",
                // The character that separates namespace and name inside the parser.
                "<a xmlns='urn:a|b'/> -> syntax error at line 1"},
               [](const std::u16string& xml) { return Failure([&] { Tree(ToUtf8(xml).c_str()); }); });
    EXPECT_EQ(Failure([] { Tree("<a>\xC3(</a>"); }), "not well-formed (invalid token) at line 1");
    EXPECT_EQ(Failure([] { Tree(u""); }), "no element found at line 1");
    EXPECT_EQ(InvalidParam([] { Tree(static_cast<const char*>(nullptr)); }),
              "The argument text may not be null");
}

TEST(CXmlDocument, StopsDocumentsThatGrowWithoutBounds) {
    const std::string value(100'000, 'v'), doctype = "<!DOCTYPE r [<!";
    const std::string entities = doctype + "ENTITY e '" + value + "'>]><r>" + Repeat("&e;"s, 1'000) + "</r>";
    EXPECT_EQ(Failure([&] { Tree(entities.c_str()); }),
              "limit on input amplification factor (from DTD and entities) breached at line 1");
    std::string emptyAttributes = doctype + "ATTLIST a";
    for (int i = 0; i < 3'000; ++i)
        emptyAttributes += " b" + std::to_string(i) + " CDATA ''";
    for (const std::string& start : {doctype + "ATTLIST a b CDATA '" + value + "'>]><r>",
                                     doctype + "ATTLIST a xmlns:b CDATA '" + value + "'>]><r>",
                                     emptyAttributes + ">]><r>", "<r xmlns='" + value + "'>"}) {
        const std::string xml = start + Repeat("<a/>"s, 1'000) + "</r>";
        EXPECT_EQ(Failure([&] { Tree(xml.c_str()); }),
                  "The names, values and texts of the document come to more than " +
                      std::to_string((64u << 20) + 256 * xml.size()) + " bytes");
    }
}

TEST(CXmlDocument, KeepsTheLastDeclarationOfAPrefix) {
    CXmlDocument document;
    document.LoadXml("<a xmlns='urn:1' xmlns:p='urn:2'><p:b xmlns:p='urn:3'/><p:c xmlns='urn:4'/></a>");
    EXPECT_EQ(document.LookupNamespaceFromAlias(u""), u"urn:4");
    EXPECT_EQ(document.LookupNamespaceFromAlias(u"p"), u"urn:3");
    document.LoadXml("<a xmlns='urn:5'><b xmlns=''/></a>");
    EXPECT_EQ(document.LookupNamespaceFromAlias(u"") + document.LookupNamespaceFromAlias(u"p"), u"");
}

TEST(CXmlElement, FindsAttributesByNameAndNamespace) {
    CXmlDocument document;
    document.LoadXml("<a xmlns:p='urn:p' p:x='1' x='2' y=''/>");
    const CXmlElement* root = document.GetDocumentElement();
    EXPECT_EQ(root->GetAttribute(u"x", u"") + root->GetAttribute(u"x", u"urn:p"), u"21");
    EXPECT_EQ(&root->GetAttribute(u"X", u""),
              &root->GetAttribute(u"x", u"urn:q")); // an empty text of its own
    EXPECT_NE(&root->GetAttribute(u"X", u""), &root->GetAttribute(u"y", u""));
}

TEST(CXmlDocument, LoadsRepeatedlyAlsoAfterAFailure) {
    CXmlDocument document;
    document.LoadXml("<a/>");
    EXPECT_EQ(Failure([&] { document.LoadXml("<b><c>"); }), "no element found at line 1");
    EXPECT_EQ(DumpTree(document.GetDocumentElement()), "b[c]");
    EXPECT_EQ(Failure([&] { document.LoadXml(""); }), "XML String is empty!");
    EXPECT_EQ(DumpTree(document.GetDocumentElement()), "null");
    document.LoadXml(u"<d>1</d>");
    EXPECT_EQ(document.GetDocumentElement()->GetDocument(), &document);
    EXPECT_EQ(DumpTree(document.GetDocumentElement()), R"(d["1"])");
    document.Cleanup();
    EXPECT_EQ(document.GetDocumentElement(), nullptr);
    // The text to load may stand in the tree that goes away.
    document.LoadXml("<a>&lt;inner>some text&lt;/inner></a>");
    document.LoadXml(document.GetDocumentElement()->GetText().c_str());
    EXPECT_EQ(DumpTree(document.GetDocumentElement()), R"(inner["some text"])");
    // A class whose Cleanup keeps the tree gets a new one all the same.
    class Keeper : public CXmlDocument {
        void Cleanup() override {}
    } keeper;
    const CBinaryData infoset = HexBytes("E0 00 00 01 00 7C 00 'b' 78 00 'c' 40 'd' FF");
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(Failure([&] { keeper.LoadXml("<a p='1'>x<b/><c>"); }), "no element found at line 1");
        EXPECT_EQ(DumpTree(keeper.GetDocumentElement()), R"(a[@p=1 "x" b c])");
        keeper.LoadXmlStream(infoset.GetData(), infoset.GetLength());
        EXPECT_EQ(DumpTree(keeper.GetDocumentElement()), "b[@c=d]");
    }
}

TEST(CXmlDocument, DropsWhatTheCallbackDoesNotWant) {
    const auto drop = [](CXmlElement* element) {
        g_seen += DumpTree(element) + ";";
        return element->GetLocalName() == u"d" || element->GetLocalName() == u"r";
    };
    const std::array<const char*, 3> rows[] = {
        {"<r><d>1</d><d>2</d></r>", R"(d["1"];d["2"];r;)", "r"},
        {"<r><d b='1'/><k b='2'><d/><k b='3'/><d c='4'><k b='5'><k b='6'/></k></d></k><d b='7' c='8'/></r>",
         "d[@b=1];d;k[@b=3];k[@b=6];k[@b=5 k[@b=6]];d[@c=4 k[@b=5 k[@b=6]]];k[@b=2 k[@b=3]];d[@b=7 @c=8];"
         "r[k[@b=2 k[@b=3]]];",
         "r[k[@b=2 k[@b=3]]]"},
        {"<r>1<d>a<k>b</k>c<d/></d>2<k>3</k>4<d>d</d>5</r>",
         R"(k["b"];d;d["ac" k["b"]];k["3"];d["d"];r["1245" k["3"]];)", R"(r["1245" k["3"]])"}};
    for (const auto& [xml, seen, tree] : rows) {
        g_seen.clear();
        CXmlDocument document(drop);
        document.LoadXml(xml);
        EXPECT_EQ(g_seen, seen);
        EXPECT_EQ(DumpTree(document.GetDocumentElement()), tree); // the root stays whatever the answer
    }
}

TEST(CXmlDocument, PassesOnWhatTheCallbackThrows) {
    CXmlDocument document([](CXmlElement* element) -> bool {
        g_seen += DumpTree(element);
        throw CKzInvalidStateException(u"enough");
    });
    g_seen.clear();
    for (const char* xml : {"<r><a/><b/><!-- not <even> well-formed", "<a/>"})
        EXPECT_EQ(InvalidState([&] { document.LoadXml(xml); }), "enough");
    EXPECT_EQ(g_seen, "aa"); // the last tag of a document counts, what follows the throw does not
}

} // namespace
