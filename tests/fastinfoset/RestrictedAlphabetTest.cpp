#include "fastinfoset/RestrictedAlphabet.h"

#include "support/FastInfoset.h"
#include "support/Test.h"

using namespace KzXmlLib10;
using namespace KzXmlLib10::fastinfoset;
using namespace KzXmlLib10::support;

namespace {

const std::string alphabetSize = "Alphabet must contain between 2 and 2^20 characters.";

/// The first `size` characters from "A" on.
std::u16string Alphabet(std::size_t size) {
    std::u16string alphabet;
    for (std::size_t i = 0; i < size; ++i)
        alphabet += static_cast<char16_t>(u'A' + i);
    return alphabet;
}

std::string Packed(std::size_t size, const std::u16string& text) {
    const std::string octets = PackRestrictedAlphabetString(Alphabet(size), text);
    return ToUtf8(
        CBinaryData::GetAsHexString(reinterpret_cast<const unsigned char*>(octets.data()), octets.size()));
}

std::string Unpacked(std::size_t size, const std::string& hex) {
    const CBinaryData octets = HexBytes(hex);
    return ToUtf8(UnpackRestrictedAlphabetString(Alphabet(size), {octets.GetData(), octets.GetLength()}));
}

TEST(RestrictedAlphabet, TakesAsManyBitsAsLeaveOnePatternOver) {
    EXPECT_EQ(Unpacked(2, "1F"), "AB");          // 2 bits at least: 00 01 11
    EXPECT_EQ(Unpacked(3, "1B"), "ABC");         // 00 01 10 11: all ones end the text
    EXPECT_EQ(Unpacked(7, "053977"), "ABCDEFG"); // 000 001 010 011 100 101 110 111
    EXPECT_EQ(Unpacked(15, "012E"), "ABCO");     // 4 bits
    EXPECT_EQ(Unpacked(16, "0044FF80"), "ABCP"); // 5 bits: 16 letters and one pattern more
    EXPECT_EQ(Unpacked(255, "00 39"), "Az");     // a byte each
}

TEST(RestrictedAlphabet, OnlyTheLowHalfOfAByteMayPad) {
    EXPECT_EQ(Unpacked(15, "1F"), "B");
    EXPECT_EQ(Unpacked(15, "1F 22"), "B"); // even in the middle
    const auto failure = [](std::size_t size, const char* hex) {
        return Failure([=] { Unpacked(size, hex); });
    };
    const std::string failed = "Failed to parse FastInfoset. ";
    EXPECT_EQ(failure(15, "F1"), failed + "The position [15] lies beyond the Restricted Alphabet.");
    EXPECT_EQ(failure(12, "0D"), failed + "The position [13] lies beyond the Restricted Alphabet.");
    EXPECT_EQ(failure(200, "FF"), failed + "The position [255] lies beyond the Restricted Alphabet.");
    EXPECT_EQ(failure(1, "00"), failed + "Invalid Encoding of Restricted Alphabet. " + alphabetSize);
}

TEST(RestrictedAlphabet, PacksFourAndEightBits) {
    EXPECT_EQ(Packed(15, u"ABCO"), "012E");
    EXPECT_EQ(Packed(8, u"ABC"), "012F");
    EXPECT_EQ(Packed(128, u"A\u00C0"), "007F");
    const std::string failed = "Failed to write FastInfoset. ";
    EXPECT_EQ(Failure([] { Packed(16, u"A"); }),
              failed + "Unsupported Feature in AppendRestrictedAlphabetString.");
    EXPECT_EQ(Failure([] { Packed(1, u"A"); }), failed + "Invalid Restricted Alphabet. " + alphabetSize);
}

} // namespace
