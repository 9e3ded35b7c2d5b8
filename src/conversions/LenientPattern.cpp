#include "conversions/LenientPattern.h"

#include <algorithm>
#include <string_view>

namespace KzXmlLib10 {

namespace {

bool IsOneOf(char c, std::string_view set) { return set.find(c) != std::string_view::npos; }

/// The length of `text` up to and with `end`, or all of it.
std::size_t LengthWith(std::string_view text, std::string_view end) {
    const std::size_t at = text.find(end);
    return at == std::string_view::npos ? text.size() : at + end.size();
}

/// The length of a POSIX class such as [:alpha:] at the head of `text`; 0 if there is none.
std::size_t PosixClassLength(std::string_view text) {
    if (!text.starts_with("[:"))
        return 0;
    const std::size_t end = text.find_first_not_of("^abcdefghijklmnopqrstuvwxyz", 2);
    return end != text.npos && text.substr(end).starts_with(":]") ? end + 2 : 0;
}

/// The length of the item at the head of `rest`, which is not empty: a quotation \Q...\E, a property \p{...},
/// another escape, the head of a class with a bracket that it starts with, a POSIX class, or one byte.
std::size_t ItemLength(std::string_view rest, bool inClass) {
    if (rest.starts_with("\\Q"))
        return LengthWith(rest, "\\E");
    if (rest.starts_with("\\p{") || rest.starts_with("\\P{"))
        return LengthWith(rest, "}");
    if (rest[0] == '\\')
        return std::min<std::size_t>(rest.size(), 2);
    if (rest[0] != '[')
        return 1;
    if (inClass)
        return std::max<std::size_t>(PosixClassLength(rest), 1);
    return rest.starts_with("[^]") ? 3 : rest.starts_with("[^") || rest.starts_with("[]") ? 2 : 1;
}

bool IsEscape(std::string_view item) { return item.size() > 1 && item[0] == '\\'; }

/// A set of characters inside a class, which cannot be the end of a range.
bool IsSet(std::string_view item) {
    return item.starts_with("[:") || (IsEscape(item) && IsOneOf(item[1], "dDwWsShHvVpP"));
}

bool IsLetterWithoutMeaning(std::string_view item, bool inClass) {
    return IsEscape(item) && (IsOneOf(item[1], "FIJMOTYijmqy") || (inClass && IsOneOf(item[1], "ABGKNRXZz")));
}

std::string Rewrite(std::string_view pattern) {
    std::string result;
    result.reserve(pattern.size());
    bool inClass = false;
    bool afterSet = false;
    while (!pattern.empty()) {
        const std::string_view item = pattern.substr(0, ItemLength(pattern, inClass));
        pattern.remove_prefix(item.size());
        const bool set = inClass && IsSet(item);
        const bool beforeSet =
            inClass && !pattern.empty() && IsSet(pattern.substr(0, ItemLength(pattern, true)));
        if (inClass && item == "-" && (afterSet || beforeSet))
            result += "\\-";
        else if (IsLetterWithoutMeaning(item, inClass))
            result += item[1];
        else
            result += item;
        inClass = inClass ? item != "]" : item[0] == '[';
        afterSet = set;
    }
    return result;
}

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

} // namespace

bool MayNeedRewriting(std::string_view pattern) {
    for (std::size_t at = 0; (at = pattern.find('\\', at)) != pattern.npos; at += 2) {
        if (at + 1 < pattern.size() && IsLetter(pattern[at + 1]))
            return true;
    }
    return pattern.find("[:") != pattern.npos;
}

std::string MakeLenientPattern(std::string pattern) {
    if (MayNeedRewriting(pattern))
        return Rewrite(pattern);
    return pattern;
}

} // namespace KzXmlLib10
