#pragma once

/// The texts of failures of conversions and facet checks, whole, so that a text in a report is found by
/// searching for it.
namespace KzXmlLib10::messages {

inline constexpr char16_t UnknownWhitespaceRule[] = u"Unknown WhitespaceRule";
inline constexpr char16_t NullRestriction[] = u"The texts of CPrimitiveRestrictions must not be null";

} // namespace KzXmlLib10::messages
