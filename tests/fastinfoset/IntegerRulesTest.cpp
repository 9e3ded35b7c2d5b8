#include "fastinfoset/IntegerRules.h"

#include "support/Test.h"

#include <KzXmlLib10/values/CBinaryData.h>

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
        const char* integers; // and their bytes
    };
    const Row rows[] = {
        {octetsBit2, 0, "1 00  64 3F  65 4000  320 40FF  321 6000000000  4294967616 60FFFFFFFF"},
        {octetsBit5, 0x40, "8 47  9 4800  264 48FF  16909325 4C01020304"},
        {octetsBit7, 0x90, "2 91  3 9200  258 92FF  259 9300000000"},
        {integerBit2, 0x80, "64 BF  65 C000  8256 DFFF  8257 E00000  1048576 EFDFBF"},
        {integerBit3, 0x40, "32 5F  33 6000  2080 67FF  2081 680000  526368 6FFFFF"},
        {integerBit4, 0xA0,
         "16 AF  17 B000  1040 B3FF  1041 B40000  263184 B7FFFF  263185 B8000000  1048576 B80BFBEF"},
        {sequenceLength, 0, "128 7F  129 800000  1048576 8FFF7F"},
    };
    for (const Row& row : rows) {
        std::istringstream integers(row.integers);
        std::uint64_t value;
        for (std::string bytes; integers >> value >> bytes;) {
            Byte octets[IntegerRule::MaxOctets];
            const unsigned count = row.rule.Encode(value, row.leadingBits, octets);
            EXPECT_EQ(ToUtf8(CBinaryData::GetAsHexString(octets, count)), bytes) << value;
            EXPECT_EQ(Decoded(row.rule, {octets, count}), value) << bytes;
        }
    }
}

TEST(IntegerRules, TheLastBandOnTheThirdBitComesBackOneHigher) {
    Byte octets[IntegerRule::MaxOctets];
    EXPECT_EQ(integerBit3.Encode(526369, 0, octets), 4u);
    EXPECT_EQ(CBinaryData::GetAsHexString(octets, 4), u"30000001");
    EXPECT_EQ(Decoded(integerBit3, {octets, 4}), 526370u);
}

} // namespace
