#include "fastinfoset/IntegerRules.h"

#include "support/FastInfoset.h"

#include <gtest/gtest.h>

using namespace KzXmlLib10;
using namespace KzXmlLib10::fastinfoset;

namespace {

/// The integer that comes back; 0 if the first byte announces none.
std::uint64_t Decoded(const IntegerRule& rule, std::span<const Byte> octets) {
    const Band* band = rule.AnnouncedBy(octets.front());
    return band ? rule.Decode(*band, octets.front(), octets.subspan(1)) : 0;
}

TEST(IntegerRules, EncodeAndDecodeTheEdgesOfAllBands) {
    struct Row {
        const IntegerRule& rule;
        Byte leadingBits;
        std::uint64_t value;
        const char* bytes;
    };
    const Row rows[] = {
        {octetsBit2, 0, 1, "00"},
        {octetsBit2, 0, 64, "3F"},
        {octetsBit2, 0, 65, "4000"},
        {octetsBit2, 0, 320, "40FF"},
        {octetsBit2, 0, 321, "6000000000"},
        {octetsBit2, 0, 321 + 0xFFFFFFFFull, "60FFFFFFFF"},
        {octetsBit5, 0x40, 8, "47"},
        {octetsBit5, 0x40, 9, "4800"},
        {octetsBit5, 0x40, 264, "48FF"},
        {octetsBit5, 0x40, 265 + 0x01020304, "4C01020304"},
        {octetsBit7, 0x90, 2, "91"},
        {octetsBit7, 0x90, 3, "9200"},
        {octetsBit7, 0x90, 258, "92FF"},
        {octetsBit7, 0x90, 259, "9300000000"},
        {integerBit2, 0x80, 64, "BF"},
        {integerBit2, 0x80, 65, "C000"},
        {integerBit2, 0x80, 8256, "DFFF"},
        {integerBit2, 0x80, 8257, "E00000"},
        {integerBit2, 0x80, 0x100000, "EFDFBF"},
        {integerBit3, 0x40, 32, "5F"},
        {integerBit3, 0x40, 33, "6000"},
        {integerBit3, 0x40, 2080, "67FF"},
        {integerBit3, 0x40, 2081, "680000"},
        {integerBit3, 0x40, 526368, "6FFFFF"},
        {integerBit4, 0xA0, 16, "AF"},
        {integerBit4, 0xA0, 17, "B000"},
        {integerBit4, 0xA0, 1040, "B3FF"},
        {integerBit4, 0xA0, 1041, "B40000"},
        {integerBit4, 0xA0, 263184, "B7FFFF"},
        {integerBit4, 0xA0, 263185, "B8000000"},
        {integerBit4, 0xA0, 0x100000, "B80BFBEF"},
        {sequenceLength, 0, 128, "7F"},
        {sequenceLength, 0, 129, "800000"},
        {sequenceLength, 0, 0x100000, "8FFF7F"},
    };
    for (const Row& row : rows) {
        Byte octets[IntegerRule::MaxOctets];
        const unsigned count = row.rule.Encode(row.value, row.leadingBits, octets);
        EXPECT_EQ(CBinaryData::GetAsHexString(octets, count), support::HexBytes(row.bytes).GetAsHexString());
        EXPECT_EQ(Decoded(row.rule, {octets, count}), row.value) << row.bytes;
    }
}

TEST(IntegerRules, TheLastBandOnTheThirdBitComesBackOneHigher) {
    Byte octets[IntegerRule::MaxOctets];
    EXPECT_EQ(integerBit3.Encode(526369, 0, octets), 4u);
    EXPECT_EQ(CBinaryData::GetAsHexString(octets, 4), u"30000001");
    EXPECT_EQ(Decoded(integerBit3, {octets, 4}), 526370u);
}

} // namespace
