#include "support/Test.h"

TEST(Text, EveryLengthOfUtf8GoesBothWays) {
    const std::pair<std::u16string, std::string> cases[] = {
        {u"", ""},
        {std::u16string(u"a\0\x7F", 3), std::string("a\0\x7F", 3)},
        {u"\u0080\u07FF", "\xC2\x80\xDF\xBF"},
        {u"\u0800\uD7FF\uE000\uFFFF", "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"},
        {u"\U00010000\U0010FFFFz", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBFz"},
    };
    for (const auto& [wide, narrow] : cases) {
        EXPECT_EQ(ConvertToUtf8(wide), narrow);
        EXPECT_EQ(ToUtf8(wide), narrow);
        EXPECT_EQ(FromUtf8(narrow), wide);
    }
}

TEST(Text, LoneSurrogateEndsTheConversionForOutput) {
    const std::u16string cases[] = {u"a\u00E9\xD800", u"a\u00E9\xD800z", u"a\u00E9\xDC00z",
                                    u"a\u00E9\xD800\xD800\xDC00"};
    for (const std::u16string& text : cases) {
        EXPECT_EQ(ConvertToUtf8(text), "a\xC3\xA9");
        EXPECT_THROW(ToUtf8(text), CKzInvalidValueException);
    }
}

TEST(Text, MalformedUtf8IsRefused) {
    for (const char* text : {"\x80", "\xC0\x80", "\xC3", "\xC3(", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xE2\x82",
                             "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80"})
        EXPECT_THROW(FromUtf8(text), CKzInvalidValueException) << text;
}
