#pragma once

#include <string_view>

namespace KzXmlLib10 {

/// What MatchXsdPattern does with a pattern that is not UTF-8 yet, without copies of pattern and value. A
/// lone surrogate ends either.
bool MatchXsdPatternOf(std::u16string_view pattern, std::u16string_view value);

} // namespace KzXmlLib10
