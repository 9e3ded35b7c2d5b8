#pragma once

/// The texts of failures of descriptors, whole, so that a text in a report is found by searching for it.
namespace KzXmlLib10::messages {

inline constexpr char16_t RequiredAttributeNotFound[] = u"Failed to find the required Attribute [%s]";
inline constexpr char16_t RequiredElementNotFound[] = u"Failed to find a required element [%s]";
inline constexpr char16_t NoSubstitutionElement[] =
    u"Failed to find a suitable substitution element for [%s]";
inline constexpr char16_t CannotCheckRestriction[] = u"Cannot CheckRestriction for type: %s";
inline constexpr char16_t ValidateNotImplemented[] = u"Not implemented, should never be called";
inline constexpr char16_t MandatoryMemberIsNull[] = u"The object of the mandatory element [%s] is null";
inline constexpr char16_t FactoryGaveNothing[] = u"The factory gave no object for the element [%s]";

} // namespace KzXmlLib10::messages
