#include <KzXmlLib10/conversions/XsdPattern.h>

#include <KzXmlLib10/object/CKzException.h>

#include <gtest/gtest.h>

#include <typeinfo>

using namespace KzXmlLib10;
using namespace std::literals;

namespace {

/// "match" and "none", or the message of the failure.
std::u16string Outcome(const std::string& pattern, const std::u16string& value) {
    try {
        return MatchXsdPattern(pattern, value) ? u"match" : u"none";
    } catch (const CKzException& e) {
        EXPECT_EQ(typeid(e), typeid(CKzException));
        return e.GetFullMessage();
    }
}

struct Row {
    std::string pattern;
    std::u16string value;
    const char16_t* outcome;
};

void ExpectOutcomes(std::initializer_list<Row> rows) {
    for (const Row& row : rows)
        EXPECT_EQ(Outcome(row.pattern, row.value), row.outcome) << row.pattern;
}

TEST(XsdPattern, NameEscapesAreReplaced) {
    ExpectOutcomes({
        {R"(\i\c*)", u"xs:name", u"match"},
        {R"(\i\c*)", u"_a.b-c1", u"match"},
        {R"(\i\c*)", u"1a", u"none"},
        {R"(\I\C)", u"1 ", u"match"},
        {R"(\I)", u"a", u"none"},
        {R"(\C)", u"-", u"none"},
        // An escaped backslash is no part of an escape.
        {R"(\\i)", u"\\i", u"match"},
        {R"(\\i)", u"\\a", u"none"},
        {R"(\\\i)", u"\\a", u"match"},
        {R"(\\c\\C)", u"\\c\\C", u"match"},
        // The group in the class ends up as its literal characters.
        {R"([\c]+)", u"a(|)", u"match"},
    });
}

TEST(XsdPattern, LatinBlocksMeanCodePoints) {
    ExpectOutcomes({
        {R"(\p{IsBasicLatin}*)", u"a\x7F", u"match"},
        {R"(\p{IsBasicLatin})", u"\u0080", u"none"},
        {R"(\p{IsLatin-1Supplement}+)", u"\u0080\u00E9\u00FF", u"match"},
        {R"(\p{IsLatin-1Supplement})", u"\u0100", u"none"},
        {R"(\p{IsLatin-1Supplement})", u"\u007F", u"none"},
        {R"(\p{IsLatinExtended-A}+)", u"\u0100\u017F", u"match"},
        {R"(\p{IsLatinExtended-A})", u"\u0180", u"none"},
        // A block inside a class gives a class inside a class, which ends at the first bracket.
        {R"([\p{IsBasicLatin}])", u"a]", u"match"},
        {R"(\p{Lu}\P{Lu})", u"\u00C9\u00E9", u"match"},
        {"\u00E9{2}", u"\u00E9\u00E9", u"match"},
        {".", u"\U0001F600", u"match"},
    });
}

TEST(XsdPattern, LatinExtendedBNeverCompiles) {
    EXPECT_EQ(Outcome(R"(\p{IsLatinExtended-B})", u"\u0180"),
              u"Invalid Regular Expression: \u0180 Error: 'range out of order in character class'");
}

TEST(XsdPattern, MatchesTheWholeValueWithoutAGroup) {
    ExpectOutcomes({
        {"a", u"a", u"match"},
        {"a", u"ab", u"none"},
        {"a", u"ba", u"none"},
        {"a", u"a\n", u"none"},
        {"a\n", u"a\n", u"match"},
        {"", u"", u"match"},
        {"a|ab", u"ab", u"none"},
        {"ab|a", u"ab", u"match"},
        {"(a|ab)", u"ab", u"match"},
        {"a\\Kb", u"ab", u"none"},
        // A NUL in the value is a character, in the pattern its end.
        {"a.b", u"a\0b"s, u"match"},
        {"ab\0("s, u"ab", u"match"},
        // The value ends at a lone surrogate.
        {"a", u"a\xD800z", u"match"},
    });
}

TEST(XsdPattern, LenientFormsKeepWorking) {
    ExpectOutcomes({
        {R"([\w-.]+)", u"a-.", u"match"},
        {R"([\w-.]+)", u"a/", u"none"},
        {R"([^\w-.])", u"-", u"none"},
        {R"([\d-x]+)", u"1-x", u"match"},
        {R"([a-\d]+)", u"a-1", u"match"},
        {R"([+-\d]+)", u"+-1", u"match"},
        {R"([\p{Lu}-x]+)", u"A-x", u"match"},
        {R"([[:alpha:]-.]+)", u"a-.", u"match"},
        {R"([[:\d-x]a\B.[c:])", u"-ab:", u"match"},
        {R"([]\d-x]+)", u"]1-x", u"match"},
        {R"([^]\d-x])", u"-", u"none"},
        {R"([a-z-.]+)", u"m-.", u"match"},
        {R"([\w\-.]+)", u"a-.", u"match"},
        {R"(\d-[a-c])", u"1-b", u"match"},
        {R"(\y\_\m\q)", u"y_mq", u"match"},
        {R"([\y\B\X]+)", u"yBX", u"match"},
        {R"([\A-\Z\z\G\K]+)", u"AMZz", u"match"},
        {R"(\Qa\y[\E[\w-.])", u"a\\y[-", u"match"},
    });
}

TEST(XsdPattern, BrokenPatternsReportTheValue) {
    ExpectOutcomes({
        {"(", u"value", u"Invalid Regular Expression: value Error: 'missing closing parenthesis'"},
        {"a\\", u"v", u"none"}, // the backslash takes the closing anchor
        {R"(\p{IsGreek})", u"v", u"Invalid Regular Expression: v Error: 'unknown property after \\P or \\p'"},
        {"\xFF", u"%s", u"Invalid Regular Expression: %s Error: 'UTF-8 error: illegal byte (0xfe or 0xff)'"},
    });
}

TEST(XsdPattern, HostilePatternsEndWithoutAMatch) {
    EXPECT_FALSE(MatchXsdPattern("(a+)+", std::u16string(41, u'a') + u'b'));
    EXPECT_TRUE(MatchXsdPattern("(a|b)*", std::u16string(100'000, u'a')));
    EXPECT_FALSE(MatchXsdPattern("(a|b)*", std::u16string(1'000'000, u'a')));
}

} // namespace
