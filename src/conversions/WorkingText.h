#pragma once

#include <KzXmlLib10/conversions/CWhitespaceUtils.h>

#include "object/TextScan.h"

#include <algorithm>
#include <string>

namespace KzXmlLib10 {

/// A text after its whitespace rule. Nothing is copied where the rule has nothing to change, as is usual for
/// numbers; the given text must outlive the object.
class WorkingText {
public:
    WorkingText(const std::u16string& given, CWhitespaceUtils::WhitespaceRule rule)
        : m_changed(!LeavesAlone(given, rule)),
          m_made(m_changed ? CWhitespaceUtils::ApplyRule(rule, given) : std::u16string()), m_given(given) {}

    const std::u16string& Get() const { return m_changed ? m_made : m_given; }

private:
    static bool LeavesAlone(const std::u16string& text, CWhitespaceUtils::WhitespaceRule rule) {
        if (rule == CWhitespaceUtils::WhitespaceRule_None)
            return true;
        const bool known = rule > 0 && rule <= CWhitespaceUtils::WhitespaceRule_Collapse;
        return known && std::ranges::all_of(text, [](char16_t unit) { return unit > u' '; });
    }

    bool m_changed;
    std::u16string m_made;
    const std::u16string& m_given;
};

/// The text after its whitespace rule, without a copy where the rule has nothing to change.
inline std::u16string ApplyRuleTo(std::u16string text, CWhitespaceUtils::WhitespaceRule rule) {
    if (rule == CWhitespaceUtils::WhitespaceRule_None ||
        (rule == CWhitespaceUtils::WhitespaceRule_Preserve && !MayHold(text, '\r')))
        return text;
    return CWhitespaceUtils::ApplyRule(rule, text);
}

} // namespace KzXmlLib10
