#pragma once

#include "support/Row.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>
#include <tuple>

namespace KzXmlLib10::support {

/// The texts of numbers, with a blank between.
template <class Number>
std::string Texts(std::initializer_list<Number> values) {
    std::string text;
    for (const Number& value : values)
        text += (text.empty() ? "" : " ") + ToUtf8(value.ToString());
    return text;
}

/// Compares what is read of each text.
template <class Number>
void ExpectTexts(std::initializer_list<Row> rows) {
    for (const Row& row : rows)
        EXPECT_EQ(Texts({Number(row.text.c_str())}), row.expected) << ToUtf8(row.text);
}

/// Compares each number with each by all operators.
template <class Number>
void ExpectAscending(std::initializer_list<Number> values) {
    for (const Number& a : values)
        for (const Number& b : values)
            EXPECT_EQ(std::tuple(a<b, a <= b, a> b, a >= b, a == b, a != b),
                      std::tuple(&a<&b, &a <= &b, &a> & b, &a >= &b, &a == &b, &a != &b))
                << Texts({a, b});
}

} // namespace KzXmlLib10::support
