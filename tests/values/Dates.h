#pragma once

#include "support/Test.h"

namespace KzXmlLib10::support {

/// A dateTime if there is a T in the text, a time if it begins like one, otherwise a date.
inline CDateTime Moment(const std::u16string& text) {
    CDateTime value;
    const bool isTime = text.size() > 2 && text[2] == u':';
    (value.*(text.find(u'T') != text.npos ? &CDateTime::ParseXSDDateTime
             : isTime                     ? &CDateTime::ParseXSDTime
                                          : &CDateTime::ParseXSDDate))(text.c_str());
    return value;
}

inline CDateTimeSpan Span(const std::u16string& text) {
    CDateTimeSpan span;
    span.ParseXSDDuration(text.c_str());
    return span;
}

/// Compares in each row, such as "2001 < 2002", what CompareTo and the operators say of two values: = < > or
/// ? for indeterminate. `parse` reads a value.
template <class Parse>
void ExpectAnswers(Parse parse, std::initializer_list<std::string> rows) {
    for (const std::string& row : rows) {
        const std::size_t blank = row.find(' ');
        const auto left = parse(FromUtf8(row.substr(0, blank))),
                   right = parse(FromUtf8(row.substr(blank + 3)));
        const char answer = row[blank + 1];
        EXPECT_EQ("=<>?"[left.CompareTo(right)], answer) << row;
        EXPECT_EQ(std::tuple(left == right, left != right, left<right, left> right),
                  std::tuple(answer == '=', answer != '=', answer == '<', answer == '>'))
            << row;
    }
}

} // namespace KzXmlLib10::support
