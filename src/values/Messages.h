#pragma once

/// The texts of failures of the value classes, whole, so that a text in a report is found by searching for
/// it.
namespace KzXmlLib10::messages {

inline constexpr char16_t UnknownType[] = u"Unknown Type";
inline constexpr char16_t InvalidType[] = u"Invalid Type %d";
inline constexpr char16_t InvalidTypeToConvert[] = u"Invalid Type %d to convert to string";
inline constexpr char16_t NoSuchPayload[] = u"The variant of type %d holds no value of type %d";

inline constexpr char16_t OddHexLength[] = u"Invalid length in hex string";
inline constexpr char16_t InvalidHexChar[] = u"Invalid char in hex string [%c]";
inline constexpr char16_t IndexOutOfRange[] = u"Index Out of range [%d]";
inline constexpr char16_t AppendToShared[] = u"Failed to append. [RefCount=%d]";
inline constexpr char16_t ReleaseOfShared[] = u"Failed to release data. [RefCount=%d]";
inline constexpr char16_t BinaryDataTooLong[] = u"Binary data cannot hold more than 4294967295 bytes";
inline constexpr char16_t NullBinaryInput[] = u"Binary data cannot be made from a null pointer";

} // namespace KzXmlLib10::messages
