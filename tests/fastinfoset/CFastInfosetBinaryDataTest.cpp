#include <KzXmlLib10/fastinfoset/CFastInfosetBinaryData.h>

#include "support/Failure.h"

#include <gtest/gtest.h>

using namespace KzXmlLib10;
using support::Failure;

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
    EXPECT_EQ(Decoded(1, u"0aff"), "0AFF");
    EXPECT_EQ(Decoded(2, u"0aff01"), "Cv8B");
    EXPECT_EQ(Decoded(3, u"FFFE7FFF"), "-2 32767"); // signed, a blank between
    EXPECT_EQ(Decoded(4, u"80000000"), "-2147483648");
    EXPECT_EQ(Decoded(5, u"00000000FFFFFFFFFFFFFFFFFFFFFFFF"), "4294967295 -1");
    EXPECT_EQ(Decoded(8, u"3FF80000000000007FF0000000000000"), "1.5 INF");
    EXPECT_EQ(Decoded(9, u"00112233445566778899aabbccddeeff00112233445566778899aabbccddeeff"),
              "00112233445566778899AABBCCDDEEFF 00112233445566778899AABBCCDDEEFF");
}

TEST(CFastInfosetBinaryData, TheFirstByteOfAFloatStandsForAllFour) {
    EXPECT_EQ(Decoded(7, u"3FC00000"), "0.7470588"); // 3F3F3F3F, not 1.5
    EXPECT_EQ(Decoded(7, u"0000000040123456"), "0 3.003922");
    EXPECT_EQ(Decoded(7, u"FF800000"), "NaN");
}

TEST(CFastInfosetBinaryData, BooleansBeginAtBitThree) {
    EXPECT_EQ(Decoded(6, u"38"), "true");
    EXPECT_EQ(Decoded(6, u"30"), "false");
    EXPECT_EQ(Decoded(6, u"0A"), "truefalsetruefalse"); // side by side
    EXPECT_EQ(Decoded(6, u"6F80"), "truetruetruetrue truefalse");
    EXPECT_EQ(Decoded(6, u"4F"), ""); // all four bits unused
    EXPECT_EQ(Decoded(6, u"FF"), ""); // more unused bits than there are
}

TEST(CFastInfosetBinaryData, RefusesWhatItCannotConvert) {
    EXPECT_EQ(Failure([] { Decoded(3, u"000102"); }), "Invalid value for SHORT byte encoding.");
    EXPECT_EQ(Failure([] { Decoded(4, u"00010203040506"); }), "Invalid value for INT byte encoding.");
    EXPECT_EQ(Failure([] { Decoded(5, u"00010203"); }), "Invalid value for LONG byte encoding.");
    EXPECT_EQ(Failure([] { Decoded(7, u"0001"); }), "Invalid value for FLOAT byte encoding.");
    EXPECT_EQ(Failure([] { Decoded(8, u"00010203"); }), "Invalid value for DOUBLE byte encoding.");
    EXPECT_EQ(Failure([] { Decoded(9, u"00010203"); }), "Invalid value for UUID byte encoding.");
    for (const unsigned long unknown : {0ul, 10ul, 11ul, 256ul}) {
        EXPECT_EQ(Failure([=] { Decoded(unknown, u"00"); }), "Unknown byte encoding.");
        EXPECT_EQ(Decoded(unknown, u""), ""); // no bytes, no failure
    }
    EXPECT_EQ(Failure([] { Encoded(11, u"1"); }), "Unknown byte encoding.");
    EXPECT_EQ(Failure<CKzInvalidValueException>([] { Encoded(3, u"1 2"); }),
              "The value [1 2] can not be converted to a i4");
    EXPECT_EQ(Failure<CKzInvalidValueException>([] { Encoded(5, u"9223372036854775808"); }),
              "The value [9223372036854775808] is to large to fit in a i8");
    EXPECT_EQ(Failure([] { Encoded(9, u"00112233-4455"); }), "Invalid length in hex string");
}

} // namespace
