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
inline constexpr char16_t ItemNotFound[] = u"The object was not found in the collection";
inline constexpr char16_t NoTargetNamespace[] =
    u"CXmlCollectionBase::GetTargetNamespace Should not be used from within a Collection (program logic "
    u"error)";

} // namespace KzXmlLib10::messages
