#include "support/Reference.h"

#include <algorithm>
#include <utility>

namespace fuzz::reference {

std::string Plain(std::string digits) {
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    return digits.empty() ? "0" : digits;
}

bool IsLess(const std::string& a, const std::string& b) {
    return a.size() != b.size() ? a.size() < b.size() : a < b;
}

std::string Sum(const std::string& a, const std::string& b) {
    std::string sum;
    int carry = 0;
    for (std::size_t i = 0; i < std::max(a.size(), b.size()) || carry; ++i) {
        carry += i < a.size() ? a[a.size() - 1 - i] - '0' : 0;
        carry += i < b.size() ? b[b.size() - 1 - i] - '0' : 0;
        sum += static_cast<char>('0' + carry % 10);
        carry /= 10;
    }
    std::reverse(sum.begin(), sum.end());
    return Plain(std::move(sum));
}

std::string Difference(std::string a, const std::string& b) {
    int borrow = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        char& digit = a[a.size() - 1 - i];
        const int left = digit - '0' - borrow - (i < b.size() ? b[b.size() - 1 - i] - '0' : 0);
        borrow = left < 0;
        digit = static_cast<char>('0' + left + 10 * borrow);
    }
    return Plain(std::move(a));
}

std::string Product(const std::string& a, const std::string& b) {
    std::string product = "0";
    for (const char digit : b) {
        product = Plain(product + '0');
        for (int i = 0; i < digit - '0'; ++i)
            product = Sum(product, a);
    }
    return product;
}

Quotient Divide(const std::string& a, const std::string& b) {
    Quotient result{"", "0"};
    for (const char digit : a) {
        result.remainder = Plain(result.remainder + digit);
        char count = '0';
        for (; !IsLess(result.remainder, b); ++count)
            result.remainder = Difference(result.remainder, b);
        result.quotient += count;
    }
    result.quotient = Plain(result.quotient);
    return result;
}

Signed::Signed(bool isNegative, std::string digits)
    : negative(isNegative), magnitude(Plain(std::move(digits))) {
    if (magnitude == "0")
        negative = false;
}

Signed Sum(const Signed& a, const Signed& b) {
    if (a.negative == b.negative)
        return {a.negative, Sum(a.magnitude, b.magnitude)};
    if (IsLess(a.magnitude, b.magnitude))
        return {b.negative, Difference(b.magnitude, a.magnitude)};
    return {a.negative, Difference(a.magnitude, b.magnitude)};
}

namespace {

int Length(int year, int month) {
    constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return lengths[month - 1] + (month == 2 && leap);
}

} // namespace

void Date::AddMonths(long long months) {
    for (; months > 0; --months) {
        year = static_cast<std::int16_t>(year + (month == 12));
        month = month % 12 + 1;
    }
    for (; months < 0; ++months) {
        year = static_cast<std::int16_t>(year - (month == 1));
        month = (month + 10) % 12 + 1;
    }
}

void Date::AddDays(long long days) {
    day += days;
    while (days > 0 && day > Length(year, month)) {
        day -= Length(year, month);
        AddMonths(1);
    }
    while (days < 0 && day < 1) {
        AddMonths(-1);
        day += Length(year, month);
    }
}

} // namespace fuzz::reference
