#pragma once

/// GoogleTest, the standard library, the whole library under test, tables of rows and the messages of
/// failures.

#include "support/Failure.h"
#include "support/Row.h"

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
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace KzXmlLib10::support {

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

/// An object as text of one line, without a declaration.
inline std::string Text(const CXmlObjectBase& object, const CXmlSerializationContext& context = {}) {
    return ToUtf8(object.ToXml(false, false, EOLType_LF, context));
}

} // namespace KzXmlLib10::support

using namespace KzXmlLib10;
using namespace KzXmlLib10::support;
using namespace std::literals;
