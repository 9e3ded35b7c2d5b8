#pragma once

/// GoogleTest, the standard library, the whole library under test, tables of rows and the messages of
/// failures.

#include <KzXmlLib10/KzXmlLib10.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <ranges>
#include <sstream>
#include <string>
#include <thread>
#include <typeinfo>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace KzXmlLib10::support {

/// The full message, in UTF-8, of the exception of exactly the class E that `action` throws.
/// Another class of the family stands in front of the message; "no failure" if nothing is thrown.
template <class E = CKzException, class Action>
std::string Failure(Action action) {
    try {
        action();
    } catch (const CKzException& failure) {
        const std::string message = ToUtf8(failure.GetFullMessage());
        return typeid(failure) == typeid(E) ? message : std::string(typeid(failure).name()) + ": " + message;
    }
    return "no failure";
}

inline constexpr auto InvalidValue = [](auto action) { return Failure<CKzInvalidValueException>(action); };
inline constexpr auto InvalidState = [](auto action) { return Failure<CKzInvalidStateException>(action); };
inline constexpr auto InvalidParam = [](auto action) { return Failure<CKzInvalidParamException>(action); };

/// What the action gives as text, or the message of its failure.
template <class E = CKzException, class Action>
std::string Outcome(Action action) {
    std::string result;
    const std::string failure = Failure<E>([&] { result = action(); });
    return failure == "no failure" ? result : failure;
}

/// A row of a table: a text, an arrow, and what is expected of it, as in "1.50 -> 1.5".
struct Row {
    Row(const char* row) {
        const std::string whole = row;
        const std::size_t arrow = whole.find(" -> ");
        text = FromUtf8(whole.substr(0, arrow));
        expected = whole.substr(arrow + 4);
    }
    std::u16string text;
    std::string expected;
};

/// Compares what `actual` makes of the text of each row.
template <class Actual>
void ExpectRows(std::initializer_list<Row> rows, Actual actual) {
    for (const Row& row : rows)
        EXPECT_EQ(actual(row.text.c_str()), row.expected) << ToUtf8(row.text);
}

template <class String>
String Repeat(const String& text, std::size_t times) {
    String all;
    all.reserve(text.size() * times);
    while (times-- > 0)
        all += text;
    return all;
}

/// A context with one tolerance switched on.
inline CXmlSerializationContext With(void (CXmlSerializationContext::*flag)(bool)) {
    CXmlSerializationContext context;
    (context.*flag)(true);
    return context;
}

/// An object as text of one line, without a declaration.
inline std::string Text(const CXmlObjectBase& object, const CXmlSerializationContext& context = {}) {
    return ToUtf8(object.ToXml(false, false, EOLType_LF, context));
}

} // namespace KzXmlLib10::support

using namespace KzXmlLib10;
using namespace KzXmlLib10::support;
using namespace std::literals;
