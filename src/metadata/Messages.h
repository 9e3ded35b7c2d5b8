#pragma once

#include "object/SupportContact.h"

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
inline constexpr char16_t NotACollection[] = u"The property of the element [%s] holds no collection";
inline constexpr char16_t NotAnElementCol[] = u"The property of the element [%s] holds no CElementCol";
inline constexpr char16_t NotAnAttributeCol[] =
    u"Serialization Data Error : The collection should be a CAttributeCol, it was not!";
inline constexpr char16_t RequiredNamespaceNotFound[] =
    u"Failed to find the required element from namespace [%s]";
inline constexpr char16_t MandatoryElementNotFound[] = u"Failed to find the mandatory element [%s]";
inline constexpr char16_t AllAbsClsMndNotImplemented[] =
    u"CElementInfoAllAbsClsMnd::ElementFromXml, has not been implemented fully, "
    u"contact " QUILLON_SUPPORT_CONTACT;
inline constexpr char16_t AllAbsClsOptNotImplemented[] =
    u"CElementInfoAllAbsClsOpt::ElementFromXml, has not been implemented fully, "
    u"contact " QUILLON_SUPPORT_CONTACT;
inline constexpr char16_t EmptyChoiceOnWriting[] = u"This element is a choice, and as such must have at one "
                                                   u"(and only one) valid item, currently there are none "
                                                   u"set"; // sic
inline constexpr char16_t EmptyChoiceOnReading[] =
    u"No child elements within the element [%s] were populated. The element represents a choice, so one and "
    u"only one element should be populated. The element contained no sutable child elements"; // sic

} // namespace KzXmlLib10::messages
