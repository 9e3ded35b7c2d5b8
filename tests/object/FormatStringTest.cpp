#include "support/Test.h"

TEST(FormatString, Integers) {
    EXPECT_EQ(FormatString(u"%d|%5d|%-5d|%05d|%+d|% d|%.3d", -7, 7, 7, -7, 7, 7, 7),
              u"-7|    7|7    |-0007|+7| 7|007");
    EXPECT_EQ(FormatString(u"%u %lu %x %X %o %#x", 4294967295u, 4294967295u, 255, 255, 8, 255),
              u"4294967295 4294967295 ff FF 10 0xff");
    EXPECT_EQ(FormatString(u"0x%08X --%02u", 0x1Cu, 5u), u"0x0000001C --05");
    EXPECT_EQ(FormatString(u"%I64d %I64u", std::numeric_limits<long long>::min(),
                           std::numeric_limits<unsigned long long>::max()),
              u"-9223372036854775808 18446744073709551615");
    EXPECT_EQ(FormatString(u"%ld", std::numeric_limits<int>::min()), u"-2147483648");
    EXPECT_EQ(FormatString(u"%*d|%-*d|%*d|%.*f", 4, 1, 4, 1, -1, 1, 2, 1.0), u"   1|1   |1|1.00");
}

TEST(FormatString, RareForms) {
    constexpr int least = std::numeric_limits<int>::min();
    EXPECT_EQ(
        FormatString(u"%*d|%*d|%hd|%hu|%lld|%Fd|%Ld|%Nu", -4, 7, least, 7, 70000, 70000, 1ll << 40, 1, 2, 3u),
        u"7   |7|4464|4464|1099511627776|1|2|3");
    EXPECT_EQ(FormatString(u"%.0d|%#.0o|%#o|%#o|%#.3o", 0, 0, 0, 8, 8), u"|0|0|010|010");
    EXPECT_EQ(FormatString(u"%#g|%#g|%#g|%#g", 123456.0, 1234567.0, 0.0001, 0.00001),
              u"123456.|1.23457e+06|0.000100000|1.00000e-05");
    EXPECT_EQ(FormatString(u"%p", reinterpret_cast<void*>(0xABC)), u"0000000000000ABC");
    EXPECT_EQ(FormatString(u"%y|%I6d|%-5I32d|%"), u"%y|%I6d|%-5I32d|%"); // none of them is a placeholder
}

TEST(FormatString, TextAndCharacters) {
    EXPECT_EQ(FormatString(u"[%s] [%5s] [%-5s] [%05s] [%.2s] [%.0s]", u"abc", u"abc", u"abc", u"abc", u"abc",
                           u"abc"),
              u"[abc] [  abc] [abc  ] [00abc] [ab] []");
    EXPECT_EQ(FormatString(u"%s %c%%", static_cast<const char16_t*>(nullptr), u'\x4E2D'), u"(null) \x4E2D%");
    EXPECT_EQ(FormatString(u"%s", u"%n%s%d"), u"%n%s%d");
    const std::u16string longText(100000, u'x');
    EXPECT_EQ(FormatString(u"%s", longText.c_str()), longText);
}

TEST(FormatString, Reals) {
    EXPECT_EQ(FormatString(u"%f %.2f %e %g %G %.7g", 1.5, 2.0, 1e10, 1e20, 1e20, 0.1),
              u"1.500000 2.00 1.000000e+10 1e+20 1E+20 0.1");
    EXPECT_EQ(FormatString(u"%08.2f|%#.0f|%#g|%#.3g", -1.5, 3.0, 1.0, 1e5), u"-0001.50|3.|1.00000|1.00e+05");
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(FormatString(u"%f %05g %E", inf, -inf, inf), u"inf  -inf INF");
    const std::u16string huge = FormatString(u"%f", 1e300);
    EXPECT_EQ(huge.size(), 308u);
    EXPECT_TRUE(
        huge.starts_with(u"1000000000000000052504760255204420248704468581108159154915854115511802457988"));
}
