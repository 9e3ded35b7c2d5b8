#pragma once

#include "support/Failure.h"
#include "support/Row.h"

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

/// What every test may use: GoogleTest, the standard library, tables of rows and the messages of failures.
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
