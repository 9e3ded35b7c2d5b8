#pragma once

#include <cstdint>
#include <string>

/// Arithmetic as on paper, slow and plain: what the library's fast one is compared with. Numbers are digits
/// without zeros in front, and "0"; no signs.
namespace fuzz::reference {

std::string Plain(std::string digits);
bool IsLess(const std::string& a, const std::string& b);
std::string Sum(const std::string& a, const std::string& b);
/// `b` is at most `a`.
std::string Difference(std::string a, const std::string& b);
std::string Product(const std::string& a, const std::string& b);

struct Quotient {
    std::string quotient;
    std::string remainder;
};
/// `b` is not zero.
Quotient Divide(const std::string& a, const std::string& b);

/// A number with a sign; zero has none.
struct Signed {
    bool negative = false;
    std::string magnitude = "0";

    Signed(bool negative, std::string digits);
    std::string Text() const { return (negative ? "-" : "") + magnitude; }
};
Signed Sum(const Signed& a, const Signed& b);

/// A date, moved on foot: a month at a time. The year wraps in 16 bits.
struct Date {
    std::int16_t year;
    int month;
    long long day;

    void AddMonths(long long months);
    void AddDays(long long days);
};

} // namespace fuzz::reference
