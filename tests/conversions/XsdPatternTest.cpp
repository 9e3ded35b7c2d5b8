#include <KzXmlLib10/conversions/XsdPattern.h>

#include "support/Failure.h"

#include <gtest/gtest.h>

#include <vector>

using namespace KzXmlLib10;
using namespace std::literals;

namespace {

/// A pattern with values, and whether it matches them.
struct Row {
    std::string pattern;
    std::vector<std::u16string> values;
    bool matches = true;
};

void ExpectOutcomes(std::initializer_list<Row> rows) {
    for (const Row& row : rows)
        for (const std::u16string& value : row.values)
            EXPECT_EQ(MatchXsdPattern(row.pattern, value), row.matches)
                << row.pattern << " " << ToUtf8(value);
}

TEST(XsdPattern, NameEscapesAreReplaced) {
    ExpectOutcomes({{R"(\i\c*)", {u"xs:name", u"_a.b-c1"}},
                    {R"(\i\c*)", {u"1a"}, false},
                    {R"(\I\C)", {u"1 "}},
                    {R"(\I)", {u"a"}, false},
                    {R"(\C)", {u"-"}, false},
                    // An escaped backslash is no part of an escape.
                    {R"(\\i)", {u"\\i"}},
                    {R"(\\i)", {u"\\a"}, false},
                    {R"(\\\i)", {u"\\a"}},
                    {R"(\\c\\C)", {u"\\c\\C"}},
                    // The group in the class ends up as its literal characters.
                    {R"([\c]+)", {u"a(|)"}}});
}

TEST(XsdPattern, LatinBlocksMeanCodePoints) {
    ExpectOutcomes({{R"(\p{IsBasicLatin}*)", {u"a\x7F"}},
                    {R"(\p{IsBasicLatin})", {u"\u0080"}, false},
                    {R"(\p{IsLatin-1Supplement}+)", {u"\u0080\u00E9\u00FF"}},
                    {R"(\p{IsLatin-1Supplement})", {u"\u0100", u"\u007F"}, false},
                    {R"(\p{IsLatinExtended-A}+)", {u"\u0100\u017F"}},
                    {R"(\p{IsLatinExtended-A})", {u"\u0180"}, false},
                    // A block inside a class gives a class inside a class, which ends at the first bracket.
                    {R"([\p{IsBasicLatin}])", {u"a]"}},
                    {R"(\p{Lu}\P{Lu})", {u"\u00C9\u00E9"}},
                    {"\u00E9{2}", {u"\u00E9\u00E9"}},
                    {".", {u"\U0001F600"}}});
}

TEST(XsdPattern, MatchesTheWholeValueWithoutAGroup) {
    ExpectOutcomes({{"a", {u"a"}},
                    {"a", {u"ab", u"ba", u"a\n"}, false},
                    {"a\n", {u"a\n"}},
                    {"", {u""}},
                    {"a|ab", {u"ab"}, false},
                    {"ab|a", {u"ab"}},
                    {"(a|ab)", {u"ab"}},
                    {"a\\Kb", {u"ab"}, false},
                    // A NUL in the value is a character, in the pattern its end.
                    {"a.b", {u"a\0b"s}},
                    {"ab\0("s, {u"ab"}},
                    // The value ends at a lone surrogate.
                    {"a", {u"a\xD800z"}}});
}

TEST(XsdPattern, LenientFormsKeepWorking) {
    ExpectOutcomes({{R"([\w-.]+)", {u"a-."}},
                    {R"([\w-.]+)", {u"a/"}, false},
                    {R"([^\w-.])", {u"-"}, false},
                    {R"([\d-x]+)", {u"1-x"}},
                    {R"([a-\d]+)", {u"a-1"}},
                    {R"([+-\d]+)", {u"+-1"}},
                    {R"([\p{Lu}-x]+)", {u"A-x"}},
                    {R"([[:alpha:]-.]+)", {u"a-."}},
                    {R"([[:\d-x]a\B.[c:])", {u"-ab:"}},
                    {R"([]\d-x]+)", {u"]1-x"}},
                    {R"([^]\d-x])", {u"-"}, false},
                    {R"([a-z-.]+)", {u"m-."}},
                    {R"([\w\-.]+)", {u"a-."}},
                    {R"(\d-[a-c])", {u"1-b"}},
                    {R"(\y\_\m\q)", {u"y_mq"}},
                    {R"([\y\B\X]+)", {u"yBX"}},
                    {R"([\A-\Z\z\G\K]+)", {u"AMZz"}},
                    {R"(\Qa\y[\E[\w-.])", {u"a\\y[-"}}});
}

TEST(XsdPattern, BrokenPatternsReportTheValue) {
    const struct {
        const char *pattern, *value, *error;
    } rows[] = {
        {"(", "value", "missing closing parenthesis"},
        {R"(\p{IsGreek})", "v", "unknown property after \\P or \\p"},
        {"\xFF", "%s", "UTF-8 error: illegal byte (0xfe or 0xff)"},
        // Deliberate: this block never compiles.
        {R"(\p{IsLatinExtended-B})", "\xC6\x80", "range out of order in character class"},
    };
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
