#include <KzXmlLib10/conversions/CWhitespaceUtils.h>

#include "conversions/Messages.h"
#include "object/NotNull.h"
#include "object/TextScan.h"
#include "object/Throw.h"

#include <string_view>

namespace KzXmlLib10 {

namespace {

/// Every transform ends at the first NUL.
std::u16string_view UpToNul(std::u16string_view text) { return text.substr(0, text.find(u'\0')); }

bool IsLineFeedAt(std::u16string_view text, std::size_t at) { return at < text.size() && text[at] == u'\n'; }

/// Line ends become line feeds.
std::u16string WithLineFeeds(std::u16string_view text) {
    std::u16string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != u'\r') {
            result += text[i];
        } else {
            result += u'\n';
            if (IsLineFeedAt(text, i + 1))
                ++i;
        }
    }
    return result;
}

} // namespace

std::u16string CWhitespaceUtils::ApplyRule(WhitespaceRule rule, const std::u16string& text) {
    switch (rule) {
    case WhitespaceRule_None:
        return text;
    case WhitespaceRule_Preserve:
        return Preserve(text);
    case WhitespaceRule_Replace:
        return Replace(text);
    case WhitespaceRule_Collapse:
        return Collapse(text);
    }
    Throw<CKzException>(messages::UnknownWhitespaceRule);
}

std::u16string CWhitespaceUtils::Preserve(const std::u16string& text) {
    // Deliberate: text without a carriage return keeps what stands behind a NUL.
    if (!MayHold(text, '\r') || text.find(u'\r') == std::u16string::npos)
        return text;
    return WithLineFeeds(UpToNul(text));
}

std::u16string CWhitespaceUtils::Preserve(const char16_t* text, std::int32_t length) {
    if (length <= 0)
        return {};
    return WithLineFeeds(
        UpToNul(std::u16string_view(NotNull(text, u"text"), static_cast<std::size_t>(length))));
}

std::u16string CWhitespaceUtils::Replace(const std::u16string& text) {
    // Deliberate: text with nothing to replace keeps what stands behind a NUL.
    if (text.find_first_of(u"\r\n\t") == std::u16string::npos)
        return text;
    std::u16string result;
    result.reserve(text.size());
    const std::u16string_view source = UpToNul(text);
    for (std::size_t i = 0; i < source.size(); ++i) {
        result += IsWhiteSpace(source[i]) ? u' ' : source[i];
        // Deliberate: the pair of carriage return and line feed gives one space.
        if (source[i] == u'\r' && IsLineFeedAt(source, i + 1))
            ++i;
    }
    return result;
}

std::u16string CWhitespaceUtils::Collapse(const std::u16string& text) {
    const std::u16string_view source = UpToNul(text);
    std::u16string result(source.size(), u'\0');
    char16_t* to = result.data();
    bool afterSpace = true;
    for (const char16_t unit : source) {
        const bool space = IsWhiteSpace(unit);
        *to = space ? u' ' : unit;
        to += !(space && afterSpace);
        afterSpace = space;
    }
    std::size_t length = static_cast<std::size_t>(to - result.data());
    // Deliberate: a space in front of a NUL stays, because the NUL counts as the character after it.
    const bool endsAtNul = source.size() < text.size();
    if (!endsAtNul && length > 0 && result[length - 1] == u' ')
        --length;
    result.resize(length);
    return result;
}

bool CWhitespaceUtils::IsWhiteSpace(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n';
}

} // namespace KzXmlLib10
