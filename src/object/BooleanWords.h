#pragma once

#include <string_view>

namespace KzXmlLib10 {

/// Whether the text is `word` (lower-case ASCII), in any mixture of cases.
constexpr bool IsWord(std::u16string_view text, std::u16string_view word) {
    if (text.size() != word.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if ((unit >= u'A' && unit <= u'Z' ? unit - u'A' + u'a' : unit) != word[i])
            return false;
    }
    return true;
}

// Deliberate: upper case passes, which goes beyond the lexical space of xs:boolean.
constexpr bool IsTrueWord(std::u16string_view text) { return IsWord(text, u"true") || text == u"1"; }
constexpr bool IsFalseWord(std::u16string_view text) { return IsWord(text, u"false") || text == u"0"; }

} // namespace KzXmlLib10
