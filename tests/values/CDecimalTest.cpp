#include "values/Numbers.h"

namespace {

using Dec = CDecimal;

std::string Text(const Dec& value) { return ToUtf8(value.ToString()); }

/// Sets the maximum of places for one test.
struct MaxPlaces {
    explicit MaxPlaces(std::int32_t places) { CDecimal::SetMaxDecimalPlaces(places); }
    ~MaxPlaces() { CDecimal::SetMaxDecimalPlaces(m_before); }
    const std::int32_t m_before = CDecimal::GetMaxDecimalPlaces();
};

TEST(CDecimal, ParseReadsTheStatedFormsAndExponents) {
    ExpectTexts<Dec>({" -> 0", "-0 -> 0", "1.50 -> 1.5", "1.0 -> 1", "0.05 -> 0.05", "-0.5 -> -0.5",
                      ".5 -> 0.5", "5. -> 5", "1 2.5 -> 12.5", "12- -> -12", "-+-7 -> -7",
                      "\t1\r\n. 2 5  -> 1.25", "007.10 -> 7.1", ". -> 0", "1.000000001 -> 1.000000001",
                      "1000000000.0 -> 1000000000", // and with exponents:
                      "1E2 -> 100", "1E-2 -> 0.01", "1.5E+1 -> 15", "-12.345e1 -> -123.45",
                      "-12.345e-1 -> -1.2345", "1E +- 2 -> 0.01", "5e -> 5", "5e- -> 5", "E7 -> 0",
                      "1E0000000000000000000000000000000000000000002 -> 100", "0E4294967297 -> 0",
                      "-1E-99999999999999999999999999 -> 0", "1E-30 -> 0.000000000000000000000000000001",
                      // A negative exponent divides: two guard digits are truncated before the rounding.
                      "5.01E-31 -> 0", "5.1E-31 -> 0.000000000000000000000000000001",
                      "0.00000000000000000000000000000051 -> 0.000000000000000000000000000001"});
    EXPECT_EQ(Text(Dec(u"1E10000")), "1" + std::string(10000, '0'));
}

TEST(CDecimal, ParseShowsTheFirstCharacterThatDoesNotFit) {
    ExpectRows({"1.2.3 -> 3", "12x -> 2", "x -> 0", "1.5- -> 3", "1E2  -> 3", "1E2 3 -> 3", "1.5E2. -> 5",
                "1E2E -> 3", " 1\u00A0 -> 2", "\u0661 -> 0"},
               [](const std::u16string& text) {
                   const std::string words =
                       "The string representing a Decimal, contained an invalid char at position ";
                   const std::string message = InvalidValue([&] { Dec(text.c_str()); });
                   EXPECT_TRUE(message.starts_with(words) && message.ends_with(" [" + ToUtf8(text) + "]"));
                   return message.substr(words.size(), 1);
               });
    EXPECT_EQ(InvalidValue([] { Dec(u"-1e10001"); }),
              "The string representing a Decimal, contained an exponent above 10000 [-1e10001]");
    EXPECT_EQ(InvalidParam([] { Dec(static_cast<const char16_t*>(nullptr)); }),
              "The argument text may not be null");
}

TEST(CDecimal, ParseRoundsATieTowardZero) {
    // Zeros at the end are dropped before the cut, not after it.
    const std::u16string thirty = u"-0.123456789012345678901234567890";
    for (const auto& [more, last] :
         {std::pair{u"5", u'0'}, {u"50", u'0'}, {u"49999", u'0'}, {u"500001", u'1'}, {u"6", u'1'}})
        EXPECT_EQ(Dec((thirty + more).c_str()).ToString(), thirty.substr(0, 32) + last);
    const MaxPlaces two(2);
    ExpectTexts<Dec>({"1.239 -> 1.24", "1.235 -> 1.23", "-1.235 -> -1.23", "-1.2351 -> -1.24", "0.004 -> 0",
                      "-0.0051 -> -0.01"});
    const MaxPlaces one(1); // rounding up to a whole unit is not carried
    ExpectTexts<Dec>({"0.99 -> 0.10", "-3.96 -> -3.10"});
    EXPECT_NE(Dec(u"0.99"), Dec(1));
    EXPECT_EQ(Text(Dec(u"0.99") + 0), "1");
}

TEST(CDecimal, MaximumOfPlacesIsClampedInUse) {
    {
        const MaxPlaces none(-1);
        EXPECT_EQ(Dec::GetMaxDecimalPlaces(), -1);
        EXPECT_EQ(Text(Dec(u"1.5") + Dec(u"-2.6")), "-2"); // 1 and -3
        EXPECT_EQ(Texts({Dec(u"7") / Dec(u"4"), Dec(u"1.5") * 0}), "2 0");
        EXPECT_EQ(Dec(u"7.2").ToString(3), u"7.0");
    }
    {
        const MaxPlaces two(2);
        const Dec unit(u"0.999"); // a fraction of a whole unit
        const MaxPlaces more(4);
        EXPECT_EQ(Texts({unit, unit + unit, unit + 1}) + ToUtf8(u' ' + unit.ToString(3)),
                  "0.100 1.10 2 1.000");
    }
    const MaxPlaces huge(std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(Dec(u"-1e-4096").ToString().size(), 1024u); // cut
    EXPECT_EQ(Dec(u"-1e-4096").GetNegative().ToString(5000).size(), 4098u);
    EXPECT_EQ(Text(Dec(u"1e-4097")), "0");
    EXPECT_EQ(Dec(u"1") / 3 * 3 + Dec(u"1e-4096"), Dec(u"1"));
}

TEST(CDecimal, MachineNumbers) {
    EXPECT_EQ(Texts<Dec>({std::numeric_limits<int>::min(), std::numeric_limits<long>::min(),
                          CBigInteger(u"123456789012345678901234567890")}),
              "-2147483648 -9223372036854775808 123456789012345678901234567890");
    EXPECT_EQ(Dec().ToString(1) + Dec(0).ToString(1) + Dec(-5LL).ToString(1), u"0.00.0-5.0");
    EXPECT_EQ(Texts<Dec>({0.1, -2.5, 1e-14, 1.0 / 3, 1e22}),
              "0.1 -2.5 0 0.3333333333333 10000000000000000000000");
    EXPECT_EQ(Text(std::numeric_limits<double>::max()).size(), 309u);
    EXPECT_TRUE(InvalidValue([] { Dec(std::nan("")); }).ends_with(" [nan\n]"));
}

TEST(CDecimal, SumsAreExact) {
    EXPECT_EQ(Texts({Dec(u"0.1") + Dec(u"0.2"), Dec(u"0.95") + Dec(u"0.05"), Dec(u"1.2") - Dec(u"0.5"),
                     Dec(u"0.5") - Dec(u"1.2"), Dec(u"-0.6") + Dec(u"-0.6"), Dec(u"0.25") - Dec(u"0.5"),
                     Dec(u"3.5") - Dec(u"3.5")}),
              "0.3 1 0.7 -0.7 -1.2 -0.25 0");
    Dec x(u"-0.5");
    EXPECT_EQ(Texts({x++, ++x, x--, --x}), "-0.5 1.5 1.5 -0.5");
}

TEST(CDecimal, SignOfAZeroFractionDecidesNothing) {
    Dec minusOne(1);
    minusOne.Negate(); // its fraction is a negative zero, that of Dec(-1) is not
    EXPECT_EQ(Text(minusOne.GetNegative() + minusOne.GetNegative()), "2");
    EXPECT_EQ(Text(Dec(-1).GetNegative() + Dec(-1).GetNegative()), "2");
    EXPECT_EQ((Dec(u"-1e0") + Dec(u"-1.00").GetNegative()).ToString(2), u"0.00");
    EXPECT_TRUE(minusOne == Dec(-1) && !(minusOne < Dec(-1)) && minusOne <= Dec(u"-1.00"));
    EXPECT_TRUE(Dec(u"-0") == Dec() && !(Dec(u"-0") < Dec()) && Dec(u"-0") >= Dec());
}

TEST(CDecimal, ProductsAndQuotientsRoundOnce) {
    EXPECT_EQ(
        Texts({Dec(u"19.99") * Dec(u"-1.2"), Dec(u"-0.5") * Dec(u"0.5"), Dec(u"0.001") / Dec(u"0.00002"),
               Dec(u"1e-16") * Dec(u"5e-15"), Dec(u"1e-16") * Dec(u"-5.1e-15")}), // half a unit goes down
        "-23.988 -0.25 50 0 -0.000000000000000000000000000001");
    EXPECT_EQ(Texts({Dec(1) / 3, Dec(2) / -3}),
              "0." + std::string(30, '3') + " -0." + std::string(29, '6') + "7");
    EXPECT_EQ(InvalidValue([] { Dec(u"1.5") / Dec(u"-0.0"); }), "ERROR: Overflow in operator/.");
    Dec x(u"10");
    EXPECT_EQ(Texts({x /= 4, x *= 3, x += Dec(u"0.25"), x -= 1}), "2.5 7.5 7.75 6.75");
}

TEST(CDecimal, OrderIsByValue) {
    const Dec values[] = {u"-10.1", u"-10.09", u"-0.5", u"-0.05", 0, u"0.049", u"0.5", 1, u"1.05", 10};
    for (const Dec& a : values)
        for (const Dec& b : values)
            EXPECT_EQ(std::tuple(a<b, a <= b, a> b, a >= b, a == b, a != b),
                      std::tuple(&a<&b, &a <= &b, &a> & b, &a >= &b, &a == &b, &a != &b))
                << Texts({a, b});
    EXPECT_EQ(Dec(u"1.5"), Dec(u"1.50"));
}

TEST(CDecimal, ToStringRoundsAHalfAwayFromZero) {
    // A product of zero has no sign.
    ExpectRows({"-7 2.5 -> 3.", "0 2.4 -> 2.", "0 2.5 -> 3.", "1 -0.04 -> -0.0", "1 -0.05 -> -0.1",
                "1 99.95 -> 100.0", "2 1.235 -> 1.24", "2 -1.235 -> -1.24", "2 1 -> 1.00", "2 1.995 -> 2.0",
                "2 -0 -> -0.00", "2 -0E4 -> 0.00", "29 1.25 -> 1.25000000000000000000000000000",
                "30 0.5 -> 0.5", "2147483647 -0.25 -> -0.25"},
               [](const std::u16string& row) {
                   const Dec value(row.substr(row.find(u' ')).c_str());
                   return ToUtf8(value.ToString(std::stoi(ToUtf8(row))));
               });
    // Text with a point is cut to 1024 characters.
    const std::u16string whole(2000, u'7');
    EXPECT_EQ(Dec(whole.c_str()).ToString(), whole);
    EXPECT_EQ(Dec((whole + u".5").c_str()).ToString(), whole.substr(0, 1024));
    EXPECT_EQ(Dec((u"-" + whole + u".5").c_str()).ToString(), u"-" + whole.substr(0, 1023));
}

TEST(CDecimal, ConversionsRoundEachInItsWay) {
    ExpectRows({"1.96 -> 2 1 2", "-1.5 -> -1 -1 -1", "-1.51 -> -2 -1 -2", "-0.7 -> -1 0 -1",
                "-2147483648.5 -> -2147483648 -2147483648 -2147483648"},
               [](const char16_t* text) {
                   const Dec value(text);
                   return std::to_string(value.ToLong()) + " " + std::to_string(value.ToLongLong()) + " " +
                          ToUtf8(CBigInteger(value).ToString());
               });
    EXPECT_EQ(Dec(u"-9223372036854775808.9").ToLongLong(), std::numeric_limits<long long>::min());
    EXPECT_EQ(Dec(u"9223372036854775807").ToLongLong(), std::numeric_limits<long long>::max());
    for (const auto& [text, value] :
         {std::pair{u"0.1", 0.1}, {u"-1.5", -1.5}, {u"1.7E308", 1.7e308}, {u"0", 0.0}, {u"1E22", 1e22}})
        EXPECT_EQ(Dec(text).ToDouble(), value);
    const auto refused = [](auto conversion, const std::string& type, auto... texts) {
        for (const char16_t* text : {texts...})
            EXPECT_EQ(Failure<CKzOverFlowException>([&] { (Dec(text).*conversion)(); }),
                      "The Decimal value if to large to fit into a " + type);
    };
    refused(&Dec::ToLong, "LONG", u"2147483648", u"2147483647.6", u"-2147483649");
    refused(&Dec::ToLongLong, "LONGLONG", u"9223372036854775808", u"-9223372036854775809");
    refused(&Dec::ToDouble, "Double", u"1E+309", u"-1.8E308");
}

} // namespace
