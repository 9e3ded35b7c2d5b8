#include "support/Test.h"

namespace {

std::u16string TextOf(CStringBuffer& buffer) { return {buffer.GetString(), buffer.GetLength()}; }

TEST(CStringBuffer, GathersTextAcrossChunks) {
    for (const std::uint32_t chunkSize : {1u, 2u, 3u, 7u, 4095u}) {
        CStringBuffer buffer(chunkSize);
        std::u16string expected;
        EXPECT_EQ(TextOf(buffer), u"");
        for (int i = 0; i < 40; ++i) {
            const std::u16string piece(static_cast<std::size_t>(i % 9), static_cast<char16_t>(u'a' + i % 26));
            buffer.Append(piece);
            buffer.AppendChar(u'-');
            buffer.Append(u"xy");
            std::copy(piece.begin(), piece.end(), buffer.Reserve(12)); // more than some chunks, or is needed
            buffer.Commit(buffer.Reserve(0) + piece.size());
            expected += piece + u"-xy" + piece;
            if (i % 10 == 3)
                buffer.AddChunk();                                        // closes a chunk that is not full
            EXPECT_EQ(i % 13 == 5 ? TextOf(buffer) : expected, expected); // joins; appending goes on behind
        }
        EXPECT_EQ(TextOf(buffer), expected);
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
