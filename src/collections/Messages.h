#pragma once

/// The texts of failures of collections and generic content, whole, so that a text in a report is found by
/// searching for it.
namespace KzXmlLib10::messages {

inline constexpr char16_t ChoiceNotSelected[] =
    u"The Property %s is already set. Only one element within this class bay be set at a time"; // sic
inline constexpr char16_t ChoiceAlreadySet[] =
    u"The Property [%s] is already set. Only one element within this class bay be set at a time"; // sic

inline constexpr char16_t MaximumExceeded[] =
    u"The Maximum number of [%s] elements allowed in this collection is %d";
inline constexpr char16_t MinimumNotReached[] =
    u"The Minimum number of [%s] elements allowed in this collection is %d";
inline constexpr char16_t InsertIndexOutOfRange[] = u"Index out of range";
inline constexpr char16_t ItemIndexOutOfRange[] = u"Index %d is out of range, use 0 - %d";
inline constexpr char16_t CollectionFull[] = u"A collection cannot hold more than %d items";
inline constexpr char16_t ItemsStay[] = u"The collection cannot be cleared; %d items stay";
inline constexpr char16_t ItemNotFound[] = u"The object was not found in the collection";
inline constexpr char16_t NotOfKindDateTime[] = u"Dates added to this collection must be of type dt_dateTime";
inline constexpr char16_t NotOfKindDate[] = u"Dates added to this collection must be of type dt_date";
inline constexpr char16_t NotOfKindTime[] = u"Dates added to this collection must be of type dt_time";
inline constexpr char16_t NotOfKindGYearMonth[] =
    u"Dates added to this collection must be of type dt_gYearMonth";
inline constexpr char16_t NotOfKindGMonthDay[] =
    u"Dates added to this collection must be of type dt_gMonthDay";
inline constexpr char16_t NoTargetNamespace[] =
    u"CXmlCollectionBase::GetTargetNamespace Should not be used from within a Collection (program logic "
    u"error)";

inline constexpr char16_t ElementNameIsNull[] = u"Element Name must have a value";
inline constexpr char16_t NamespaceRestrictionIsNull[] = u"Namespace Restriction must have a value";
inline constexpr char16_t TargetNamespaceIsNull[] = u"Target Namespace must have a value";
inline constexpr char16_t KeywordAsNamespace[] = u"Invalid Namespace [%s]";
inline constexpr char16_t InappropriateAttribute[] =
    u"Invalid Attribute [%s]. The attributes namespace is Inappropriate.";
inline constexpr char16_t InvalidElementFound[] = u"Invalid Element [%s] found in element [%s]";
inline constexpr char16_t NamespaceAgainstRestriction[] =
    u"The namespace %s in the class %s is invalid against restriction %s";
inline constexpr char16_t NoDefaultNamespace[] = u"A Namespace has not been set for this Collection";
inline constexpr char16_t ReadByTheCollection[] = u"This should be done by the collection";
inline constexpr char16_t ElementInsideItself[] = u"An element is contained in itself";
inline constexpr char16_t DefaultNamespaceNeedsTextWriter[] =
    u"The element [%s] has a default namespace of its own, which can be written as text only";

} // namespace KzXmlLib10::messages
