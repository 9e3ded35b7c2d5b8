#include "values/Numbers.h"

namespace {

using Big = CBigInteger;
using Digits = CBigInteger::Digits;

/// What static objects of other sources see of the limits and of the maximum of places.
const long long readAtLoadTime =
    static_cast<long long>(CBigInteger(u"-9223372036854775808.0")) + CDecimal(u"2147483647").ToLong();

TEST(CBigInteger, ParseReadsDecimals) {
    ExpectTexts<Big>({"    -> 0",          "-0 -> 0",      "007 -> 7",   "+5 -> 5",
                      "  -42   -> -42",    "- 5 -> -5",    "12-3 -> 3",  "1 2 -> 2",
                      "\t-5 -> 5",         "12\n -> 0",    "- -> 0", // and with fractions:
                      "1.9 -> 2",          "1.5 -> 1",     "-1.9 -> -2", "12.7 -> 13",
                      "1.5E3 -> 1500",     "-25e-1 -> -2", "1 2. -> 12", "0E99999999999999999999 -> 0",
                      "1E-2147483649 -> 0"});
    EXPECT_EQ(InvalidValue([] { Big(u"12x"); }),
              "The string representing a Decimal, contained an invalid char at position 2 [12x]");
    EXPECT_EQ(InvalidValue([] { Big(u"1E999999999"); }),
              "The string representing a Decimal, contained an exponent above 10000 [1E999999999]");
}

TEST(CBigInteger, MachineNumbersGoBothWays) {
    EXPECT_EQ(Texts<Big>({0.5, 1.5, 1.51, -2.5, -0.3, std::nan(""), 1e23}), // all the digits of the double
              "0 1 2 -2 0 0 100000000000000000000002");
    EXPECT_EQ(InvalidValue([] { Big(-std::numeric_limits<double>::infinity()); }),
              "ERROR: Infinity is not an integer.");
    EXPECT_EQ(readAtLoadTime, std::numeric_limits<long long>::min() + 2147483647);
    const auto holds = []<class T>(T limit, const std::string& text, const std::string& type) {
        const Big big(limit);
        EXPECT_EQ(Texts({big}), text);
        EXPECT_EQ(static_cast<T>(big), limit);
        EXPECT_EQ(InvalidValue([&] { (void)static_cast<T>(limit < 0 ? big - 1 : big + 1); }),
                  "ERROR: Value out of bound of " + type + ".");
    };
    holds(std::numeric_limits<int>::min(), "-2147483648", "int");
    holds(std::numeric_limits<int>::max(), "2147483647", "int");
    holds(std::numeric_limits<long long>::min(), "-9223372036854775808", "LONGLONG");
    holds(std::numeric_limits<long long>::max(), "9223372036854775807", "LONGLONG");
}

TEST(CBigInteger, LongProductsOfNinesDoNotOverflow) {
    // (10^n - 1)^2 is n - 1 nines, 8, n - 1 zeros, 1: the largest sums that a product of that length has.
    // Their quotients need no more stack than a small thread has.
    RunOnStack(256 * 1024, [] {
        for (const std::size_t n : {1, 9, 10, 144, 153, 500, 20'000}) {
            const Big nines = Big::Pow10(static_cast<std::uint32_t>(n)) - 1;
            EXPECT_EQ(Texts({nines * nines}), std::string(n - 1, '9') + "8" + std::string(n - 1, '0') + "1");
            EXPECT_EQ(nines * nines / nines, nines);
        }
    });
}

TEST(CBigInteger, DivisionTruncatesTowardZero) {
    EXPECT_EQ(Texts({Big(-7) / 2, Big(7) / -2, Big(-7) / -2, Big(-7) % 2, Big(0) % 0}), "-3 -3 3 -1 0");
    // An estimated limb of the quotient is one too high here, and is taken back.
    Big x(u"999999998500000000999999998999999999");
    const Big divisor(u"500000000000000000500000001");
    EXPECT_EQ(Texts({x / divisor, x % divisor}), "1999999996 499999999999999999000000003");
    EXPECT_EQ(Texts({Big(x /= 1000000000), Big(x %= 1000000000)}), "999999998500000000999999998 999999998");
    const std::string quotient = "ERROR: Overflow in operator/.", remainder = "ERROR: Overflow in operator%.";
    EXPECT_EQ(InvalidValue([&] { x / Big(0); }), quotient);
    EXPECT_EQ(InvalidValue([&] { Big(0) % Big(u"-0"); }), remainder); // -0 < 0
    for (const int bad : {-2, 0}) {
        EXPECT_EQ(InvalidValue([&] { x % Big(bad); }), remainder);
        EXPECT_EQ(InvalidValue([&] { x /= bad; }), "ERROR: Overflow in operator /=.");
        EXPECT_EQ(InvalidValue([&] { x %= bad; }), "ERROR: Overflow in operator%=.");
    }
    Digits q, r;
    EXPECT_EQ(InvalidValue([&] { Big::Divide({1}, {0, 0}, q, r); }), quotient);
}

TEST(CBigInteger, SignsOfZerosAndOfWhatChangesInPlace) {
    const Big zero, negativeZero(u"-0");
    EXPECT_TRUE(negativeZero == zero && negativeZero < zero && negativeZero <= zero && zero > negativeZero);
    EXPECT_FALSE(zero <= negativeZero || negativeZero >= zero || zero != negativeZero);
    Big x(u"-99999999999999999999");
    const Big& itself = x;
    EXPECT_EQ(Texts({Big(x += itself), Big(x -= itself)}), "-199999999999999999998 0");
    EXPECT_TRUE(x >= zero); // the sign of a sum of zero is plus
    x = 5;
    EXPECT_EQ(&-x, &x);
    EXPECT_EQ(Texts({x, x.GetNegative(), x.GetAbs(), x}), "-5 5 5 -5");
    x.Abs();
    EXPECT_EQ(x, Big(5));
    x = -2;
    x *= 3; // a negative product in place has no readable sign
    EXPECT_EQ(Texts({x, Big(-2) * 3}), "6 -6");
    EXPECT_TRUE(x != Big(6) && x != Big(-6) && x < Big(-7) && x > Big(-5)); // by magnitude
    EXPECT_EQ(InvalidValue([&] { (void)static_cast<int>(x); }), "ERROR: Value out of bound of int.");
    x *= -1; // 65535 times -1 is 1 in 16 bits
    EXPECT_EQ(x, Big(6));
}

TEST(CBigInteger, DigitHelpersWorkInPlace) {
    Digits built, product, nothing, a{0, 0, 7}, b{0, 3};
    Big::Build(u"x0012", built);
    Big::Multiply({9, 9}, std::uint16_t{9}, product);
    Big::Multiply({9, 9}, std::uint16_t{0}, nothing);
    Big::ShiftLeft(nothing, 3);
    Big::Divide(a, b, b, a); // 700 by 30
    EXPECT_EQ((std::vector{built, product, nothing, a, b}),
              (std::vector<Digits>{{2, 1}, {1, 9, 8}, {0}, {0, 1}, {3, 2}}));
    EXPECT_EQ(Big::Position({}), 1u);
    EXPECT_EQ(Texts({Big(-1, {5, 0, 0}), Big(1, {}), Big::Pow10(0)}), "-5 0 1");
    EXPECT_EQ(InvalidValue([] { Big::Pow10(4294967295u); }),
              "ERROR: The power of ten 4294967295 is above the limit of 100000000.");
}

} // namespace
