#pragma once

#include "support/Test.h"

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
    ExpectRows(rows, [](const char16_t* text) { return Texts({Number(text)}); });
}

} // namespace KzXmlLib10::support
