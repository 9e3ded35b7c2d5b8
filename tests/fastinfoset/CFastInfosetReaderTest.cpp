#include "fastinfoset/CFastInfosetReader.h"
#include "support/Test.h"

namespace {

const CXmlSerializationContext defaults;

void Load(CXmlDocument& document, const CBinaryData& bytes) {
    document.LoadXmlStream(bytes.GetData(), bytes.GetLength());
}

/// The tree of a document, or the failure to read it, without its first words.
std::string Read(const CBinaryData& bytes, const CXmlSerializationContext& context = defaults) {
    const std::string result = Outcome([&] {
        CXmlDocument document(context);
        Load(document, bytes);
        return DumpTree(document.GetDocumentElement());
    });
    const std::string start = "Failed to parse FastInfoset. ";
    return result.starts_with(start) ? result.substr(start.size()) : result;
}

const std::string start = "E0 00 00 01 00";

CBinaryData Concatenated(const std::string& head, const CBinaryData& piece, std::size_t count) {
    CBinaryData bytes = HexBytes(head);
    for (std::size_t i = 0; i < count; ++i)
        bytes.Append(piece);
    return bytes;
}

/// Compares what is read of the bytes behind the identification and the byte of options. Behind a "@" stand
/// the attributes of a root "a"; behind a "=", the value of its attribute "b"; behind a ".", its content.
void Check(std::initializer_list<Row> rows) {
    for (const Row& row : rows) {
        const std::string bytes = ToUtf8(row.text), rest = bytes.substr(1);
        const std::string body = bytes[0] == '@'   ? "7C 00 'a'" + rest + "FF F0"
                                 : bytes[0] == '=' ? "7C 00 'a' 78 00 'b'" + rest + "FF F0"
                                 : bytes[0] == '.' ? "3C 00 'a'" + rest + "FF"
                                                   : bytes;
        EXPECT_EQ(Read(HexBytes(start + body)), row.expected) << bytes;
    }
}

TEST(CFastInfosetReader, ReadsNamesInAllForms) {
    Check({"3C 00 'a' FF -> a", "3D 04 'urn:p' 00 'a' FF -> {urn:p}a",
           "3F 00 'p' 04 'urn:p' 00 'a' FF -> {urn:p}a",
           "3F 00 'p' 04 'urn:p' 00 'a' 00 FF F0 -> {urn:p}a[{urn:p}a]",          // by index
           "3F 00 'p' 04 'urn:p' 00 'a' 3F 81 81 80 FF F0 -> {urn:p}a[{urn:p}a]", // by indices of its parts
           "3F 80 80 00 'a' FF -> {http://www.w3.org/XML/1998/namespace}a",       // known from the start
           "3D 04 'urn:p' 00 'a' 3C 80 01 00 FF FF -> {urn:p}a[a[a[{urn:p}a]]]",
           "38 CC CD 04 'urn:d' CE 00 'p' CF 81 81 F0 3D 81 00 'a' FF -> {urn:d}a",
           "@ 7B 00 'p' 04 'urn:p' 00 'b' 40 '1' 00 80 79 81 80 FF -> a[@{urn:p}b=1 @{urn:p}b=1 @{urn:p}a=]",
           "3C 02 62 00 63 FF -> b",   // a name ends at a zero
           "3C 02 62 C0 63 FF -> b"}); // and at malformed UTF-8
}

TEST(CFastInfosetReader, KeepsTheLastDeclarationOfAPrefix) {
    CXmlDocument document([](CXmlElement*) { return true; }); // is for text alone
    Load(document, HexBytes(start + "38 CD 04 'urn:d' CF 00 'p' 04 'urn:p' F0 3C 00 'a'"
                                    "38 CF 81 81 CE 00 'q' F0 00 FF F0"));
    for (const auto& [prefix, uri] : {std::pair(u"", u"urn:d"), {u"p", u"urn:d"}, {u"q", u""}})
        EXPECT_EQ(document.LookupNamespaceFromAlias(prefix), uri);
    EXPECT_EQ(DumpTree(document.GetDocumentElement()), "a[a]");
    const CSmartPtr<ScriptedObject> object = new ScriptedObject("");
    EXPECT_EQ(Failure([&] { object->FromXmlStream(HexBytes(start + "F0"), defaults); }),
              "Invalid or empty XML document");
}

TEST(CFastInfosetReader, ReadsValuesAndEndsInAllForms) {
    Check({"= 00 'v' -> a[@b=v]", "= FF -> a[@b=]",
           // Some of them for the table.
           "= 00 'u' 00 40 'v' 00 00 'w' 00 40 'x' 00 80 00 81 -> a[@b=u @b=v @b=w @b=x @b=v @b=x]",
           "= 02 'v' 0D 'w' -> a[@b=v\\rw]", ". 80 'u' 92 00 'vwx' 90 'y' A0 A1 -> a[\"uvwxyvwxy\"]",
           ". 81 C3A9 C8 00 'e' 80 '1' CB 00 'e' 00 's' 80 80 '2' -> a[\"\u00E9"
           "12\"]",
           ". 80 '1' E1 00 't' 00 'd' 80 '2' E2 00 'c' 80 '3' -> a[\"123\"]",
           ". 82 00 'x' 0D 'y' -> a[\"xy\"]",        // carriage returns go
           ". 82 00 'x' 00 'y' 80 'z' -> a[\"xz\"]", // a piece of text ends at a zero
           ". 82 00 'x' C0 'y' 80 'z' -> a[\"xz\"]", // and at malformed UTF-8
           // Ends stand alone or in pairs.
           "3C 00 'a' 00 F0 F0 F0 -> a[a]", "3C 00 'a' 00 00 FF 00 FF -> a[a[a] a]",
           "3C 00 'a' 00 FF -> a[a]",                          // what follows the root is not looked at
           "7C 00 'a' 78 00 'b' FF F0 FF -> a[@b=]",           // of the attributes; of element and document
           "3C 00 'a' 7C 80 78 80 FF FF 00 FF -> a[a[@a=] a]", // of attributes and element
           "7C 00 'a' F0 F0 -> a"});
}

TEST(CFastInfosetReader, DecodesEveryAlgorithmAndAlphabet) {
    Check({"= 70 01 0AFF -> a[@b=0AFF]", "= 70 12 0AFF01 -> a[@b=Cv8B]", "= 70 23 FFFE0001 -> a[@b=-2 1]",
           "= 70 88 0700112233445566778899AABBCCDDEEFF -> a[@b=00112233445566778899AABBCCDDEEFF]",
           "= 70 91 C3A9 -> a[@b=\u00E9]", "= 60 01 A12D -> a[@b=-12e]", "= 60 11 1DEF -> a[@b=1Z ]",
           ". 9C 09 FFFE A0 -> a[\"-2-2\"]", ". 8C 25 C3A9 -> a[\"\u00E9\"]", ". 88 05 1DEF -> a[\"1Z \"]"});
    Check({"= 70 20 00 -> Invalid value for SHORT byte encoding.", "= 7F F0 00 -> Unknown byte encoding.",
           ". 8C 28 00 -> Unknown byte encoding.",
           "= 60 00 F1 -> The position [15] lies beyond the Restricted Alphabet.",
           "= 60 20 00 -> Invalid Encoding of Restricted Alphabet. Alphabet must contain between 2 and 2^20 "
           "characters.",
           ". 8B FC 00 -> Invalid Encoding of Restricted Alphabet. Alphabet must contain between 2 and 2^20 "
           "characters.",
           "= 11 0041 -> Unsupported Feature UTF16BE string.",
           ". 85 0041 -> Unsupported Feature UTF16BE string."});
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
    EXPECT_EQ(Read(HexBytes("E0 00 00 01" + everything)),
              "{urn:d}a[@b=value @{urn:d}c=value @b=1Z  \"text\" x[\"text7\"] {urn:d}a[{urn:d}a[@b=]]]");
    Check({"C4 F0 3C 00 'a' FF -> a",
           "C6 00 's' 3C 00 'a' FF -> a", // a document type without its end
           "D5 E0 C3 3C 00 'a' FF -> a",  // unknown items
           "F0 3C 00 'a' FF -> null",     // the end of the document
           "E2 00 'c' FF -> null"});
    const std::string head = "E0 00 00 01";
    CBinaryData manyItems = Concatenated(head + "40 800000", HexBytes("00 'u' 00 'd'"), 129);
    manyItems.Append(HexBytes("3C 00 'a' FF"));
    EXPECT_EQ(Read(manyItems), "a");
    const std::string declarations = "Invalid Encoding of Notations or Unparsed Entities.";
    for (const auto& [bytes, failure] :
         {std::pair<std::string, std::string>{"40 90 00", "Invalid Encoding of the length of a sequence."},
          {"10 C8 00", declarations},
          {"08 C0 00", declarations},
          {"20 0100 00 00 'n' 3D 81 00 'a' FF", "The index [2] lies beyond its table."}}) // it has no effect
        EXPECT_EQ(Read(HexBytes(head + bytes)), failure);
}

TEST(CFastInfosetReader, RefusesWhatHasNoMeaning) {
    Check({"3E 00 'p' 00 'a' FF -> Invalid QName type Prefix without Namespace.",
           "3C 41 -> Invalid NonEmptyOctetString type  on the second bit of an octet.",
           "= 09 -> Invalid NonEmptyOctetString type  on the fifth bit of an octet.",
           "@ 77 -> Invalid Encoding of integers 1 To 2^20 type  on the second bit of an octet.",
           "31 -> Invalid Encoding of integers 1 To 2^20 type  on the third bit of an octet.",
           ". B9 -> Invalid Encoding of integers 1 To 2^20 type  on the fourth bit of an octet.",
           "= F0 -> Invalid Encoding of integers 0 To 2^20 type  on the second bit of an octet.",
           ". CC -> Invalid Encoding of Element type.", ". E0 -> Invalid Encoding of Element type.",
           ". F1 -> Invalid Encoding of Element type.",
           "3C 60 FFFFFFFF 'a' -> Unexpected End of File.", // 2^32 + 320 bytes, which are not 320
           "= 0C FFFFFFFF -> Unexpected End of File.", ". 83 FFFFFFFF -> Unexpected End of File."});
}

TEST(CFastInfosetReader, RefusesIndicesBeyondTheirTables) {
    for (const char* bytes : {"00 F0", "3C 80 FF", "7C 00 'a' 00", "7C 00 'a' 78 00 'b' 80", "3C 00 'a' A0"})
        EXPECT_EQ(Read(HexBytes(start + bytes)), "The index [1] lies beyond its table.") << bytes;
    for (const char* bytes : {"3D 81 00 'a' FF", "3F 81 80 00 'a' FF", "38 CE 81 F0"})
        EXPECT_EQ(Read(HexBytes(start + bytes)), "The index [2] lies beyond its table.") << bytes;
    EXPECT_EQ(Read(HexBytes(start + "38 CD E00000 F0")), "The index [8257] lies beyond its table.");
}

TEST(CFastInfosetReader, AFullTableTakesNoMore) {
    CBinaryData last = Concatenated(start + "3C 00 'a'", HexBytes("90 'x'"), 1 << 20), beyond = last;
    last.Append(HexBytes("90 'y' B8 0B FB EF FF"));
    beyond.Append(HexBytes("90 'y' B8 0B FB F0 FF"));
    EXPECT_EQ(Read(last), "a[\"" + std::string(1 << 20, 'x') + "yx\"]");
    EXPECT_EQ(Read(beyond), "The index [1048577] lies beyond its table.");
}

TEST(CFastInfosetReader, RecognisesDocumentsByTheirFirstBytes) {
    const ScriptedObject object("<a '" + std::string(500, 'x') + " >");
    const std::string tree = "a[\"" + std::string(500, 'x') + "\"]";
    for (int declaration = FInfoDecl_None; declaration <= FInfoDecl_11NotStandalone; ++declaration)
        EXPECT_EQ(Read(object.Written(defaults, static_cast<FInfoDecl>(declaration))), tree);
    for (const CompressionType type : {CompressionType_GZip, CompressionType_ZLib})
        EXPECT_EQ(Read(object.ToFastInfosetStream(FInfoDecl_None, defaults, type)), tree);
    // Anything else is text, also what ends with the identification.
    const std::string declared = "<?xml version='1.0' encoding='finf'?>\xE0\0\0\1";
    for (std::size_t length = 1; length <= declared.size(); ++length)
        EXPECT_TRUE(Read(ToBinary(declared.substr(0, length))).ends_with(" at line 1")) << length;
}

TEST(CFastInfosetReader, DamagedDocumentsAreReadOrRefused) {
    const CBinaryData written =
        ScriptedObject("+p=urn:p <{urn:p}a <{urn:q}b @c=1234567 nil 'text > <{urn:q}b 'text > >").Written();
    for (const CBinaryData& whole : {HexBytes("E0 00 00 01" + everything), written}) {
        for (std::uint32_t length = 5; length < whole.GetLength() - 1; ++length)
            EXPECT_EQ(Read(CBinaryData(whole.GetData(), length, false)), "Unexpected End of File.") << length;
        for (std::uint32_t bit = 0; bit < 8 * whole.GetLength(); ++bit) {
            CBinaryData flipped = whole;
            flipped[bit / 8] ^= static_cast<unsigned char>(1 << bit % 8);
            CXmlDocument document;
            (void)Failure([&] { Load(document, flipped); }); // any other exception ends the test
        }
    }
}

/// Reads a string of 65536 characters, whose length stands `more` below that, and references to it.
std::string ReadReferences(const std::string& head, std::size_t more, const std::string& reference,
                           std::size_t count) {
    CBinaryData bytes = Concatenated(start + head + "00010000", HexBytes("78"), 65536 + more);
    bytes.Append(Concatenated("", HexBytes(reference), count));
    const std::string limit = std::to_string((64ull << 20) + 256ull * bytes.GetLength()),
                      result = Read(bytes);
    return result == "The names, values and texts of the document come to more than " + limit + " bytes"
               ? "refused"
               : result;
}

TEST(CFastInfosetReader, WhatReferencesAddIsLimited) {
    EXPECT_EQ(ReadReferences("3C 00 'a' 93", 259, "A0", 100), "Unexpected End of File.");
    EXPECT_EQ(ReadReferences("3C 00 'a' 93", 259, "A0", 1000), "refused");
    EXPECT_EQ(ReadReferences("3C 60", 321, "00", 1000), "refused");
    EXPECT_EQ(ReadReferences("38 CD 60", 321, "CD 81", 1000), "refused");
    EXPECT_EQ(ReadReferences("7C 00 'a' 78 00 'b' 4C", 265, "00 80", 1000), "refused");
}

TEST(CFastInfosetReader, ReadsTheTreeThatTheTextHas) {
    // Names, values and texts of all sizes, and indices into all tables.
    std::string words = "+p=urn:p +=urn:d <{urn:d}root @{urn:p}b=v ";
    for (const std::size_t length : {1, 8, 9, 64, 65, 258, 264, 265, 320, 321, 70000}) {
        const std::string text = std::string(length / 2, 'n') + "\u00E9";
        words += "<{urn:new}" + text + " @b=" + text + " '" + text + " > ";
    }
    for (const std::string uri : {"{urn:p}", "{urn:d}"}) {
        for (int i = 1; i <= 2100; ++i) {
            const std::string name = "n" + std::to_string(i);
            words += "<" + uri + name + " @" + name + "=" + name + " '" + name + " > ";
        }
    }
    const ScriptedObject object(words + ">");
    CXmlDocument text;
    text.LoadXml(object.ToXml(false, false, EOLType_LF, defaults).c_str());
    EXPECT_EQ(Read(object.Written()), DumpTree(text.GetDocumentElement()));
}

} // namespace
