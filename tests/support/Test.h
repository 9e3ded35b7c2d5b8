#pragma once

/// What every test may use: GoogleTest, the standard library, the whole library under test, tables of rows
/// and the messages of failures, by names that stand alone.

#include "support/Failure.h"
#include "support/Row.h"

#include <KzXmlLib10/KzXmlLib10.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace KzXmlLib10::support {

inline constexpr auto InvalidValue = [](auto action) { return Failure<CKzInvalidValueException>(action); };
inline constexpr auto InvalidState = [](auto action) { return Failure<CKzInvalidStateException>(action); };
inline constexpr auto InvalidParam = [](auto action) { return Failure<CKzInvalidParamException>(action); };

/// Compares what `actual` makes of the text of each row.
template <class Actual>
void ExpectRows(std::initializer_list<Row> rows, Actual actual) {
    for (const Row& row : rows)
        EXPECT_EQ(actual(row.text.c_str()), row.expected) << ToUtf8(row.text);
}

} // namespace KzXmlLib10::support

using namespace KzXmlLib10;
using namespace KzXmlLib10::support;
