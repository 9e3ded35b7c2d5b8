#pragma once

/// The texts of failures of the object core, whole, so that a text in a report is found by searching for it.
namespace KzXmlLib10::messages {

inline constexpr char16_t LoneSurrogate[] =
    u"Malformed UTF-16: surrogate without its partner at position %I64u";
inline constexpr char16_t MalformedUtf8[] = u"Malformed UTF-8 at byte %I64u";

} // namespace KzXmlLib10::messages
