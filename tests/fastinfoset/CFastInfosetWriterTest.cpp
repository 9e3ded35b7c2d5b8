#include "support/Test.h"

namespace {

using Encoding = CFastInfosetContext::EncodedCharacterString;
constexpr auto ByAlphabet = CFastInfosetContext::EncodingType_RestrictedAlphabet;
constexpr auto ByAlgorithm = CFastInfosetContext::EncodingType_Algorithm;

const CXmlSerializationContext defaults;
const std::string header = "E0 00 00 01 00";
const std::string root = header + "38 F0 3C 00 'a'", withAttributes = header + "78 F0 3C 00 'a'";
const std::string xsi = "28 'http://www.w3.org/2001/XMLSchema-instance'";

std::string Hex(const CBinaryData& data) { return ToUtf8(data.GetAsHexString()); }
std::string Hex(const std::string& bytes) { return Hex(HexBytes(bytes)); }

std::string Write(const std::string& words, const CXmlSerializationContext& context = defaults) {
    return Hex(ScriptedObject(words).Written(context));
}

CXmlSerializationContext WithEncoding(Encoding encoding, ItemType type = ItemType_string) {
    CXmlSerializationContext context;
    context.GetFIContext().SetEncoding(static_cast<unsigned long>(type), encoding);
    return context;
}

TEST(CFastInfosetWriter, WritesElementsAttributesAndText) {
    EXPECT_EQ(Write("<a @b=1 @c= <d @b=1 'x > <d 'x 'longer > <d ' > >"),
              Hex(header + "78 F0"            // an element with attributes; no namespaces
                           "3C 00 'a'"        // its name
                           "78 00 'b' 40 '1'" // attribute b, a literal; value 1, to the table
                           "78 00 'c' FF"     // attribute c, the empty value
                           "F0"               // end of the attributes
                           "7C 00 'd'"        // element d, with attributes
                           "00 80"            // attribute 1, value 1
                           "F0"               // end of the attributes, a byte of its own
                           "90 'x'"           // text x, to the table
                           "F0"               // end of d
                           "01 A0"            // element 2, text 1
                           "82 03 'longer'"   // text of 6 characters, not to the table
                           "F0"               // end of d
                           "01 FF"            // element 2, without content; ends of d and a
                           "F0"));            // end of the document
    // Ends share a byte in pairs.
    EXPECT_EQ(Write("<a >"), Hex(root + "FF")); // root and document
    EXPECT_EQ(Write("<a <a > >"), Hex(root + "00 FF F0"));
    EXPECT_EQ(Write("<a <a <a > > <a > >"), Hex(root + "00 00 FF 00 FF F0"));
    // Text behind a child comes without the mark that ends the child.
    EXPECT_EQ(Write("<a <a > 'x >"), Hex(root + "00 90 'x' FF F0"));
}

TEST(CFastInfosetWriter, ShortValuesGoToTheTables) {
    const std::string words = "<a @b=12345 @c=123456 @d=12345 @e=123456 '12345 '123456 '12345 '123456 >";
    const std::string start = withAttributes + "78 00 'b' 44 '12345' 78 00 'c'";
    EXPECT_EQ(Write(words), Hex(start + "05 '123456'  78 00 'd' 80  78 00 'e' 05 '123456'  F0"
                                        "92 02 '12345' 82 03 '123456'  A0 82 03 '123456'  FF"));
    CXmlSerializationContext context;
    context.GetFIContext().SetAttributeMaxAddLength(7);
    context.GetFIContext().SetElementMaxAddLength(0);
    EXPECT_EQ(Write(words, context),
              Hex(start + "45 '123456'  78 00 'd' 80  78 00 'e' 81  F0"
                          "82 02 '12345' 82 03 '123456'  82 02 '12345' 82 03 '123456'  FF"));
}

TEST(CFastInfosetWriter, NamespaceAttributesStandOnTheRootOnly) {
    EXPECT_EQ(Write("+p=urn:p +x=http://www.w3.org/XML/1998/namespace/more +q= +=urn:d "
                    "<{urn:d}a <{urn:p}a @{urn:p}b=1 @{urn:new}b=1 > <{urn:new}a > >"),
              Hex(header + "38 CD 04 'urn:d'"              // the default namespace first
                           "CE 00 'q'"                     // then in the order of URIs: none
                           "CF 00 'p' 04 'urn:p'"          // that of XML is left out
                           "F0 3D 81 00 'a'"               // namespace 2, a new local name
                           "7F 82 82 80"                   // prefix 3, namespace 3, local name 1
                           "7B 82 82 00 'b' 40 '1'"        // the same prefix and namespace
                           "7B 01 'AA' 06 'urn:new' 81 80" // a prefix made up, declared nowhere
                           "F0 F0"                         // ends of the attributes and of p:a
                           "3F 83 83 80 FF F0"));          // the same prefix, made up again
}

TEST(CFastInfosetWriter, PendingElementsSeeTheirParentsNamespaces) {
    const std::string start = header + "38 F0 3C 00 'r' 3C 00 'm' ";
    EXPECT_EQ(Write("<r ' <m ' <{u}c +p=u > > >"), Hex(start + "3F 00 'p' 00 'u' 00 'c' FF FF"));
    EXPECT_EQ(Write("<r ' <m ' <{u}c +=u > > >"), Hex(start + "3D 00 'u' 00 'c' FF FF"));
    // What failed to be written is tried again under the prefix that was made up for it.
    const ScriptedObject failing([](CXmlWriter& writer) {
        RunScript(writer, "<r <m");
        writer.StartElement(u"", u"u");
        for (int i = 0; i < 2; ++i)
            EXPECT_THROW(writer.WriteText(u"", ItemType_string), CKzException);
    });
    EXPECT_THROW(failing.Written(defaults), CKzException);
}

TEST(CFastInfosetWriter, XsiTypeHasTwoFormsForPrefixes) {
    EXPECT_EQ(
        Write("<a type=T nil >"), // in no namespace
        Hex(withAttributes + "7B 01 'AA'" + xsi + "03 'type' 40 'T'  7B 81 81 02 'nil' 43 'true'  F0 FF"));
    EXPECT_EQ(Write("+p=urn:p <a type={urn:p}T >"), // the prefix of the type with the namespace of xsi
              Hex(header + "78 CF 00 'p' 04 'urn:p' F0 3C 00 'a' 7B 81" + xsi + "03 'type' 42 'p:T' F0 FF"));
    EXPECT_EQ(Write("<a type={urn:p}T >"), // the name and namespace of the type itself
              Hex(withAttributes + "7B 01 'AA' 04 'urn:p' 00 'T' 43 'AA:T' F0 FF"));
}

TEST(CFastInfosetWriter, EncodesValuesByKind) {
    const std::tuple<Encoding, std::string, std::string> rows[] = {
        {{ByAlgorithm, 1}, "0aff", "9C 01 0AFF"},
        {{ByAlgorithm, 2}, "Cv8B", "9C 06 00 0AFF01"},
        {{ByAlgorithm, 3}, "-2", "9C 09 FFFE"},
        {{ByAlgorithm, 4}, "7", "9C 0E 01 00000007"},
        {{ByAlgorithm, 5}, "7", "9C 12 05 0000000000000007"},
        {{ByAlgorithm, 6}, "true", "9C 14 38"},
        {{ByAlgorithm, 7}, "1.5", "9C 1A 01 3FC00000"},
        {{ByAlgorithm, 8}, "1.5", "9C 1E 05 3FF8000000000000"},
        {{ByAlgorithm, 9}, "ab", "9C 20 AB"},
        {{ByAlgorithm, 10}, "\u00E9", "9C 25 C3A9"},
        {{ByAlphabet, 1}, "-12e", "98 01 A12D"},
        {{ByAlphabet, 1}, "-1.", "98 01 A1CF"}, // two to a byte; F pads
        {{ByAlphabet, 2}, "1Z:", "98 05 1DBF"}};
    for (const auto& [encoding, value, bytes] : rows) {
        // The second time by its index, whatever its kind.
        const std::string words = "<a \"" + value + " '" + value + " >";
        EXPECT_EQ(Write(words, WithEncoding(encoding, ItemType_char)), Hex(root + bytes + "A0 FF"));
    }
    EXPECT_EQ(Write("<a @b=7 @c=7654321 >", WithEncoding({ByAlgorithm, 4})),
              Hex(withAttributes + " 78 00 'b' 70 33 00000007  78 00 'c' 30 33 0074CBB1  F0 FF"));
    EXPECT_EQ(Write("<a @b=1Z >", WithEncoding({ByAlphabet, 2})),
              Hex(withAttributes + " 78 00 'b' 60 10 1D  F0 FF"));
}

TEST(CFastInfosetWriter, ValuesWithoutBytesAreEmpty) {
    EXPECT_EQ(Write("<a @b=!! '!! \"t >", WithEncoding({ByAlgorithm, 2})),
              Hex(withAttributes + "78 00 'b' FF F0 90 't' FF"));
    const ScriptedObject loneSurrogateAndWhatLeavesNoTrace([](CXmlWriter& writer) {
        writer.WriteProcessingInstruction(u"<?p?>");
        writer.WriteComment(u"c");
        writer.StartElement(u"a", u"");
        writer.WriteAttribute(u"b", u"", u"\xD800x", ItemType_string);
        writer.WriteInlineSchema(u"<schema/>");
        writer.WriteText(u"\xD800x", ItemType_string);
        writer.WriteText(u"t", ItemType_string);
        writer.EndElement();
    });
    EXPECT_EQ(Hex(loneSurrogateAndWhatLeavesNoTrace.Written()),
              Hex(withAttributes + "78 00 'b' FF F0 90 't' FF"));
}

TEST(CFastInfosetWriter, RefersToAVocabularyThatBothEndsKnow) {
    CXmlSerializationContext context;
    CFIVocabulary& vocabulary = context.GetFIContext().GetVocabulary();
    vocabulary.AddElement(u"", u"", u"a");
    vocabulary.AddElement(u"p", u"urn:p", u"b");
    vocabulary.AddAttribute(u"", u"", u"c");
    vocabulary.AddAttributeValue(u"known");
    vocabulary.AddElementValue(u"text");
    context.GetFIContext().SetUseGeneratedVocabulary(true);
    const std::string words = "+p=urn:p <a @c=known <{urn:p}b @d=new 'text > >";
    const std::string body = "78 CF 81 81 F0  00  00 80 F0  41  78 00 'd' 42 'new' F0 A0 FF F0";
    const std::string withDefault = Hex("E0 00 00 01  20 10 00  1A 'urn:quillon:vocabulary:none'" + body);
    EXPECT_EQ(Write(words, context), withDefault);
    EXPECT_EQ(Write(words, context), withDefault); // what the first document added is forgotten
    context.GetFIContext().SetExternalVocabularyURI(u"urn:v");
    EXPECT_EQ(Write(words, context), Hex("E0 00 00 01  20 10 00  04 'urn:v'" + body));
}

TEST(CFastInfosetWriter, DeclarationsStandInFront) {
    const ScriptedObject object("<a >");
    const std::string document = FromBinary(object.Written());
    int declaration = FInfoDecl_None;
    for (const std::string version : {"", " version='1.0'", " version='1.1'"})
        for (const std::string standalone : {"", " standalone='yes'", " standalone='no'"})
            EXPECT_EQ(FromBinary(object.Written(defaults, static_cast<FInfoDecl>(++declaration))),
                      "<?xml" + version + " encoding='finf'" + standalone + "?>" + document);
    for (const int i : {-1, 10})
        EXPECT_EQ(InvalidParam([&] { object.Written(defaults, static_cast<FInfoDecl>(i)); }),
                  "There is no FInfoDecl [" + std::to_string(i) + "]");
}

TEST(CFastInfosetWriter, RefusesWhatHasNoForm) {
    const auto failure = [](Encoding encoding, const std::string& words) {
        const std::string message = Failure([&] { Write(words, WithEncoding(encoding)); });
        const std::string start = "Failed to write FastInfoset. ";
        return message.starts_with(start) ? message.substr(start.size()) : message;
    };
    const auto unknown = static_cast<CFastInfosetContext::EncodingType>(3);
    EXPECT_EQ(failure({ByAlphabet, 0}, "<a @b=1 >"), "Invalid Restricted Alphabet value [0]");
    EXPECT_EQ(failure({ByAlphabet, 3}, "<a '1 >"), "Invalid Restricted Alphabet value [3]");
    EXPECT_EQ(failure({ByAlgorithm, 0}, "<a @b=1 >"), "Invalid Encoding Algorithm value [0]");
    EXPECT_EQ(failure({ByAlgorithm, 11}, "<a '1 >"), "Invalid Encoding Algorithm value [11]");
    EXPECT_EQ(failure({unknown, 1}, "<a @b=1 >"), "Unknown encoding in EncodedCharacterStringBit5.");
    EXPECT_EQ(failure({unknown, 1}, "<a '1 >"), "Unknown encoding in EncodedCharacterStringBit7.");
    const std::string notFound = "Invalid character not found for Restricted Alphabet.";
    EXPECT_EQ(failure({ByAlphabet, 1}, "<a @b=1E5 >"), notFound); // the alphabet has a lower-case e only
    EXPECT_EQ(failure({ByAlphabet, 2}, "<a '10:00:00.5 >"), notFound);
    EXPECT_EQ(failure({ByAlphabet, 2}, "<a '10:00:00+01:00 >"), notFound);
    EXPECT_EQ(failure({}, "< >"), "A name or namespace has no character that UTF-8 can hold.");
}

TEST(CFastInfosetWriter, ChecksTheOrderOfCalls) {
    for (const char* words : {"<a ' @b=1 >", "<a ' nil >", "<a ' type=T >"})
        EXPECT_EQ(Failure([&] { Write(words); }), "Attributes must be added before elements");
    for (const char* words : {"<a", "<a <a >"}) // also a root of which nothing is written yet
        EXPECT_EQ(Failure([&] { Write(words); }), "An Element has not been closed.");
    for (const char* words : {"'x", ">", "@b=1", "nil"})
        EXPECT_EQ(InvalidState([&] { Write(words); }), "There is no open element to write to");
}

TEST(CFastInfosetWriter, WritesALeafAsThreeOperationsWould) {
    const CXmlSerializationContext numbers = WithEncoding({ByAlphabet, 1}); // all texts have to be numbers
    const std::vector<std::u16string> digits = {u"",        u"1", u"12345",
                                                u"1234567", u"1", std::u16string(90, u'7')};
    std::vector<std::u16string> texts = {u"x", u"\u00e9", u"\xD800", std::u16string(300, u'\u20ac')};
    texts.insert(texts.end(), digits.begin(), digits.end());
    const auto written = [&](bool atOnce, const std::string& before, const char16_t* uri,
                             const CXmlSerializationContext& context) {
        const ScriptedObject object([&](CXmlWriter& writer) {
            for (const std::string& words : {before, "<m "s, "<m +q=urn:x +=urn:y "s, "> > "s}) {
                RunScript(writer, words);
                for (const auto* name : {u"e", u"name", u"e\1b", u"a_long_name_of_an_element"})
                    for (const std::u16string& text : &context == &numbers ? digits : texts)
                        WriteLeaf(writer, atOnce, name, uri, text);
            }
            for (auto open = std::ranges::count(before, '<') - std::ranges::count(before, '>'); open > 0;
                 --open)
                writer.EndElement();
        });
        return Hex(object.Written(context));
    };
    for (const char* before : {"", "<a ", "<a @b=1 ", "<a '1 <b > ", "<{urn:x}a ", "+=urn:x <{urn:x}a ",
                               "+p=urn:x <{urn:y}a +q=urn:y "})
        for (const char16_t* uri : {u"", u"urn:x", u"urn:y"})
            for (const CXmlSerializationContext* context : {&defaults, &numbers})
                EXPECT_EQ(written(true, before, uri, *context), written(false, before, uri, *context))
                    << before;
    EXPECT_EQ(
        Failure([] { ScriptedObject([](CXmlWriter& w) { WriteLeaf(w, true, u"", u"", u"1"); }).Written(); }),
        "Failed to write FastInfoset. A name or namespace has no character that UTF-8 can hold.");
}

} // namespace
