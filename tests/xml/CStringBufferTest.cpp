#include "support/Test.h"

namespace {

std::u16string TextOf(CStringBuffer& buffer) { return {buffer.GetString(), buffer.GetLength()}; }

TEST(CStringBuffer, GathersTextAcrossChunks) {
    for (const std::uint32_t chunkSize : {1u, 2u, 7u}) {
        CStringBuffer buffer(chunkSize);
        std::u16string expected;
        for (int i = 0; i < 40; ++i) {
            const std::u16string piece(static_cast<std::size_t>(i % 9), static_cast<char16_t>(u'a' + i % 26));
            buffer.Append(piece);
            buffer.AppendChar(u'-');
            expected += piece + u"-";
            EXPECT_EQ(i % 13 == 5 ? TextOf(buffer) : expected, expected); // joins; appending goes on behind
        }
        buffer.Append(buffer.GetString());
        EXPECT_EQ(TextOf(buffer), expected + expected);
    }
}

TEST(CStringBuffer, RefusesMoreCharactersThanItsLengthCounts) {
    CStringBuffer buffer;
    buffer.Append(u"abc");
    // Refused by its length alone, so that nothing is read.
    const std::u16string_view tooLong(buffer.GetString(), 0xFFFF'FFFFu - 2);
    EXPECT_THROW(buffer.Append(tooLong), CKzException);
    EXPECT_EQ(TextOf(buffer), u"abc");
    EXPECT_THROW(CStringBuffer(0), CKzInvalidParamException);
}

} // namespace
