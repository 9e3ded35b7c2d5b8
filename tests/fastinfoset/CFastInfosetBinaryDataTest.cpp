#include <KzXmlLib10/fastinfoset/CFastInfosetBinaryData.h>

#include "support/Test.h"

using namespace KzXmlLib10;
using namespace KzXmlLib10::support;

namespace {

std::string Encoded(unsigned long algorithm, const char16_t* text) {
    CFastInfosetBinaryData data(u"what was there before");
    data.SetAsEncodedString(algorithm, text);
    return ToUtf8(data.GetAsHexString());
}

std::string Decoded(unsigned long algorithm, const char16_t* hex) {
    CFastInfosetBinaryData data;
    data.SetAsHexString(hex);
    return ToUtf8(data.GetAsString(algorithm));
}

TEST(CFastInfosetBinaryData, DecodesTheValuesInTheBytes) {
    struct Row {
        unsigned long algorithm;
        const char16_t* hex;
        const char* text;
    };
    const Row rows[] = {
        {3, u"FFFE7FFF", "-2 32767"}, // signed, a blank between
        {4, u"8000000000000007", "-2147483648 7"},
        {5, u"00000000FFFFFFFFFFFFFFFFFFFFFFFF", "4294967295 -1"},
        {6, u"0A", "truefalsetruefalse"}, // begins at bit 3; side by side
        {6, u"6F80", "truetruetruetrue truefalse"},
        {6, u"4F", ""},                         // all four bits unused
        {6, u"FF", ""},                         // more unused bits than there are
        {7, u"0000000040123456", "0 3.003922"}, // 40404040: the first byte stands for all four
        {7, u"FF800000", "NaN"},                // FFFFFFFF
        {8, u"3FF80000000000007FF0000000000000", "1.5 INF"},
        {9, u"00112233445566778899aabbccddeeff00112233445566778899aabbccddeeff",
         "00112233445566778899AABBCCDDEEFF 00112233445566778899AABBCCDDEEFF"},
        {10, u"", ""}, // no bytes, no failure
    };
    for (const auto& [algorithm, hex, text] : rows)
        EXPECT_EQ(Decoded(algorithm, hex), text);
}

TEST(CFastInfosetBinaryData, RefusesWhatItCannotConvert) {
    const auto decoding = [](unsigned long algorithm) {
        return Failure([=] { Decoded(algorithm, u"000102"); });
    };
    const char* const names[] = {"SHORT", "INT", "LONG", "", "FLOAT", "DOUBLE", "UUID"};
    for (const unsigned long algorithm : {3ul, 4ul, 5ul, 7ul, 8ul, 9ul})
        EXPECT_EQ(decoding(algorithm),
                  "Invalid value for " + std::string(names[algorithm - 3]) + " byte encoding.");
    for (const unsigned long unknown : {0ul, 10ul, 11ul, 256ul})
        EXPECT_EQ(decoding(unknown), "Unknown byte encoding.");
    EXPECT_EQ(Failure([] { Encoded(11, u"1"); }), "Unknown byte encoding.");
    EXPECT_EQ(InvalidValue([] { Encoded(3, u"1 2"); }), "The value [1 2] can not be converted to a i4");
    EXPECT_EQ(InvalidValue([] { Encoded(5, u"9223372036854775808"); }),
              "The value [9223372036854775808] is to large to fit in a i8");
    EXPECT_EQ(Failure([] { Encoded(9, u"00112233-4455"); }), "Invalid length in hex string");
    EXPECT_EQ(Encoded(3, u" -2"), "FFFE"); // blanks in front pass
}

} // namespace
