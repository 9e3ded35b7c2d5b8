#pragma once

#include <KzXmlLib10/object/Export.h>

#include <cstdint>
#include <string>

namespace KzXmlLib10 {

/// The whiteSpace facet of XML Schema as a transform of text.
///
///     CWhitespaceUtils::ApplyRule(CWhitespaceUtils::WhitespaceRule_Collapse, u"  a \n b "); // u"a b"
///
/// Whitespace is space, tab, carriage return and line feed; other Unicode spaces are ordinary characters. All
/// operations are pure functions over 16-bit code units and may be called from any thread.
///
/// A NUL ends the result, except under WhitespaceRule_None and where Preserve and Replace find nothing to
/// change.
class QUILLON_EXPORT CWhitespaceUtils {
public:
    /// The numbers are stored in descriptors and compiled into generated code, so they never change.
    enum WhitespaceRule : std::int32_t {
        WhitespaceRule_None = 0,     ///< the text as it is
        WhitespaceRule_Preserve = 1, ///< see Preserve
        WhitespaceRule_Replace = 2,  ///< see Replace
        WhitespaceRule_Collapse = 3, ///< see Collapse
    };

    /// The text after the rule. Throws CKzException for a rule that is none of the four.
    static std::u16string ApplyRule(WhitespaceRule rule, const std::u16string& text);

    /// The text with line ends normalised: a carriage return, with the line feed that may follow it, becomes
    /// one line feed.
    ///
    /// Deliberate: the schema's facet value of the same name changes nothing; WhitespaceRule_None does that.
    static std::u16string Preserve(const std::u16string& text);
    /// The same for `length` code units, which need not be terminated; none if `length` is not positive.
    static std::u16string Preserve(const char16_t* text, std::int32_t length);

    /// The text with a space for each tab, line feed and carriage return.
    ///
    /// Deliberate: a carriage return and the line feed behind it give one space, where the schema's facet
    /// gives two.
    static std::u16string Replace(const std::u16string& text);

    /// The text with one space for each run of whitespace, and none at either end.
    static std::u16string Collapse(const std::u16string& text);

    /// True for the four whitespace characters.
    static bool IsWhiteSpace(char16_t unit);
};

} // namespace KzXmlLib10
