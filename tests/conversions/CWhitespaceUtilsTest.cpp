#include "support/Test.h"

using W = CWhitespaceUtils;

TEST(CWhitespaceUtils, EachRuleTransformsText) {
    const std::u16string rows[][4] = {
        {u"", u"", u"", u""},
        {u"   ", u"   ", u"   ", u""},
        {u"a\r\nb\rc\n", u"a\nb\nc\n", u"a b c ", u"a b c"},
        {u"a\r", u"a\n", u"a ", u"a"},
        {u"a\r\nb\tc\nd\re", u"a\nb\tc\nd\ne", u"a b c d e", u"a b c d e"},
        {u"a\n\rb", u"a\n\nb", u"a  b", u"a b"},
        {u"\r\r\n\n", u"\n\n\n", u"   ", u""},
        {u"  a \r\n\t b  ", u"  a \n\t b  ", u"  a    b  ", u"a b"},
        {u"\u00A0\u2003\u0085 \xD83D", u"\u00A0\u2003\u0085 \xD83D", u"\u00A0\u2003\u0085 \xD83D",
         u"\u00A0\u2003\u0085 \xD83D"},
        // A NUL survives where nothing is changed, and ends the result otherwise.
        {u"a\0b"s, u"a\0b"s, u"a\0b"s, u"a"},
        {u"a\0b\r"s, u"a", u"a", u"a"},
        {u"a \0b "s, u"a \0b "s, u"a \0b "s, u"a "}};
    for (const auto& [text, preserve, replace, collapse] : rows) {
        EXPECT_EQ(W::ApplyRule(W::WhitespaceRule_None, text), text);
        EXPECT_EQ(W::ApplyRule(W::WhitespaceRule_Preserve, text), preserve);
        EXPECT_EQ(W::ApplyRule(W::WhitespaceRule_Replace, text), replace);
        EXPECT_EQ(W::ApplyRule(W::WhitespaceRule_Collapse, text), collapse);
    }
    for (const int rule : {4, -1})
        EXPECT_EQ(support::Failure([&] { W::ApplyRule(static_cast<W::WhitespaceRule>(rule), u"a"); }),
                  "Unknown WhitespaceRule");
}

TEST(CWhitespaceUtils, PreserveStaysWithinItsLength) {
    const char16_t units[] = {u'a', u'\r', u'\n', u'b'};
    EXPECT_EQ(CWhitespaceUtils::Preserve(units, 2), u"a\n");
    EXPECT_EQ(CWhitespaceUtils::Preserve(units, 4), u"a\nb");
    EXPECT_EQ(CWhitespaceUtils::Preserve(u"a\0b", 3), u"a");
    EXPECT_EQ(CWhitespaceUtils::Preserve(units, 0), u"");
    EXPECT_EQ(CWhitespaceUtils::Preserve(nullptr, -1), u"");
    EXPECT_THROW(CWhitespaceUtils::Preserve(nullptr, 1), CKzInvalidParamException);
}
