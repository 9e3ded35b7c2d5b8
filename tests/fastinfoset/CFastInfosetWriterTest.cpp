#include <KzXmlLib10/fastinfoset/CFastInfosetWriter.h>

#include "support/Failure.h"
#include "support/FastInfoset.h"
#include "support/TempDir.h"

#include <KzXmlLib10/xml/CBinaryStream.h>
#include <KzXmlLib10/xml/Compression.h>

#include <gtest/gtest.h>

#include <filesystem>

using namespace KzXmlLib10;
using namespace KzXmlLib10::support;

namespace {

using Encoding = CFastInfosetContext::EncodedCharacterString;
constexpr auto ByAlphabet = CFastInfosetContext::EncodingType_RestrictedAlphabet;
constexpr auto ByAlgorithm = CFastInfosetContext::EncodingType_Algorithm;

std::string Hex(const CBinaryData& data) { return ToUtf8(data.GetAsHexString()); }

/// The hexadecimal form of a document without options whose root, "a", has `body` behind its name.
std::string Root(const std::string& body, const char* start = "38 F0") {
    return Hex(Bytes("E0 00 00 01 00" + std::string(start) + "3C 00 'a'" + body));
}

void Text(CXmlWriter& writer, const std::u16string& text, ItemType type = ItemType_string) {
    writer.WriteText(text, type);
}

void Attribute(CXmlWriter& writer, const std::u16string& name, const std::u16string& value,
               ItemType type = ItemType_string) {
    writer.WriteAttribute(name, u"", value, type);
}

/// What the calls write inside an element "a" in no namespace.
std::string Inside(const ScriptedObject::Script& script,
                   const CXmlSerializationContext& context = CXmlSerializationContext()) {
    return Hex(FastInfosetOf(
        [&](CXmlWriter& writer) {
            writer.StartElement(u"a", u"");
            script(writer);
            writer.EndElement();
        },
        context));
}

CXmlSerializationContext WithEncoding(Encoding encoding, ItemType type = ItemType_string) {
    CXmlSerializationContext context;
    context.GetFIContext().SetEncoding(static_cast<unsigned long>(type), encoding);
    return context;
}

TEST(CFastInfosetWriter, EndsShareAByteInPairs) {
    const auto nested = [](int depth) {
        return Inside([=](CXmlWriter& writer) {
            for (int i = 0; i < depth; ++i)
                writer.StartElement(u"a", u"");
            for (int i = 0; i < depth; ++i)
                writer.EndElement();
        });
    };
    EXPECT_EQ(nested(0), Root("FF"));          // root and document
    EXPECT_EQ(nested(1), Root("00 FF F0"));    // element and root; the document alone
    EXPECT_EQ(nested(2), Root("00 00 FF FF")); // an index of a name in one byte
    EXPECT_EQ(nested(3), Root("00 00 00 FF FF F0"));
}

TEST(CFastInfosetWriter, WritesElementsAttributesAndText) {
    const auto written = Inside([](CXmlWriter& writer) {
        Attribute(writer, u"b", u"1");
        Attribute(writer, u"c", u"");
        writer.StartElement(u"d", u"");
        Attribute(writer, u"b", u"1");
        Text(writer, u"x");
        writer.EndElement();
        writer.StartElement(u"d", u"");
        Text(writer, u"x");
        Text(writer, u"longer");
        writer.EndElement();
        writer.StartElement(u"d", u"");
        Text(writer, u"");
        writer.EndElement();
    });
    EXPECT_EQ(written, Root("78 00 'b' 40 '1'" // attribute b, a literal; value 1, to the table
                            "78 00 'c' FF"     // attribute c, the empty value
                            "F0"               // end of the attributes
                            "7C 00 'd'"        // element d, with attributes
                            "00 80"            // attribute 1, value 1
                            "F0"               // end of the attributes, a byte of its own
                            "90 'x'"           // text x, to the table
                            "F0"               // end of d
                            "01"               // element 2
                            "A0"               // text 1
                            "82 03 'longer'"   // text of 6 characters, not to the table
                            "F0"
                            "01"       // element 2, without content
                            "FF F0",   // ends of d and a; end of the document
                            "78 F0")); // the flag of attributes stands in front of the namespaces
}

TEST(CFastInfosetWriter, ShortValuesGoToTheTables) {
    const ScriptedObject::Script script = [](CXmlWriter& writer) {
        for (const char16_t* name : {u"b", u"c"}) {
            Attribute(writer, name, u"12345");
            Attribute(writer, name, u"123456");
        }
        for (int i = 0; i < 2; ++i) {
            Text(writer, u"12345");
            Text(writer, u"123456");
        }
    };
    EXPECT_EQ(Inside(script), Root("78 00 'b' 44 '12345'  00 05 '123456'"
                                   "78 00 'c' 80          01 05 '123456'  F0"
                                   "92 02 '12345'  82 03 '123456'  A0  82 03 '123456'  FF",
                                   "78 F0"));
    CXmlSerializationContext context;
    context.GetFIContext().SetAttributeMaxAddLength(7);
    context.GetFIContext().SetElementMaxAddLength(0);
    EXPECT_EQ(Inside(script, context),
              Root("78 00 'b' 44 '12345'  00 45 '123456'"
                   "78 00 'c' 80          01 81  F0"
                   "82 02 '12345'  82 03 '123456'  82 02 '12345'  82 03 '123456'  FF",
                   "78 F0"));
}

TEST(CFastInfosetWriter, NamespaceAttributesStandOnTheRootOnly) {
    const auto written = FastInfosetOf([](CXmlWriter& writer) {
        writer.AddNamespace(u"p", u"urn:p");
        writer.AddNamespace(u"x", u"http://www.w3.org/XML/1998/namespace/more");
        writer.AddNamespace(u"", u"urn:e");
        writer.AddNamespace(u"q", u"");
        writer.SetDefaultNamespace(u"urn:d");
        writer.StartElement(u"a", u"urn:d");
        writer.StartElement(u"a", u"urn:p");
        writer.WriteAttribute(u"b", u"urn:p", u"1", ItemType_string);
        writer.WriteAttribute(u"b", u"urn:new", u"1", ItemType_string);
        writer.EndElement();
        writer.StartElement(u"a", u"urn:new");
        writer.EndElement();
        writer.EndElement();
    });
    EXPECT_EQ(Hex(written), Hex(Bytes("E0 00 00 01 00"
                                      "38"
                                      "CD 04 'urn:d'"        // the default namespace first
                                      "CE 00 'q'"            // then in the order of URIs: none
                                      "CD 04 'urn:e'"        // an empty prefix
                                      "CF 00 'p' 04 'urn:p'" // that of XML is left out
                                      "F0"
                                      "3D 81 00 'a'" // namespace 2
                                      "7F 82 83 80"  // prefix 3, namespace 4, local name 1
                                      "7B 82 83 00 'b' 40 '1'"
                                      "7B 01 'AA' 06 'urn:new' 81 80" // a prefix made up, declared nowhere
                                      "F0"                            // end of the attributes
                                      "F0"                            // end of p:a
                                      "3F 83 84 80"                   // the same prefix, made up again
                                      "FF F0")));
}

TEST(CFastInfosetWriter, TextBehindAChildComesWithoutTheMarkOfTheChild) {
    EXPECT_EQ(Inside([](CXmlWriter& writer) {
                  writer.StartElement(u"b", u"");
                  writer.EndElement();
                  Text(writer, u"x");
              }),
              Root("3C 00 'b' 90 'x' FF F0"));
}

TEST(CFastInfosetWriter, XsiTypeHasTwoFormsForPrefixes) {
    const std::string xsi = "28 'http://www.w3.org/2001/XMLSchema-instance'";
    EXPECT_EQ(Inside([](CXmlWriter& writer) {
                  writer.WriteXsiType(u"", u"T", ItemType_string);
                  writer.WriteXsiNil();
              }),
              Root("7B 01 'AA'" + xsi +
                       "03 'type' 40 'T'" // in no namespace: plain
                       "7B 81 81 02 'nil' 43 'true' F0 FF",
                   "78 F0"));
    const auto typed = [](bool hasPrefix) {
        return Hex(FastInfosetOf([=](CXmlWriter& writer) {
            if (hasPrefix)
                writer.AddNamespace(u"p", u"urn:p");
            writer.StartElement(u"a", u"");
            writer.WriteXsiType(u"urn:p", u"T", ItemType_string);
            writer.EndElement();
        }));
    };
    // The prefix of the type's namespace, with the namespace of xsi.
    EXPECT_EQ(typed(true), Root("7B 81" + xsi + "03 'type' 42 'p:T' F0 FF", "78 CF 00 'p' 04 'urn:p' F0"));
    // The name and namespace of the type itself.
    EXPECT_EQ(typed(false), Root("7B 01 'AA' 04 'urn:p' 00 'T' 43 'AA:T' F0 FF", "78 F0"));
}

TEST(CFastInfosetWriter, EncodesValuesByKind) {
    struct Case {
        Encoding encoding;
        const char16_t* value;
        const char* attribute; // behind the bits that tell a literal and the table
        const char* chunk;
    };
    const Case cases[] = {
        {{ByAlgorithm, 1}, u"0aff", "70 01 0AFF", "9C 01 0AFF"},
        {{ByAlgorithm, 2}, u"Cv8B", "70 12 0AFF01", "9C 06 00 0AFF01"},
        {{ByAlgorithm, 3}, u"-2", "70 21 FFFE", "9C 09 FFFE"},
        {{ByAlgorithm, 4}, u"7", "70 33 00000007", "9C 0E 01 00000007"},
        {{ByAlgorithm, 5}, u"7", "70 47 0000000000000007", "9C 12 05 0000000000000007"},
        {{ByAlgorithm, 6}, u"true", "70 50 38", "9C 14 38"},
        {{ByAlgorithm, 7}, u"1.5", "70 63 3FC00000", "9C 1A 01 3FC00000"},
        {{ByAlgorithm, 8}, u"1.5", "70 77 3FF8000000000000", "9C 1E 05 3FF8000000000000"},
        {{ByAlgorithm, 9}, u"ab", "70 80 AB", "9C 20 AB"},
        {{ByAlgorithm, 10}, u"\u00E9", "70 91 C3A9", "9C 25 C3A9"},
        {{ByAlphabet, 1}, u"-12e", "60 01 A12D", "98 01 A12D"}, // two to a byte
        {{ByAlphabet, 1}, u"-1.", "60 01 A1CF", "98 01 A1CF"},  // F pads
        {{ByAlphabet, 2}, u"1Z ", "60 11 1DEF", "98 05 1DEF"},
    };
    for (const auto& [encoding, value, attribute, chunk] : cases) {
        const CXmlSerializationContext context = WithEncoding(encoding, ItemType_char);
        EXPECT_EQ(Inside(
                      [&](CXmlWriter& writer) {
                          Attribute(writer, u"b", value, ItemType_char);
                          Text(writer, value, ItemType_char);
                          Text(writer, value, ItemType_string); // by its index, whatever its kind
                      },
                      context),
                  Root("78 00 'b'" + std::string(attribute) + "F0" + chunk + "A0 FF", "78 F0"));
    }
}

TEST(CFastInfosetWriter, ValuesWithoutBytesAreEmpty) {
    const auto written = [](const std::u16string& value, const CXmlSerializationContext& context) {
        return Inside(
            [&](CXmlWriter& writer) {
                Attribute(writer, u"b", value);
                Attribute(writer, u"c", u"v", ItemType_char);
                Text(writer, value);
                Text(writer, u"t", ItemType_char);
            },
            context);
    };
    const std::string expected = Root("78 00 'b' FF  78 00 'c' 40 'v' F0  90 't' FF", "78 F0");
    EXPECT_EQ(written(u"\xD800xy", CXmlSerializationContext()), expected);
    EXPECT_EQ(written(u"====", WithEncoding({ByAlgorithm, 2})), expected);
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
    const auto written = [&] {
        return Hex(FastInfosetOf(
            [](CXmlWriter& writer) {
                writer.AddNamespace(u"p", u"urn:p");
                writer.StartElement(u"a", u"");
                Attribute(writer, u"c", u"known");
                writer.StartElement(u"b", u"urn:p");
                Attribute(writer, u"d", u"new");
                Text(writer, u"text");
                writer.EndElement();
                writer.EndElement();
            },
            context));
    };
    const std::string body = "78 CF 81 81 F0  00  00 80 F0  41  78 00 'd' 42 'new' F0 A0 FF F0";
    const std::string expected = Hex(Bytes("E0 00 00 01  20 10 00  1A 'urn:quillon:vocabulary:none'" + body));
    EXPECT_EQ(written(), expected);
    EXPECT_EQ(written(), expected); // what the first document added is forgotten
    context.GetFIContext().SetExternalVocabularyURI(u"urn:v");
    EXPECT_EQ(written(), Hex(Bytes("E0 00 00 01  20 10 00  04 'urn:v'" + body)));
}

TEST(CFastInfosetWriter, DeclarationsStandInFront) {
    const char* const declarations[] = {
        "",
        "<?xml encoding='finf'?>",
        "<?xml encoding='finf' standalone='yes'?>",
        "<?xml encoding='finf' standalone='no'?>",
        "<?xml version='1.0' encoding='finf'?>",
        "<?xml version='1.0' encoding='finf' standalone='yes'?>",
        "<?xml version='1.0' encoding='finf' standalone='no'?>",
        "<?xml version='1.1' encoding='finf'?>",
        "<?xml version='1.1' encoding='finf' standalone='yes'?>",
        "<?xml version='1.1' encoding='finf' standalone='no'?>",
    };
    const ScriptedObject::Script script = [](CXmlWriter& writer) {
        writer.WriteProcessingInstruction(u"<?p?>");
        writer.WriteComment(u"c");
        writer.StartElement(u"a", u"");
        writer.WriteInlineSchema(u"<schema/>"); // none of the three leaves a trace
        writer.EndElement();
    };
    for (int i = 0; i <= 9; ++i) {
        const std::string expected = declarations[i];
        const CBinaryData written =
            FastInfosetOf(script, CXmlSerializationContext(), static_cast<FInfoDecl>(i));
        ASSERT_GT(written.GetLength(), expected.size());
        EXPECT_EQ(std::string(written.GetData(), written.GetData() + expected.size()), expected);
        EXPECT_TRUE(Hex(written).ends_with(Root("FF")));
    }
    for (const int unknown : {-1, 10})
        EXPECT_EQ(Failure<CKzInvalidParamException>([&] {
                      FastInfosetOf(script, CXmlSerializationContext(), static_cast<FInfoDecl>(unknown));
                  }),
                  "There is no FInfoDecl [" + std::to_string(unknown) + "]");
}

TEST(CFastInfosetWriter, RefusesWhatHasNoForm) {
    const auto attribute = [](Encoding encoding, const char16_t* value) {
        return Failure(
            [&] { Inside([&](CXmlWriter& w) { Attribute(w, u"b", value); }, WithEncoding(encoding)); });
    };
    const auto text = [](Encoding encoding, const char16_t* value) {
        return Failure([&] { Inside([&](CXmlWriter& w) { Text(w, value); }, WithEncoding(encoding)); });
    };
    const std::string failed = "Failed to write FastInfoset. ";
    const auto unknown = static_cast<CFastInfosetContext::EncodingType>(3);
    EXPECT_EQ(attribute({ByAlphabet, 0}, u"1"), failed + "Invalid Restricted Alphabet value [0]");
    EXPECT_EQ(text({ByAlphabet, 3}, u"1"), failed + "Invalid Restricted Alphabet value [3]");
    EXPECT_EQ(attribute({ByAlgorithm, 0}, u"1"), failed + "Invalid Encoding Algorithm value [0]");
    EXPECT_EQ(text({ByAlgorithm, 11}, u"1"), failed + "Invalid Encoding Algorithm value [11]");
    EXPECT_EQ(attribute({unknown, 1}, u"1"), failed + "Unknown encoding in EncodedCharacterStringBit5.");
    EXPECT_EQ(text({unknown, 1}, u"1"), failed + "Unknown encoding in EncodedCharacterStringBit7.");
    const std::string notFound = failed + "Invalid character not found for Restricted Alphabet.";
    EXPECT_EQ(attribute({ByAlphabet, 1}, u"1E5"), notFound); // the alphabet has a lower-case e only
    EXPECT_EQ(text({ByAlphabet, 2}, u"10:00:00.5"), notFound);
    EXPECT_EQ(text({ByAlphabet, 2}, u"10:00:00+01:00"), notFound);

    const auto element = [](const std::u16string& name, const std::u16string& uri) {
        return Failure([&] {
            Inside([&](CXmlWriter& writer) {
                writer.StartElement(name, uri);
                writer.EndElement();
            });
        });
    };
    const std::string noName = failed + "A name or namespace has no character that UTF-8 can hold.";
    EXPECT_EQ(element(u"", u""), noName);
    EXPECT_EQ(element(u"b", u"\xDC00"), noName);
}

TEST(CFastInfosetWriter, ChecksTheOrderOfCalls) {
    const std::string tooLate = "Attributes must be added before elements";
    EXPECT_EQ(Failure([] {
                  Inside([](CXmlWriter& w) {
                      Text(w, u"");
                      Attribute(w, u"b", u"");
                  });
              }),
              tooLate);
    EXPECT_EQ(Failure([] {
                  Inside([](CXmlWriter& w) {
                      Text(w, u"");
                      w.WriteXsiNil();
                  });
              }),
              tooLate);
    EXPECT_EQ(Failure([] {
                  Inside([](CXmlWriter& w) {
                      Text(w, u"");
                      w.WriteXsiType(u"u", u"T", ItemType_string);
                  });
              }),
              tooLate);
    // A root of which nothing is written yet is open, too.
    EXPECT_EQ(Failure([] { FastInfosetOf([](CXmlWriter& w) { w.StartElement(u"a", u""); }); }),
              "An Element has not been closed.");
    EXPECT_EQ(Failure([] { Inside([](CXmlWriter& w) { w.StartElement(u"a", u""); }); }),
              "An Element has not been closed.");
    const std::string noElement = "There is no open element to write to";
    EXPECT_EQ(Failure<CKzInvalidStateException>([] { FastInfosetOf([](CXmlWriter& w) { Text(w, u"x"); }); }),
              noElement);
    EXPECT_EQ(Failure<CKzInvalidStateException>([] { FastInfosetOf([](CXmlWriter& w) { w.EndElement(); }); }),
              noElement);
    EXPECT_EQ(
        Failure<CKzInvalidStateException>([] { FastInfosetOf([](CXmlWriter& w) { w.WriteXsiNil(); }); }),
        noElement);
}

TEST(CFastInfosetWriter, CompressesAndSavesDocuments) {
    const ScriptedObject object([](CXmlWriter& writer) {
        writer.StartElement(u"a", u"");
        Text(writer, std::u16string(1000, u'x'));
        writer.EndElement();
    });
    const CXmlSerializationContext context;
    const CBinaryData plain = object.ToFastInfosetStream(FInfoDecl_None, context, CompressionType_None);
    CBinaryData zipped = plain;
    Compress(zipped, CompressionType_GZip);
    EXPECT_EQ(object.ToFastInfosetStream(FInfoDecl_None, context, CompressionType_GZip), zipped);

    const TempDir dir;
    const auto saved = [&](const char* name, CompressionType compression) {
        object.ToFastInfosetFile(dir.Path16(name).c_str(), FInfoDecl_None, context, compression);
        const std::string bytes = dir.Read(name);
        CBinaryData data;
        data.SetBuffer(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
        return Hex(data);
    };
    EXPECT_EQ(saved("plain", CompressionType_None), Hex(plain));
    EXPECT_EQ(saved("zipped", CompressionType_GZip), Hex(zipped));
    EXPECT_EQ(Failure([&] { saved("zlib", CompressionType_ZLib); }),
              "ZLIB Compression only available for To Stream methods.");
    EXPECT_FALSE(std::filesystem::exists(dir.Path("zlib")));
}

} // namespace
