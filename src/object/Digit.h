#pragma once

namespace KzXmlLib10 {

/// True for the ten digits of ASCII; no other digit of Unicode counts in the text of a value.
constexpr bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

} // namespace KzXmlLib10
