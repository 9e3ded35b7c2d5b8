#include "fastinfoset/CFastInfosetReader.h"

#include "support/DumpTree.h"
#include "support/Failure.h"
#include "support/FastInfoset.h"
#include "support/Model.h"

#include <KzXmlLib10/xml/CXmlDocument.h>
#include <KzXmlLib10/xml/Compression.h>

#include <gtest/gtest.h>

#include <functional>

using namespace KzXmlLib10;
using namespace KzXmlLib10::support;

namespace {

const CXmlSerializationContext defaults;

void Load(CXmlDocument& document, const CBinaryData& bytes) {
    document.LoadXmlStream(bytes.GetData(), bytes.GetLength());
}

/// The tree of a document, or the failure to read it, without its first words.
std::string Read(const CBinaryData& bytes, const CXmlSerializationContext& context = defaults) {
    CXmlDocument document(context);
    const std::string failure = Failure([&] { Load(document, bytes); });
    const std::string start = "Failed to parse FastInfoset. ";
    if (failure == "no failure")
        return DumpTree(document.GetDocumentElement());
    return failure.starts_with(start) ? failure.substr(start.size()) : failure;
}

/// The same for what stands behind the identification and the byte of options.
std::string ReadBody(const std::string& body) { return Read(Bytes("E0 00 00 01 00" + body)); }

/// The same for what stands in the root, an element "a", up to its end.
std::string ReadContent(const std::string& content) { return ReadBody("3C 00 'a'" + content + "FF"); }

/// The same for the attributes of the root, up to the end of their list.
std::string ReadAttributes(const std::string& attributes) {
    return ReadBody("7C 00 'a'" + attributes + "FF F0");
}

CBinaryData Concatenated(const std::string& start, const CBinaryData& piece, std::size_t count,
                         const std::string& end) {
    CBinaryData bytes = Bytes(start);
    for (std::size_t i = 0; i < count; ++i)
        bytes.Append(piece);
    bytes.Append(Bytes(end));
    return bytes;
}

struct Row {
    const char* bytes;
    const char* result;
};

void Check(std::string (*read)(const std::string&), std::initializer_list<Row> rows) {
    for (const auto& [bytes, result] : rows)
        EXPECT_EQ(read(bytes), result) << bytes;
}

TEST(CFastInfosetReader, ReadsNamesInAllForms) {
    Check(ReadBody,
          {
              {"3C 00 'a' FF", "a"},
              {"3D 04 'urn:p' 00 'a' FF", "{urn:p}a"},
              {"3F 00 'p' 04 'urn:p' 00 'a' FF", "{urn:p}a"},
              {"3F 00 'p' 04 'urn:p' 00 'a' 00 FF F0", "{urn:p}a[{urn:p}a]"}, // by index
              {"3F 00 'p' 04 'urn:p' 00 'a' 3F 81 81 80 FF F0",
               "{urn:p}a[{urn:p}a]"},                                            // by indices of its parts
              {"3F 80 80 00 'a' FF", "{http://www.w3.org/XML/1998/namespace}a"}, // known from the start
              {"3D 04 'urn:p' 00 'a' 3C 80 01 00 FF FF", "{urn:p}a[a[a[{urn:p}a]]]"},
              {"38 CC CD 04 'urn:d' CE 00 'p' CF 81 81 F0 3D 81 00 'a' FF", "{urn:d}a"},
              {"7C 00 'a' 7B 00 'p' 04 'urn:p' 00 'b' 40 '1' 00 80 79 81 80 FF FF",
               "a[@{urn:p}b=1 @{urn:p}b=1 @{urn:p}a=]"},
              {"3C 02 62 00 63 FF", "b"}, // a name ends at a zero
              {"3C 02 62 C0 63 FF", "b"}, // and at malformed UTF-8
          });
}

TEST(CFastInfosetReader, KeepsTheLastDeclarationOfAPrefix) {
    CXmlDocument document;
    Load(document, Bytes("E0 00 00 01 00 38 CD 04 'urn:d' CF 00 'p' 04 'urn:p' F0 3C 00 'a'"
                         "38 CF 81 81 CE 00 'q' F0 00 FF F0"));
    EXPECT_EQ(document.LookupNamespaceFromAlias(u""), u"urn:d");
    EXPECT_EQ(document.LookupNamespaceFromAlias(u"p"), u"urn:d");
    EXPECT_EQ(document.LookupNamespaceFromAlias(u"q"), u"");
}

TEST(CFastInfosetReader, ReadsValuesInAllForms) {
    Check(ReadAttributes, {
                              {"78 00 'b' 00 'v'", "a[@b=v]"},
                              {"78 00 'b' FF", "a[@b=]"},
                              // Only those with the bit for the table are counted.
                              {"78 00 'b' 00 'u' 00 40 'v' 00 00 'w' 00 40 'x' 00 80 00 81",
                               "a[@b=u @b=v @b=w @b=x @b=v @b=x]"},
                              {"78 00 'b' 02 'v' 0D 'w'", "a[@b=v\\rw]"},
                          });
    Check(ReadContent, {
                           {"80 'u' 92 00 'vwx' 90 'y' A0 A1", "a[\"uvwxyvwxy\"]"},
                           {"81 C3A9 C8 00 'e' 80 '1' CB 00 'e' 00 's' 80 80 '2'", "a[\"\u00E9"
                                                                                   "12\"]"},
                           {"80 '1' E1 00 't' 00 'd' 80 '2' E2 00 'c' 80 '3'", "a[\"123\"]"},
                           {"82 00 'x' 0D 'y'", "a[\"xy\"]"},        // carriage returns go
                           {"82 00 'x' 00 'y' 80 'z'", "a[\"xz\"]"}, // a piece of text ends at a zero
                           {"82 00 'x' C0 'y' 80 'z'", "a[\"xz\"]"}, // and at malformed UTF-8
                       });
}

TEST(CFastInfosetReader, DecodesEveryAlgorithmAndAlphabet) {
    Check(
        ReadAttributes,
        {
            {"78 00 'b' 70 01 0AFF", "a[@b=0AFF]"},
            {"78 00 'b' 70 12 0AFF01", "a[@b=Cv8B]"},
            {"78 00 'b' 70 23 FFFE0001", "a[@b=-2 1]"},
            {"78 00 'b' 70 33 80000000", "a[@b=-2147483648]"},
            {"78 00 'b' 70 47 7FFFFFFFFFFFFFFF", "a[@b=9223372036854775807]"},
            {"78 00 'b' 70 50 38", "a[@b=true]"},
            {"78 00 'b' 70 63 3FC00000", "a[@b=0.7470588]"}, // the first byte stands for all four
            {"78 00 'b' 70 77 3FF8000000000000", "a[@b=1.5]"},
            {"78 00 'b' 70 88 07 00112233445566778899AABBCCDDEEFF", "a[@b=00112233445566778899AABBCCDDEEFF]"},
            {"78 00 'b' 70 91 C3A9", "a[@b=\u00E9]"},
            {"78 00 'b' 60 01 A12D", "a[@b=-12e]"},
            {"78 00 'b' 60 11 1DEF", "a[@b=1Z ]"},
            {"78 00 'b' 70 20 00", "Invalid value for SHORT byte encoding."},
            {"78 00 'b' 70 A0 00", "Unknown byte encoding."},
            {"78 00 'b' 7F F0 00", "Unknown byte encoding."},
            {"78 00 'b' 60 00 F1", "The position [15] lies beyond the Restricted Alphabet."},
        });
    Check(ReadContent, {
                           {"9C 09 FFFE A0", "a[\"-2-2\"]"},
                           {"8C 25 C3A9", "a[\"\u00E9\"]"},
                           {"88 05 1DEF", "a[\"1Z \"]"},
                           {"8F FC 00", "Unknown byte encoding."},
                       });
    const std::string noAlphabet =
        "Invalid Encoding of Restricted Alphabet. Alphabet must contain between 2 and "
        "2^20 characters.";
    EXPECT_EQ(ReadAttributes("78 00 'b' 60 20 00"), noAlphabet);
    EXPECT_EQ(ReadContent("8B FC 00"), noAlphabet);
    EXPECT_EQ(ReadAttributes("78 00 'b' 11 0041"), "Unsupported Feature UTF16BE string.");
    EXPECT_EQ(ReadContent("85 0041"), "Unsupported Feature UTF16BE string.");
}

TEST(CFastInfosetReader, EndsStandAloneOrInPairs) {
    Check(ReadBody,
          {
              {"3C 00 'a' 00 F0 F0 F0", "a[a]"},
              {"3C 00 'a' 00 00 FF 00 FF", "a[a[a] a]"},
              {"3C 00 'a' 00 FF", "a[a]"},                // what follows the root is not looked at
              {"7C 00 'a' 78 00 'b' FF F0 FF", "a[@b=]"}, // of the attributes and, on its own, of the element
              {"3C 00 'a' 7C 80 78 80 FF FF 00 FF", "a[a[@a=] a]"}, // of both together
              {"7C 00 'a' F0 F0", "a"},
          });
}

/// One with all optional components, and each of their optional parts once there and once not.
const std::string everything =
    "7F"
    "01  00 'u' 00 'd'  00 'u' 02 'eee'"     // additional data: URIs and octets
    "1F FF"                                  // initial vocabulary with all its tables:
    "00 'x'"                                 // external vocabulary
    "00 01 'ab'  00 00 'u'"                  // an alphabet, an algorithm
    "01 00 'p' 00 'q'  00 00 'n'  00 00 'l'" // prefixes, namespaces, local names
    "00 00 'o'  00 00 'r'"                   // other names, other URIs
    "00 00 'v'  00 11 0041  00 2F F0 'z'"    // values in UTF-8, UTF-16BE, by alphabet 256
    "01 03 00 00 00  00 00  00 01 00 00"     // element names with all parts and with one; attribute names
    "C3 00 'n' 00 's' 00 'p'  C0 00 'm'  F0" // notations
    "D1 00 'n' 00 's' 00 'p' 00 'o'  D0 00 'n' 80 00 'o'  F0" // unparsed entities
    "04 'UTF-8'  01  02 '1.0'"                                // encoding, standalone, version
    "E1 00 't' 03 F09F9880  E2 C0 41  E2 FF"                  // an instruction; comments by index
    "C7 00 's' 00 'p' E1 80 FF E1 00 't' 00 'd' F0"           // a document type with instructions
    "78 CC CD 04 'urn:d' CE 00 'p' CF 80 81 F0 7D 81 00 'a'"
    "78 00 'b' 44 'value'  7B 81 81 00 'c' 80  00 60 11 1DEF  F0"
    "E1 00 't' 00 'd'  E2 00 'c'  CB 00 'e' 00 's' 00 'p'"
    "92 01 'text'  3C 00 'x' A0 8C 12 05 0000000000000007 F0  00 40 00 FF FF FF";

TEST(CFastInfosetReader, ReadsPastWhatItDoesNotKeep) {
    EXPECT_EQ(Read(Bytes("E0 00 00 01" + everything)),
              "{urn:d}a[@b=value @{urn:d}c=value @b=1Z  \"text\" x[\"text7\"] {urn:d}a[{urn:d}a[@b=]]]");
    Check(ReadBody, {
                        {"C4 F0 3C 00 'a' FF", "a"},
                        {"C6 00 's' 3C 00 'a' FF", "a"}, // a document type without its end
                        {"D5 E0 C3 3C 00 'a' FF", "a"},  // unknown items
                        {"F0 3C 00 'a' FF", "null"},
                        {"E2 00 'c' FF", "null"},
                    });
    const std::string head = "E0 00 00 01";
    // 129 items have a length of three bytes.
    EXPECT_EQ(Read(Concatenated(head + "40 800000", Bytes("00 'u' 00 'd'"), 129, "3C 00 'a' FF")), "a");
    // The tables in the document have no effect.
    EXPECT_EQ(Read(Bytes(head + "20 0100 00 00 'n' 3D 81 00 'a' FF")),
              "The index [2] lies beyond its table.");
    EXPECT_EQ(Read(Bytes(head + "40 90 00")), "Invalid Encoding of the length of a sequence.");
    EXPECT_EQ(Read(Bytes(head + "10 C8 00")), "Invalid Encoding of Notations or Unparsed Entities.");
    EXPECT_EQ(Read(Bytes(head + "08 C0 00")), "Invalid Encoding of Notations or Unparsed Entities.");
}

TEST(CFastInfosetReader, RefusesWhatHasNoMeaning) {
    const char* const second = "Invalid Encoding of integers 1 To 2^20 type  on the second bit of an octet.";
    Check(ReadBody,
          {
              {"3E 00 'p' 00 'a' FF", "Invalid QName type Prefix without Namespace."},
              {"3C 41", "Invalid NonEmptyOctetString type  on the second bit of an octet."},
              {"3C 61", "Invalid NonEmptyOctetString type  on the second bit of an octet."},
              {"31", "Invalid Encoding of integers 1 To 2^20 type  on the third bit of an octet."},
              {"3F F0", second},
              {"3C 60 FFFFFFFF 'a'", "Unexpected End of File."}, // 2^32 + 320 bytes, which is not 320
          });
    Check(ReadAttributes,
          {
              {"77", second},
              {"78 00 'b' F0", "Invalid Encoding of integers 0 To 2^20 type  on the second bit of an octet."},
              {"78 00 'b' 09", "Invalid NonEmptyOctetString type  on the fifth bit of an octet."},
              {"78 00 'b' 0C FFFFFFFF", "Unexpected End of File."},
          });
    Check(ReadContent,
          {
              {"B9", "Invalid Encoding of integers 1 To 2^20 type  on the fourth bit of an octet."},
              {"83 FFFFFFFF", "Unexpected End of File."},
              {"CC", "Invalid Encoding of Element type."},
              {"E0", "Invalid Encoding of Element type."},
              {"F1", "Invalid Encoding of Element type."},
          });
}

TEST(CFastInfosetReader, ChecksEveryIndexAgainstItsTable) {
    Check(ReadBody, {
                        {"00 F0", "The index [1] lies beyond its table."},
                        {"3D 81 00 'a' FF", "The index [2] lies beyond its table."},
                        {"3F 81 80 00 'a' FF", "The index [2] lies beyond its table."},
                        {"3C 80 FF", "The index [1] lies beyond its table."},
                        {"30 0FFFFF FF", "The index [1574944] lies beyond its table."},
                        {"38 CE 81 F0", "The index [2] lies beyond its table."},
                        {"38 CD E00000 F0", "The index [8257] lies beyond its table."},
                    });
    Check(ReadAttributes, {
                              {"00", "The index [1] lies beyond its table."},
                              {"78 00 'b' 80", "The index [1] lies beyond its table."},
                          });
    Check(ReadContent, {
                           {"A0", "The index [1] lies beyond its table."},
                           {"B8 000000", "The index [263185] lies beyond its table."},
                       });
}

TEST(CFastInfosetReader, RecognisesDocumentsByTheirFirstBytes) {
    const CBinaryData document = FastInfosetOf([](CXmlWriter& writer) {
        writer.StartElement(u"a", u"");
        writer.WriteText(std::u16string(500, u'x'), ItemType_string);
        writer.EndElement();
    });
    const std::string tree = "a[\"" + std::string(500, 'x') + "\"]";
    for (int declaration = FInfoDecl_NoVersion; declaration <= FInfoDecl_11NotStandalone; ++declaration)
        EXPECT_EQ(Read(FastInfosetOf(
                      [](CXmlWriter& writer) {
                          writer.StartElement(u"a", u"");
                          writer.EndElement();
                      },
                      defaults, static_cast<FInfoDecl>(declaration))),
                  "a");
    for (const CompressionType type : {CompressionType_GZip, CompressionType_ZLib}) {
        CBinaryData packed = document;
        Compress(packed, type);
        EXPECT_EQ(Read(packed), tree);
    }
    // Anything else is text.
    EXPECT_EQ(Read(Bytes("E0 00 00 01")), "syntax error at line 1");
    EXPECT_EQ(Read(Bytes("'<?xml encoding=\"finf\"?>' E0 00 00 01 00")),
              "XML declaration not well-formed at line 1");
    const CBinaryData declared = FastInfosetOf([](CXmlWriter&) {}, defaults, FInfoDecl_10);
    for (std::uint32_t length = 1; length < declared.GetLength() - 2; ++length) {
        CBinaryData cut;
        cut.SetBuffer(declared.GetData(), length);
        EXPECT_TRUE(Read(cut).ends_with(" at line 1")) << length;
    }
}

TEST(CFastInfosetReader, ADocumentWithoutARootFillsNoObject) {
    const kit::Model model(u"a");
    const CSmartPtr<kit::CModelObject> object = model.New();
    EXPECT_EQ(Failure([&] { object->FromXmlStream(Bytes("E0 00 00 01 00 F0"), defaults); }),
              "Invalid or empty XML document");
}

TEST(CFastInfosetReader, LeavesTheCallbackForElementsAlone) {
    CXmlDocument document([](CXmlElement*) { return true; });
    Load(document, Bytes("E0 00 00 01 00 3C 00 'a' 3C 00 'b' FF F0"));
    EXPECT_EQ(DumpTree(document.GetDocumentElement()), "a[b]");
}

TEST(CFastInfosetReader, DamagedDocumentsAreReadOrRefused) {
    const CBinaryData handMade = Bytes("E0 00 00 01" + everything);
    const CBinaryData written = FastInfosetOf(
        [](CXmlWriter& writer) {
            writer.AddNamespace(u"p", u"urn:p");
            writer.StartElement(u"order", u"urn:p");
            for (int i = 0; i < 3; ++i) {
                writer.StartElement(u"item", u"urn:q");
                writer.WriteAttribute(u"id", u"", u"1234567", ItemType_string);
                writer.WriteXsiNil();
                writer.WriteText(u"some text", ItemType_string);
                writer.EndElement();
            }
            writer.EndElement();
        },
        defaults, FInfoDecl_NoVersion);
    EXPECT_EQ(Failure([&] {
                  CXmlDocument document;
                  Load(document, written);
              }),
              "no failure");
    for (const CBinaryData& whole : {handMade, written}) {
        const std::uint32_t start = whole == written ? 24 + 4 : 4;
        for (std::uint32_t length = start + 1; length < whole.GetLength() - 1; ++length) {
            CBinaryData cut;
            cut.SetBuffer(whole.GetData(), length);
            EXPECT_EQ(Read(cut), "Unexpected End of File.") << length;
        }
        for (std::uint32_t bit = 0; bit < 8 * whole.GetLength(); ++bit) {
            CBinaryData flipped = whole;
            flipped[bit / 8] ^= static_cast<unsigned char>(1 << bit % 8);
            CXmlDocument document;
            (void)Failure([&] { Load(document, flipped); }); // any other exception ends the test
        }
    }
}

TEST(CFastInfosetReader, DepthNeedsNoStack) {
    constexpr std::size_t depth = 200000;
    CBinaryData bytes = Concatenated("E0 00 00 01 00 3C 00 'a'", Bytes("00"), depth - 1, "");
    bytes.Append(Concatenated("", Bytes("FF"), depth / 2, "F0"));
    CXmlDocument document;
    Load(document, bytes);
    std::size_t levels = 0;
    for (const CXmlElement* e = document.GetDocumentElement(); e; e = e->GetFirstElement())
        ++levels;
    EXPECT_EQ(levels, depth);
}

TEST(CFastInfosetReader, WhatReferencesAddIsLimited) {
    struct Shape {
        const char* start; // up to the length of a string of 65536 characters and `more`
        std::size_t more;
        const char* reference;
    };
    for (const auto& [start, more, reference] : std::initializer_list<Shape>{
             {"3C 00 'a' 93 00010000", 259, "A0"},
             {"3C 60 00010000", 321, "00"},
             {"38 CD 60 00010000", 321, "CD 81"},
             {"7C 00 'a' 78 00 'b' 4C 00010000", 265, "00 80"},
         }) {
        const auto read = [&](std::size_t references) {
            CBinaryData bytes =
                Concatenated(std::string("E0 00 00 01 00") + start, Bytes("78"), 65536 + more, "");
            bytes.Append(Concatenated("", Bytes(reference), references, ""));
            const std::string limit = std::to_string((64ull << 20) + 256ull * bytes.GetLength());
            const std::string result = Read(bytes);
            return result ==
                           "The names, values and texts of the document come to more than " + limit + " bytes"
                       ? "refused"
                       : result;
        };
        EXPECT_EQ(read(100), "Unexpected End of File.") << start;
        EXPECT_EQ(read(1000), "refused") << start;
    }
}

/// A document with names, values and texts of all sizes, and indices into all tables.
void WriteManySizes(CXmlWriter& writer) {
    const auto name = [](int i) {
        const std::string digits = "n" + std::to_string(i);
        return std::u16string(digits.begin(), digits.end());
    };
    writer.AddNamespace(u"p", u"urn:p");
    writer.SetDefaultNamespace(u"urn:d");
    writer.StartElement(u"root", u"urn:d");
    writer.WriteAttribute(u"b", u"urn:p", u"v", ItemType_string);
    for (const int length : {1, 8, 9, 64, 65, 258, 264, 265, 320, 321, 70000}) {
        const std::u16string text(static_cast<std::size_t>(length), u'\u00E9');
        writer.StartElement(std::u16string(static_cast<std::size_t>(length), u'n'), u"urn:new");
        writer.WriteAttribute(u"b", u"", text, ItemType_string);
        writer.WriteText(text, ItemType_string);
        writer.EndElement();
    }
    for (const int round : {1, 2}) {
        for (int i = 1; i <= 2100; ++i) {
            writer.StartElement(name(i), round == 1 ? u"urn:p" : u"urn:d");
            writer.WriteAttribute(name(i), u"", name(i), ItemType_string);
            writer.WriteText(name(i), ItemType_string);
            writer.EndElement();
        }
    }
    writer.EndElement();
}

TEST(CFastInfosetReader, ReadsTheTreeThatTheTextHas) {
    const ScriptedObject object(WriteManySizes);
    CXmlDocument text;
    text.LoadXml(object.ToXml(false, false, EOLType_LF, defaults).c_str());
    EXPECT_EQ(Read(object.ToFastInfosetStream(FInfoDecl_None, defaults, CompressionType_None)),
              DumpTree(text.GetDocumentElement()));
}

TEST(CFastInfosetReader, ObjectsComeBackAsTheyWent) {
    kit::Model item(u"item", KzXmlLib10Data::XmlElementGroupType_Sequence,
                    KzXmlLib10Data::XmlElementType_Element, u"urn:i");
    item.Attribute(u"id", kit::Required, ItemType_i4)
        .Attribute(u"on", kit::Optional, ItemType_boolean)
        .Prim(u"name", kit::Mnd, ItemType_string)
        .Prim(u"weight", kit::Mnd, ItemType_r8)
        .Prim(u"small", kit::Opt, ItemType_ui1)
        .Prim(u"big", kit::Opt, ItemType_ui8, true)
        .Prim(u"none", kit::Opt, ItemType_i8, true);
    const CSmartPtr<kit::CModelObject> object = item.New();
    object->FromXml(
        u"<item xmlns='urn:i' xmlns:i='http://www.w3.org/2001/XMLSchema-instance' id='-7' on='true'>"
        u"<name>K\u00E4se &amp; Brot</name><weight>0.1</weight><small>200</small>"
        u"<big>9223372036854775807</big><none i:nil='true'/></item>",
        defaults);

    CXmlSerializationContext suggested;
    suggested.GetFIContext().SetSuggestedValues();
    CXmlSerializationContext prepared = suggested;
    prepared.GetFIContext().GetVocabulary().AddElement(u"", u"", u"name");
    prepared.GetFIContext().GetVocabulary().AddAttribute(u"", u"", u"id");
    prepared.GetFIContext().GetVocabulary().AddElementValue(u"18");
    prepared.GetFIContext().SetUseGeneratedVocabulary(true);
    for (const CXmlSerializationContext& context : {defaults, suggested, prepared}) {
        const CSmartPtr<kit::CModelObject> copy = item.New();
        copy->FromXmlStream(object->ToFastInfosetStream(FInfoDecl_None, context, CompressionType_None),
                            context);
        EXPECT_EQ(ToUtf8(copy->ToXml(false, false, EOLType_LF, defaults)),
                  ToUtf8(object->ToXml(false, false, EOLType_LF, defaults)));
    }
}

} // namespace
