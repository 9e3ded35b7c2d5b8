#include <KzXmlLib10/values/CDecimal.h>

#include "support/Failure.h"
#include "support/Row.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

using namespace KzXmlLib10;
using support::Failure;
using support::Row;

namespace {

using Value = CKzInvalidValueException;

CDecimal Dec(const char16_t* text) { return CDecimal(text); }

std::string Text(const CDecimal& value) { return ToUtf8(value.ToString()); }

std::string Text(const CDecimal& value, int places) { return ToUtf8(value.ToString(places)); }

/// Sets the maximum of places for one test.
class MaxPlaces {
public:
    explicit MaxPlaces(std::int32_t places) { CDecimal::SetMaxDecimalPlaces(places); }
    ~MaxPlaces() { CDecimal::SetMaxDecimalPlaces(m_before); }
    MaxPlaces(const MaxPlaces&) = delete;
    MaxPlaces& operator=(const MaxPlaces&) = delete;

private:
    std::int32_t m_before = CDecimal::GetMaxDecimalPlaces();
};

void ExpectTexts(std::initializer_list<Row> rows) {
    for (const Row& row : rows)
        EXPECT_EQ(Text(Dec(row.text.c_str())), row.expected) << ToUtf8(row.text);
}

TEST(CDecimal, ParseReadsTheStatedForms) {
    ExpectTexts({" -> 0", "-0 -> 0", "1.50 -> 1.5", "1.0 -> 1", "0.05 -> 0.05", "-0.5 -> -0.5", ".5 -> 0.5",
                 "5. -> 5", "1 2.5 -> 12.5", "12- -> -12", "-+-7 -> -7", "\t1\r\n. 2 5  -> 1.25",
                 "007.10 -> 7.1", ". -> 0", "1.000000001 -> 1.000000001", "1000000000.0 -> 1000000000"});
}

TEST(CDecimal, ParseReadsExponents) {
    ExpectTexts({"1E2 -> 100", "1E-2 -> 0.01", "1.5E+1 -> 15", "-12.345e1 -> -123.45",
                 "-12.345e-1 -> -1.2345", "1E +- 2 -> 0.01", "5e -> 5", "5e- -> 5", "E7 -> 0",
                 "1E0000000000000000000000000000000000000000002 -> 100", "0E4294967297 -> 0",
                 "-1E-99999999999999999999999999 -> 0", "1E-30 -> 0.000000000000000000000000000001",
                 // A negative exponent divides: two guard digits are truncated before the rounding.
                 "5.01E-31 -> 0", "5.1E-31 -> 0.000000000000000000000000000001",
                 "0.00000000000000000000000000000051 -> 0.000000000000000000000000000001"});
    EXPECT_EQ(Text(Dec(u"1E10000")), "1" + std::string(10000, '0'));
}

TEST(CDecimal, ParseShowsTheFirstCharacterThatDoesNotFit) {
    const struct {
        const char16_t* text;
        int position;
    } cases[] = {{u"1.2.3", 3}, {u"12x", 2},    {u"x", 0},    {u"1.5-", 3},     {u"1E2 ", 3},
                 {u"1E2 3", 3}, {u"1.5E2.", 5}, {u"1E2E", 3}, {u" 1\u00A0", 2}, {u"\u0661", 0}};
    for (const auto& c : cases)
        EXPECT_EQ(Failure<Value>([&] { Dec(c.text); }),
                  "The string representing a Decimal, contained an invalid char at position " +
                      std::to_string(c.position) + " [" + ToUtf8(c.text) + "]");
    EXPECT_EQ(Failure<Value>([] { Dec(u"-1e10001"); }),
              "The string representing a Decimal, contained an exponent above 10000 [-1e10001]");
    EXPECT_EQ(Failure<CKzInvalidParamException>([] { CDecimal(static_cast<const char16_t*>(nullptr)); }),
              "The argument text may not be null");
}

TEST(CDecimal, ParseRoundsATieTowardZero) {
    // Zeros at the end are dropped before the cut, not after it.
    const std::u16string thirty = u"-0.123456789012345678901234567890";
    for (const auto& [more, last] :
         {std::pair{u"5", u'0'}, {u"50", u'0'}, {u"49999", u'0'}, {u"500001", u'1'}, {u"6", u'1'}})
        EXPECT_EQ(Dec((thirty + more).c_str()).ToString(), thirty.substr(0, 32) + last);
    const MaxPlaces two(2);
    ExpectTexts({"1.239 -> 1.24", "1.235 -> 1.23", "-1.235 -> -1.23", "-1.2351 -> -1.24", "0.004 -> 0",
                 "-0.0051 -> -0.01"});
}

TEST(CDecimal, RoundingUpToAWholeUnitIsNotCarried) {
    const MaxPlaces one(1);
    ExpectTexts({"0.99 -> 0.10", "-3.96 -> -3.10"});
    EXPECT_NE(Dec(u"0.99"), CDecimal(1));
    EXPECT_EQ(Text(Dec(u"0.99") + 0), "1");
}

TEST(CDecimal, MaximumOfPlacesIsStoredAsGivenAndClampedInUse) {
    {
        const MaxPlaces none(-1);
        EXPECT_EQ(CDecimal::GetMaxDecimalPlaces(), -1);
        EXPECT_EQ(Text(Dec(u"1.5") + Dec(u"-2.6")), "-2"); // 1 and -3
        EXPECT_EQ(Text(Dec(u"7") / Dec(u"4")) + " " + Text(Dec(u"1.5") * 0), "2 0");
        EXPECT_EQ(Text(Dec(u"7.2"), 3), "7.0");
    }
    const MaxPlaces huge(std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(Dec(u"-1e-4096").ToString().size(), 1024u); // cut
    EXPECT_EQ(Dec(u"-1e-4096").GetNegative().ToString(5000).size(), 4098u);
    EXPECT_EQ(Text(Dec(u"1e-4097")), "0");
    EXPECT_EQ(Dec(u"1") / 3 * 3 + Dec(u"1e-4096"), Dec(u"1"));
}

TEST(CDecimal, MachineNumbers) {
    EXPECT_EQ(Text(std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(Text(std::numeric_limits<long>::min()), "-9223372036854775808");
    EXPECT_EQ(Text(CBigInteger(u"123456789012345678901234567890")), "123456789012345678901234567890");
    EXPECT_EQ(Text(0.1) + " " + Text(-2.5) + " " + Text(1e-14) + " " + Text(1.0 / 3),
              "0.1 -2.5 0 0.3333333333333");
    EXPECT_EQ(Text(1e22), "10000000000000000000000");
    EXPECT_EQ(Text(std::numeric_limits<double>::max()).size(), 309u);
    for (const double value : {std::nan(""), std::numeric_limits<double>::infinity()})
        EXPECT_THROW(CDecimal{value}, CKzInvalidValueException);
}

TEST(CDecimal, SumsAreExact) {
    EXPECT_EQ(Text(Dec(u"0.1") + Dec(u"0.2")), "0.3");
    EXPECT_EQ(Text(Dec(u"0.95") + Dec(u"0.05")), "1");
    EXPECT_EQ(Text(Dec(u"1.2") - Dec(u"0.5")), "0.7");
    EXPECT_EQ(Text(Dec(u"0.5") - Dec(u"1.2")), "-0.7");
    EXPECT_EQ(Text(Dec(u"-0.6") + Dec(u"-0.6")), "-1.2");
    EXPECT_EQ(Text(Dec(u"0.25") - Dec(u"0.5")), "-0.25");
    EXPECT_EQ(Text(Dec(u"3.5") - Dec(u"3.5")), "0");
    CDecimal x(u"-0.5");
    EXPECT_EQ(Text(x++), "-0.5");
    EXPECT_EQ(Text(++x), "1.5");
    EXPECT_EQ(Text(x--), "1.5");
    EXPECT_EQ(Text(--x), "-0.5");
}

TEST(CDecimal, SignOfAZeroFractionDecidesNothing) {
    CDecimal minusOne(1);
    minusOne.Negate(); // its fraction is a negative zero, that of CDecimal(-1) is not
    EXPECT_EQ(Text(minusOne.GetNegative() + minusOne.GetNegative()), "2");
    EXPECT_EQ(Text(CDecimal(-1).GetNegative() + CDecimal(-1).GetNegative()), "2");
    EXPECT_TRUE(minusOne == CDecimal(-1) && !(minusOne < CDecimal(-1)) && minusOne <= Dec(u"-1.00"));
    EXPECT_TRUE(Dec(u"-0") == CDecimal() && !(Dec(u"-0") < CDecimal()) && Dec(u"-0") >= CDecimal());
}

TEST(CDecimal, ProductsAndQuotientsRoundOnceAtTheMaximumOfPlaces) {
    EXPECT_EQ(Text(Dec(u"19.99") * Dec(u"-1.2")), "-23.988");
    EXPECT_EQ(Text(Dec(u"-0.5") * Dec(u"0.5")), "-0.25");
    EXPECT_EQ(Text(Dec(u"1e-16") * Dec(u"5e-15")), "0"); // half a unit goes down
    EXPECT_EQ(Text(Dec(u"1e-16") * Dec(u"-5.1e-15")), "-0.000000000000000000000000000001");
    EXPECT_EQ(Text(CDecimal(1) / 3), "0." + std::string(30, '3'));
    EXPECT_EQ(Text(CDecimal(2) / -3), "-0." + std::string(29, '6') + "7");
    EXPECT_EQ(Text(Dec(u"0.001") / Dec(u"0.00002")), "50");
    EXPECT_EQ(Failure<Value>([] { Dec(u"1.5") / Dec(u"-0.0"); }), "ERROR: Overflow in operator/.");
    CDecimal x(u"10");
    x /= 4;
    x *= 3;
    x += Dec(u"0.25");
    x -= 1;
    EXPECT_EQ(Text(x), "6.75");
}

TEST(CDecimal, OrderIsByValue) {
    const char16_t* ascending[] = {u"-10.1", u"-10.09", u"-0.5", u"-0.05", u"0",
                                   u"0.049", u"0.5",    u"1",    u"1.05",  u"10"};
    for (std::size_t i = 0; i < std::size(ascending); ++i) {
        for (std::size_t j = 0; j < std::size(ascending); ++j) {
            const CDecimal a(ascending[i]), b(ascending[j]);
            EXPECT_EQ(std::tuple(a<b, a <= b, a> b, a >= b, a == b, a != b),
                      std::tuple(i<j, i <= j, i> j, i >= j, i == j, i != j))
                << Text(a) << " " << Text(b);
        }
    }
    EXPECT_EQ(Dec(u"1.5"), Dec(u"1.50"));
}

TEST(CDecimal, ToStringWithPlacesRoundsAHalfAwayFromZero) {
    const auto expect = [](int places, std::initializer_list<Row> rows) {
        for (const Row& row : rows)
            EXPECT_EQ(Text(Dec(row.text.c_str()), places), row.expected) << places;
    };
    expect(-7, {"2.5 -> 3."});
    expect(0, {"2.4 -> 2.", "2.5 -> 3."});
    expect(1, {"-0.04 -> -0.0", "-0.05 -> -0.1", "99.95 -> 100.0"});
    expect(2, {"1.235 -> 1.24", "-1.235 -> -1.24", "1 -> 1.00", "1.995 -> 2.0"});
    expect(2, {"-0 -> -0.00", "-0E4 -> 0.00"}); // a product of zero has no sign
    expect(29, {"1.25 -> 1.25000000000000000000000000000"});
    expect(30, {"0.5 -> 0.5"});
    expect(2147483647, {"-0.25 -> -0.25"});
}

TEST(CDecimal, TextWithAPointIsCutTo1024Characters) {
    const std::u16string whole(2000, u'7');
    EXPECT_EQ(Dec(whole.c_str()).ToString(), whole);
    EXPECT_EQ(Dec((whole + u".5").c_str()).ToString(), whole.substr(0, 1024));
    EXPECT_EQ(Dec((u"-" + whole + u".5").c_str()).ToString(), u"-" + whole.substr(0, 1023));
}

TEST(CDecimal, ConversionsRoundAtTheirOwnPlace) {
    EXPECT_EQ(Dec(u"1.96").ToLong(), 2);
    EXPECT_EQ(Dec(u"1.96").ToLongLong(), 1);
    EXPECT_EQ(Dec(u"-1.5").ToLong(), -1);
    EXPECT_EQ(Dec(u"-1.51").ToLong(), -2);
    EXPECT_EQ(Dec(u"-0.7").ToLongLong(), 0);
    EXPECT_EQ(Dec(u"-2147483648.5").ToLong(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(Dec(u"-9223372036854775808.9").ToLongLong(), std::numeric_limits<long long>::min());
    EXPECT_EQ(Dec(u"1.51").ToBigInteger(), CBigInteger(2));
    EXPECT_EQ(CBigInteger(Dec(u"-1.5")), CBigInteger(-1));
    for (const auto& [text, value] :
         {std::pair{u"0.1", 0.1}, {u"-1.5", -1.5}, {u"1.7E308", 1.7e308}, {u"0", 0.0}, {u"1E22", 1e22}})
        EXPECT_EQ(Dec(text).ToDouble(), value);
}

TEST(CDecimal, ConversionsRefuseWhatIsTooLarge) {
    using Overflow = CKzOverFlowException;
    for (const char16_t* text : {u"2147483648", u"2147483647.6", u"-2147483649"})
        EXPECT_EQ(Failure<Overflow>([&] { Dec(text).ToLong(); }),
                  "The Decimal value if to large to fit into a LONG");
    for (const char16_t* text : {u"9223372036854775808", u"-9223372036854775809"})
        EXPECT_EQ(Failure<Overflow>([&] { Dec(text).ToLongLong(); }),
                  "The Decimal value if to large to fit into a LONGLONG");
    for (const char16_t* text : {u"1E+309", u"-1.8E308"})
        EXPECT_EQ(Failure<Overflow>([&] { Dec(text).ToDouble(); }),
                  "The Decimal value if to large to fit into a Double");
}

TEST(CDecimal, HostileTextsOfFourKilobytesAreQuick) {
    const std::u16string zeros(4000, u'0'), nines(4000, u'9');
    const std::u16string texts[] = {
        u"0." + zeros + u"1",       nines + u"E10000",       u"0." + nines + u"E-9999",
        u"1" + zeros + u"E-4000",   u"1E" + nines + u"x",    u"0." + zeros,
        nines + u"." + nines + u"", u"." + nines + u"e9999", std::u16string(4000, u'-')};
    const auto start = std::chrono::steady_clock::now();
    for (const std::u16string& text : texts) {
        try {
            const CDecimal value(text.c_str());
            value.ToString();
            EXPECT_LE(value, value + 1);
        } catch (const CKzInvalidValueException&) {
        }
    }
    for (int i = 0; i < 500; ++i)
        Dec(u"1E10000");
    // Microseconds each; the bound leaves room for builds with checks.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

} // namespace
