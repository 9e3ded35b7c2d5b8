#pragma once

#include <KzXmlLib10/object/Text.h>

#include <string>
#include <string_view>

namespace KzXmlLib10::support {

/// A row of a table: a text, an arrow, and what is expected of it, as in "1.50 -> 1.5".
struct Row {
    Row(const char* row) : Row(std::string_view(row), std::string_view(row).find(arrow)) {}

    std::u16string text;
    std::string expected;

private:
    static constexpr std::string_view arrow = " -> ";

    Row(std::string_view row, std::size_t at)
        : text(FromUtf8(std::string(row.substr(0, at)))), expected(row.substr(at + arrow.size())) {}
};

} // namespace KzXmlLib10::support
