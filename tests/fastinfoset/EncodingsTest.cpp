/// How integers, characters of alphabets and values of algorithms stand in bytes.

#include "fastinfoset/IntegerRules.h"
#include "fastinfoset/RestrictedAlphabet.h"
#include "support/Test.h"

using namespace KzXmlLib10::fastinfoset;

namespace {

/// The integer that comes back; 0 if the first byte announces none.
std::uint64_t Decoded(const IntegerRule& rule, std::span<const Byte> octets) {
    const Band* band = rule.AnnouncedBy(octets.front());
    return band ? rule.Decode(*band, octets.front(), octets.subspan(1)) : 0;
}

TEST(IntegerRules, EncodeAndDecodeTheEdgesOfAllBands) {
    const std::tuple<const IntegerRule&, Byte, const char*> rows[] = {
        // The rule, the leading bits, integers and their bytes.
        {octetsBit2, 0, "1 00  64 3F  65 4000  320 40FF  321 6000000000  4294967616 60FFFFFFFF"},
        {octetsBit5, 0x40, "8 47  9 4800  264 48FF  16909325 4C01020304"},
        {octetsBit7, 0x90, "2 91  3 9200  258 92FF  259 9300000000"},
        {integerBit2, 0x80, "64 BF  65 C000  8256 DFFF  8257 E00000  1048576 EFDFBF"},
        {integerBit3, 0x40, "32 5F  33 6000  2080 67FF  2081 680000  526368 6FFFFF"},
        {integerBit4, 0xA0,
         "16 AF  17 B000  1040 B3FF  1041 B40000  263184 B7FFFF  263185 B8000000  1048576 B80BFBEF"},
        {sequenceLength, 0, "128 7F  129 800000  1048576 8FFF7F"}};
    Byte octets[IntegerRule::MaxOctets];
    for (const auto& [rule, leadingBits, text] : rows) {
        std::istringstream integers(text);
        std::uint64_t value;
        for (std::string bytes; integers >> value >> bytes;) {
            const unsigned count = rule.Encode(value, leadingBits, octets);
            EXPECT_EQ(ToUtf8(CBinaryData::GetAsHexString(octets, count)), bytes) << value;
            EXPECT_EQ(Decoded(rule, {octets, count}), value) << bytes;
        }
    }
    // The last band on the third bit comes back one higher.
    EXPECT_EQ(integerBit3.Encode(526369, 0, octets), 4u);
    EXPECT_EQ(CBinaryData::GetAsHexString(octets, 4), u"30000001");
    EXPECT_EQ(Decoded(integerBit3, {octets, 4}), 526370u);
}

/// The first `size` characters from "A" on.
std::u16string Alphabet(std::size_t size) {
    std::u16string alphabet(size, u'A');
    std::iota(alphabet.begin(), alphabet.end(), u'A');
    return alphabet;
}

TEST(RestrictedAlphabet, TakesAsManyBitsAsLeaveOnePatternOver) {
    const std::string failed = "Failed to parse FastInfoset. ";
    const std::tuple<std::size_t, const char*, std::string> rows[] = {
        {2, "1F", "AB"},          // 2 bits at least: 00 01 11
        {3, "1B", "ABC"},         // 00 01 10 11: all ones end the text
        {7, "053977", "ABCDEFG"}, // 000 001 010 011 100 101 110 111
        {15, "012E", "ABCO"},     // 4 bits
        {16, "0044FF80", "ABCP"}, // 5 bits: 16 letters and one pattern more
        {255, "00 39", "Az"},     // a byte each
        {15, "1F 22", "B"},       // only the low half of a byte may pad, even in the middle
        {15, "F1", failed + "The position [15] lies beyond the Restricted Alphabet."},
        {12, "0D", failed + "The position [13] lies beyond the Restricted Alphabet."},
        {200, "FF", failed + "The position [255] lies beyond the Restricted Alphabet."}};
    for (const auto& [size, hex, expected] : rows) {
        const CBinaryData octets = HexBytes(hex);
        const std::u16string alphabet = Alphabet(size);
        EXPECT_EQ(Outcome([&] {
                      return ToUtf8(
                          UnpackRestrictedAlphabetString(alphabet, {octets.GetData(), octets.GetLength()}));
                  }),
                  expected);
    }
    // Four and eight bits are packed too.
    EXPECT_EQ(PackRestrictedAlphabetString(Alphabet(15), u"ABCO"), "\x01\x2E");
    EXPECT_EQ(PackRestrictedAlphabetString(Alphabet(8), u"ABC"), "\x01\x2F");
    EXPECT_EQ(PackRestrictedAlphabetString(Alphabet(128), u"B\u00C0"), "\x01\x7F");
    EXPECT_EQ(Failure([] { PackRestrictedAlphabetString(Alphabet(16), u"A"); }),
              "Failed to write FastInfoset. Unsupported Feature in AppendRestrictedAlphabetString.");
    EXPECT_EQ(
        Failure([] { PackRestrictedAlphabetString(Alphabet(1), u"A"); }),
        "Failed to write FastInfoset. Invalid Restricted Alphabet. Alphabet must contain between 2 and 2^20 "
        "characters.");
}

std::string Encoded(unsigned long algorithm, const char16_t* text) {
    CFastInfosetBinaryData data(u"what was there before");
    data.SetAsEncodedString(algorithm, text);
    return ToUtf8(data.GetAsHexString());
}

/// A row is the number of an algorithm and bytes; the text of the values in them.
std::string Values(const std::u16string& row) {
    CFastInfosetBinaryData data;
    data.SetAsHexString(row.substr(row.find(u' ') + 1));
    return ToUtf8(data.GetAsString(std::stoul(ToUtf8(row))));
}

TEST(CFastInfosetBinaryData, DecodesTheValuesInTheBytes) {
    ExpectRows({"3 FFFE7FFF -> -2 32767", // signed, a blank between
                "4 8000000000000007 -> -2147483648 7", "5 00000000FFFFFFFFFFFFFFFFFFFFFFFF -> 4294967295 -1",
                "6 0A -> truefalsetruefalse", // begins at bit 3; side by side
                "6 6F80 -> truetruetruetrue truefalse",
                "6 4F -> ",                         // all four bits unused
                "6 FF -> ",                         // more unused bits than there are
                "7 0000000040123456 -> 0 3.003922", // 40404040: the first byte stands for all four
                "7 FF800000 -> NaN",                // FFFFFFFF
                "8 3FF80000000000007FF0000000000000 -> 1.5 INF",
                "9 00112233445566778899aabbccddeeff00112233445566778899aabbccddeeff -> "
                "00112233445566778899AABBCCDDEEFF 00112233445566778899AABBCCDDEEFF",
                "10  -> "}, // no bytes, no failure
               Values);
}

TEST(CFastInfosetBinaryData, RefusesWhatItCannotConvert) {
    ExpectRows(
        {"3 00 -> Invalid value for SHORT byte encoding.", "4 00 -> Invalid value for INT byte encoding.",
         "5 00 -> Invalid value for LONG byte encoding.", "7 00 -> Invalid value for FLOAT byte encoding.",
         "8 00 -> Invalid value for DOUBLE byte encoding.", "9 00 -> Invalid value for UUID byte encoding.",
         "0 00 -> Unknown byte encoding.", "256 00 -> Unknown byte encoding."},
        [](const std::u16string& row) { return Failure([&] { Values(row); }); });
    EXPECT_EQ(Failure([] { Encoded(11, u"1"); }), "Unknown byte encoding.");
    EXPECT_EQ(InvalidValue([] { Encoded(3, u"1 2"); }), "The value [1 2] can not be converted to a i4");
    EXPECT_EQ(InvalidValue([] { Encoded(5, u"9223372036854775808"); }),
              "The value [9223372036854775808] is to large to fit in a i8");
    EXPECT_EQ(Failure([] { Encoded(9, u"00112233-4455"); }), "Invalid length in hex string");
    EXPECT_EQ(Encoded(3, u" -2"), "FFFE"); // blanks in front pass
}

} // namespace
