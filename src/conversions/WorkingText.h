#pragma once

#include <KzXmlLib10/conversions/CWhitespaceUtils.h>

#include "object/TextScan.h"

#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// A text after its whitespace rule. Nothing is copied where the rule has nothing to change, as is usual for
/// numbers; the given text, which a zero follows, must outlive the object.
class WorkingText {
public:
    WorkingText(std::u16string_view given, CWhitespaceUtils::WhitespaceRule rule) : m_text(given) {
        if (!LeavesAlone(given, rule))
            m_text = m_made = CWhitespaceUtils::ApplyRule(rule, std::u16string(given));
    }
    WorkingText(const WorkingText&) = delete;
    WorkingText& operator=(const WorkingText&) = delete;

    /// A zero follows it.
    std::u16string_view Get() const { return m_text; }
    const char16_t* c_str() const { return m_text.data(); }

private:
    static bool LeavesAlone(std::u16string_view text, CWhitespaceUtils::WhitespaceRule rule) {
        if (rule == CWhitespaceUtils::WhitespaceRule_None)
            return true;
        const bool known = rule > 0 && rule <= CWhitespaceUtils::WhitespaceRule_Collapse;
        return known && !HoldsUnitBelow(u' ' + 1, text);
    }

    std::u16string_view m_text;
    std::u16string m_made;
};

/// Whether a string has the same text after its whitespace rule.
inline bool IsLeftAlone(std::u16string_view text, CWhitespaceUtils::WhitespaceRule rule) {
    return rule == CWhitespaceUtils::WhitespaceRule_None ||
           (rule == CWhitespaceUtils::WhitespaceRule_Preserve && !MayHold(text, '\r'));
}

} // namespace KzXmlLib10
