#include <KzXmlLib10/values/CBigInteger.h>

#include <KzXmlLib10/values/CDecimal.h>

#include "support/Failure.h"
#include "support/Row.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>

using namespace KzXmlLib10;
using support::Failure;
using support::Row;

namespace {

using Digits = CBigInteger::Digits;
using Value = CKzInvalidValueException;

CBigInteger Big(const char16_t* text) { return CBigInteger(text); }

std::string Text(const CBigInteger& value) { return ToUtf8(value.ToString()); }

/// What static objects of other sources see of the limits and of the maximum of places.
const long long readAtLoadTime =
    static_cast<long long>(CBigInteger(u"-9223372036854775808.0")) + CDecimal(u"2147483647").ToLong();

void ExpectTexts(std::initializer_list<Row> rows) {
    for (const Row& row : rows)
        EXPECT_EQ(Text(Big(row.text.c_str())), row.expected) << ToUtf8(row.text);
}

TEST(CBigInteger, ParseReadsTheStatedForms) {
    ExpectTexts({" -> 0", "    -> 0", "-0 -> 0", "007 -> 7", "+5 -> 5", "  -42   -> -42", "- 5 -> -5",
                 "12-3 -> 3", "1 2 -> 2", "\t-5 -> 5", "12\n -> 0", "- -> 0", "1.9 -> 2", "1.5 -> 1",
                 "-1.9 -> -2", "12.7 -> 13", "1.5E3 -> 1500", "-25e-1 -> -2", "1 2. -> 12"});
    ExpectTexts({"0E99999999999999999999 -> 0", "1E-2147483649 -> 0"});
}

TEST(CBigInteger, ParseRefusesWhatIsNoDecimal) {
    EXPECT_EQ(Failure<Value>([] { Big(u"12x"); }),
              "The string representing a Decimal, contained an invalid char at position 2 [12x]");
    EXPECT_EQ(Failure<Value>([] { Big(u"1E999999999"); }),
              "The string representing a Decimal, contained an exponent above 10000 [1E999999999]");
    EXPECT_EQ(Failure<CKzInvalidParamException>([] { CBigInteger(static_cast<const char16_t*>(nullptr)); }),
              "The argument text may not be null");
}

TEST(CBigInteger, MachineNumbersOfEveryWidth) {
    EXPECT_EQ(Text(std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(Text(std::numeric_limits<long>::min()), "-9223372036854775808");
    EXPECT_EQ(Text(std::numeric_limits<long long>::max()), "9223372036854775807");
    for (const auto& [value, expected] :
         {std::pair{0.5, "0"}, {1.5, "1"}, {1.51, "2"}, {-2.5, "-2"}, {-0.3, "0"}, {std::nan(""), "0"}})
        EXPECT_EQ(Text(value), expected);
    EXPECT_EQ(Text(1e23), "100000000000000000000002"); // the digits of the double
    EXPECT_EQ(Failure<Value>([] { CBigInteger(-std::numeric_limits<double>::infinity()); }),
              "ERROR: Infinity is not an integer.");
    EXPECT_EQ(readAtLoadTime, std::numeric_limits<long long>::min() + 2147483647);
}

TEST(CBigInteger, ConversionsHoldTheirBounds) {
    for (const int value : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        const CBigInteger big(value);
        EXPECT_EQ(static_cast<int>(big), value);
        EXPECT_EQ(Failure<Value>([&] { (void)static_cast<int>(value < 0 ? big - 1 : big + 1); }),
                  "ERROR: Value out of bound of int.");
    }
    for (const long long value :
         {std::numeric_limits<long long>::min(), std::numeric_limits<long long>::max()}) {
        const CBigInteger big(value);
        EXPECT_EQ(static_cast<long long>(big), value);
        EXPECT_EQ(Failure<Value>([&] { (void)static_cast<long long>(value < 0 ? big - 1 : big + 1); }),
                  "ERROR: Value out of bound of LONGLONG.");
    }
}

TEST(CBigInteger, SumsCarryAndBorrowAcrossTheWholeLength) {
    const CBigInteger nines(u"99999999999999999999");
    const CBigInteger power(u"100000000000000000000");
    EXPECT_EQ(Text(nines + 1), "100000000000000000000");
    EXPECT_EQ(Text(CBigInteger(1) - power), "-99999999999999999999");
    EXPECT_EQ(Text(nines - power), "-1");
    EXPECT_EQ(Text(CBigInteger(-5) - CBigInteger(-5)), "0");
    EXPECT_TRUE(CBigInteger(5) + CBigInteger(-5) >= CBigInteger(0)); // the sign of this zero is +
    CBigInteger x(nines);
    const CBigInteger& itself = x;
    x += itself;
    EXPECT_EQ(Text(x), "199999999999999999998");
    x -= itself;
    EXPECT_EQ(Text(x), "0");
}

TEST(CBigInteger, LongProductsOfNinesDoNotOverflow) {
    // (10^n - 1)^2 is n - 1 nines, 8, n - 1 zeros, 1: the largest sums that a product of that length has.
    for (const std::size_t n : {1, 9, 10, 144, 153, 500}) {
        const CBigInteger nines = CBigInteger::Pow10(static_cast<std::uint32_t>(n)) - 1;
        EXPECT_EQ(Text(nines * nines), std::string(n - 1, '9') + "8" + std::string(n - 1, '0') + "1");
        EXPECT_EQ(nines * nines / nines, nines);
    }
}

TEST(CBigInteger, QuotientsAreTruncatedAndRemaindersFollowTheDividend) {
    EXPECT_EQ(Text(CBigInteger(-7) / 2), "-3");
    EXPECT_EQ(Text(CBigInteger(7) / -2), "-3");
    EXPECT_EQ(Text(CBigInteger(-7) / -2), "3");
    EXPECT_EQ(Text(CBigInteger(-7) % 2), "-1");
    EXPECT_EQ(Text(CBigInteger(0) % 0), "0");
    // An estimated limb of the quotient is one too high here, and is taken back.
    const CBigInteger dividend(u"999999998500000000999999998999999999");
    const CBigInteger divisor(u"500000000000000000500000001");
    EXPECT_EQ(Text(dividend / divisor), "1999999996");
    EXPECT_EQ(Text(dividend % divisor), "499999999999999999000000003");
    CBigInteger quotient(dividend);
    quotient /= 1000000000;
    EXPECT_EQ(Text(quotient), "999999998500000000999999998");
    quotient %= 1000000000;
    EXPECT_EQ(Text(quotient), "999999998");
}

TEST(CBigInteger, EachDivisionRefusesItsOwnDivisors) {
    CBigInteger x(7);
    EXPECT_EQ(Failure<Value>([&] { x / CBigInteger(0); }), "ERROR: Overflow in operator/.");
    EXPECT_EQ(Failure<Value>([&] { CBigInteger(0) / Big(u"-0"); }), "ERROR: Overflow in operator/.");
    EXPECT_EQ(Failure<Value>([&] { CBigInteger(0) % Big(u"-0"); }),
              "ERROR: Overflow in operator%."); // -0 < 0
    for (const int divisor : {-2, 0}) {
        EXPECT_EQ(Failure<Value>([&] { x % CBigInteger(divisor); }), "ERROR: Overflow in operator%.");
        EXPECT_EQ(Failure<Value>([&] { x /= divisor; }), "ERROR: Overflow in operator /=.");
        EXPECT_EQ(Failure<Value>([&] { x %= divisor; }), "ERROR: Overflow in operator%=.");
    }
    EXPECT_EQ(Text(x), "7");
    Digits quotient, remainder;
    EXPECT_EQ(Failure<Value>([&] {
                  CBigInteger::Divide({1}, {0, 0}, quotient, remainder);
              }),
              "ERROR: Overflow in operator/.");
}

TEST(CBigInteger, NegativeProductInPlaceHasNoReadableSign) {
    CBigInteger x(-2);
    x *= 3;
    EXPECT_EQ(Text(x), "6");
    EXPECT_NE(x, CBigInteger(6));
    EXPECT_NE(x, CBigInteger(-6));
    EXPECT_TRUE(x < CBigInteger(-7) && x > CBigInteger(-5)); // by magnitude
    EXPECT_EQ(Failure<Value>([&] { (void)static_cast<int>(x); }), "ERROR: Value out of bound of int.");
    x *= -1; // 65535 times -1 is 1 in 16 bits
    EXPECT_EQ(x, CBigInteger(6));
    EXPECT_EQ(Text(CBigInteger(-2) * 3), "-6");
}

TEST(CBigInteger, NegativeZeroEqualsZeroAndIsLess) {
    const CBigInteger zero, negativeZero(u"-0");
    EXPECT_TRUE(negativeZero == zero && negativeZero < zero && negativeZero <= zero);
    EXPECT_FALSE(zero <= negativeZero || negativeZero >= zero);
    EXPECT_TRUE(zero > negativeZero && !(zero != negativeZero));
}

TEST(CBigInteger, OrderGoesBySignThenMagnitude) {
    const char16_t* ascending[] = {u"-100", u"-99", u"-1", u"0", u"1", u"19", u"21", u"100"};
    for (std::size_t i = 0; i < std::size(ascending); ++i) {
        for (std::size_t j = 0; j < std::size(ascending); ++j) {
            const CBigInteger a(ascending[i]), b(ascending[j]);
            EXPECT_EQ(std::tuple(a<b, a <= b, a> b, a >= b, a == b, a != b),
                      std::tuple(i<j, i <= j, i> j, i >= j, i == j, i != j))
                << Text(a) << " " << Text(b);
        }
    }
}

TEST(CBigInteger, UnaryMinusChangesItsOperand) {
    CBigInteger x(5);
    EXPECT_EQ(&-x, &x);
    EXPECT_EQ(Text(x), "-5");
    EXPECT_EQ(Text(x.GetNegative()) + " " + Text(x.GetAbs()) + " " + Text(x), "5 5 -5");
    x.Abs();
    EXPECT_EQ(Text(x), "5");
}

TEST(CBigInteger, SquareRoots) {
    for (const auto& [text, expected] :
         {std::pair{u"1", "1"},
          {u"3", "1"},
          {u"99", "9"},
          {u"100", "10"},
          {u"15241578753238836750495351562536198787501905199875019052099", "123456789012345678901234567889"},
          {u"15241578753238836750495351562536198787501905199875019052100", "123456789012345678901234567890"}})
        EXPECT_EQ(Text(Big(text).SquareRoot()), expected);
    EXPECT_EQ(Failure<Value>([] { CBigInteger(-1).SquareRoot(); }),
              "ERROR: Negative Number in function SquareRoot().");
    EXPECT_EQ(Failure<Value>([] { CBigInteger(0).SquareRoot(); }), "ERROR: Overflow in operator/.");
}

TEST(CBigInteger, DigitHelpersGiveCleanResultsAlsoInPlace) {
    Digits out;
    CBigInteger::Build(u"x0012", out);
    EXPECT_EQ(out, (Digits{2, 1}));
    CBigInteger::Subtract({0, 0, 1}, {9, 9}, out);
    EXPECT_EQ(out, (Digits{1}));
    CBigInteger::Multiply({9, 9}, std::uint16_t{9}, out);
    EXPECT_EQ(out, (Digits{1, 9, 8}));
    CBigInteger::Multiply({9, 9}, std::uint16_t{0}, out);
    EXPECT_EQ(out, (Digits{0}));
    CBigInteger::ShiftLeft(out, 3);
    EXPECT_EQ(out, (Digits{0}));
    Digits a{0, 0, 7}, b{0, 3};
    CBigInteger::Divide(a, b, b, a); // 700 by 30
    EXPECT_EQ(a, (Digits{0, 1}));
    EXPECT_EQ(b, (Digits{3, 2}));
    EXPECT_EQ(CBigInteger::Position({}), 1u);
    EXPECT_EQ(Text(CBigInteger(-1, {5, 0, 0})), "-5");
    EXPECT_EQ(CBigInteger(1, {}), CBigInteger(0));
    EXPECT_EQ(Text(CBigInteger::Pow10(0)) + " " + Text(CBigInteger::Pow10(20)), "1 100000000000000000000");
    EXPECT_EQ(Failure<Value>([] { CBigInteger::Pow10(4294967295u); }),
              "ERROR: The power of ten 4294967295 is above the limit of 100000000.");
}

TEST(CBigInteger, LongNumbersTakeLinearTimeToReadAndPrint) {
    std::u16string text;
    for (int i = 0; i < 1'000'000; ++i)
        text += static_cast<char16_t>(u'1' + i % 9);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(CBigInteger(text.c_str()).ToString(), text);
    EXPECT_EQ(CDecimal((u"0" + text + u".5").c_str()).ToBigInteger().ToString(), text);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
}

} // namespace
