#include "support/Test.h"

namespace {

/// Rows of a pattern and a value, and whether they match.
void ExpectMatches(bool matches, std::initializer_list<support::Row> rows) {
    for (const auto& [pattern, value] : rows)
        EXPECT_EQ(MatchXsdPattern(ToUtf8(pattern), FromUtf8(value)), matches)
            << ToUtf8(pattern) << ' ' << value;
}

TEST(XsdPattern, NameEscapesAreReplaced) {
    ExpectMatches(true, {R"(\i\c* -> xs:name)", R"(\i\c* -> _a.b-c1)", R"(\I\C -> 1 )",
                         // An escaped backslash is no part of an escape.
                         R"(\\i -> \i)", R"(\\\i -> \a)", R"(\\c\\C -> \c\C)",
                         // The byte that stands for one becomes one, also where nothing else is replaced.
                         "a\x01 -> a\\", "\x01i\\i -> \\ia",
                         // The group in the class ends up as its literal characters.
                         R"([\c]+ -> a(|))"});
    ExpectMatches(false, {R"(\i\c* -> 1a)", R"(\I -> a)", R"(\C -> -)", R"(\\i -> \a)"});
}

TEST(XsdPattern, LatinBlocksMeanCodePoints) {
    ExpectMatches(true,
                  {"\\p{IsBasicLatin}* -> a\x7F", "\\p{IsLatin-1Supplement}+ -> \u0080\u00E9\u00FF",
                   "\\p{IsLatinExtended-A}+ -> \u0100\u017F",
                   // A block inside a class gives a class inside a class, which ends at the first bracket.
                   "[\\p{IsBasicLatin}] -> a]", "\\p{Lu}\\P{Lu} -> \u00C9\u00E9", "\u00E9{2} -> \u00E9\u00E9",
                   ". -> \U0001F600"});
    ExpectMatches(false, {"\\p{IsBasicLatin} -> \u0080", "\\p{IsLatin-1Supplement} -> \u0100",
                          "\\p{IsLatin-1Supplement} -> \x7F", "\\p{IsLatinExtended-A} -> \u0180"});
}

TEST(XsdPattern, MatchesTheWholeValueWithoutAGroup) {
    ExpectMatches(true, {"a -> a", "a\n -> a\n", " -> ", "ab|a -> ab", "(a|ab) -> ab"});
    ExpectMatches(false, {"a -> ab", "a -> ba", "a -> a\n", "a|ab -> ab", "a\\Kb -> ab"});
    // A NUL in the value is a character, in the pattern its end; the value ends at a lone surrogate.
    EXPECT_TRUE(MatchXsdPattern("a.b", u"a\0b"s));
    EXPECT_TRUE(MatchXsdPattern("ab\0("s, u"ab"));
    EXPECT_TRUE(MatchXsdPattern("a", u"a\xD800z"));
    for (const std::size_t size : {188, 189, 190, 1000}) // on the stack and off it
        EXPECT_TRUE(MatchXsdPattern(std::string(size, 'a'), std::u16string(size, u'a')));
}

TEST(XsdPattern, LenientFormsKeepWorking) {
    ExpectMatches(true, {R"([\w-.]+ -> a-.)", R"([\d-x]+ -> 1-x)", R"([a-\d]+ -> a-1)", R"([+-\d]+ -> +-1)",
                         R"([\p{Lu}-x]+ -> A-x)", R"([[:alpha:]-.]+ -> a-.)", R"([[:\d-x]a\B.[c:] -> -ab:)",
                         R"([]\d-x]+ -> ]1-x)", R"([a-z-.]+ -> m-.)", R"([\w\-.]+ -> a-.)",
                         R"(\d-[a-c] -> 1-b)", R"(\y\_\m\q -> y_mq)", R"([\y\B\X]+ -> yBX)",
                         R"([\A-\Z\z\G\K]+ -> AMZz)", R"(\Qa\y[\E[\w-.] -> a\y[-)"});
    ExpectMatches(false, {R"([\w-.]+ -> a/)", R"([^\w-.] -> -)", R"([^]\d-x] -> -)"});
}

TEST(XsdPattern, BrokenPatternsReportTheValue) {
    const std::array<const char*, 3> rows[] = {
        {"(", "value", "missing closing parenthesis"},
        {R"(\p{IsGreek})", "v", "unknown property after \\P or \\p"},
        {"\xFF", "%s", "UTF-8 error: illegal byte (0xfe or 0xff)"},
        // Deliberate: this block never compiles.
        {R"(\p{IsLatinExtended-B})", "\xC6\x80", "range out of order in character class"}};
    for (const auto& [pattern, value, error] : rows)
        EXPECT_EQ(support::Failure([&text = pattern, &of = value] { MatchXsdPattern(text, FromUtf8(of)); }),
                  "Invalid Regular Expression: "s + value + " Error: '" + error + "'");
    EXPECT_FALSE(MatchXsdPattern("a\\", u"v")); // the backslash takes the closing anchor
}

TEST(XsdPattern, HostilePatternsEndWithoutAMatch) {
    EXPECT_FALSE(MatchXsdPattern("(a+)+", std::u16string(41, u'a') + u'b'));
    EXPECT_TRUE(MatchXsdPattern("(a|b)*", std::u16string(100'000, u'a')));
    EXPECT_FALSE(MatchXsdPattern("(a|b)*", std::u16string(1'000'000, u'a')));
}

} // namespace
