#pragma once

/// The texts of failures of text input and output, whole, so that a text in a report is found by searching
/// for it.
namespace KzXmlLib10::messages {

// Reading
inline constexpr char16_t XmlStringIsEmpty[] = u"XML String is empty!";
inline constexpr char16_t ParserFailed[] = u"%s at line %d";
inline constexpr char16_t TextIsNull[] = u"The text is null";
inline constexpr char16_t InputTooLarge[] =
    u"The XML input has %I64u bytes; the parser takes at most 4294967295";
inline constexpr char16_t ParserCharactersDiffer[] = u"The expat library at hand has no 16-bit characters";

} // namespace KzXmlLib10::messages
