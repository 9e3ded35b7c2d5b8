#pragma once

/// The texts of failures of the value classes, whole, so that a text in a report is found by searching for
/// it.
namespace KzXmlLib10::messages {

inline constexpr char16_t UnknownType[] = u"Unknown Type";
inline constexpr char16_t InvalidType[] = u"Invalid Type %d";
inline constexpr char16_t InvalidTypeToConvert[] = u"Invalid Type %d to convert to string";
inline constexpr char16_t NoSuchPayload[] = u"The variant of type %d holds no value of type %d";

} // namespace KzXmlLib10::messages
