#pragma once

/// The texts of failures of Fast Infoset output and input, whole, so that a text in a report is found by
/// searching for it.
namespace KzXmlLib10::messages {

// Settings
inline constexpr char16_t NoSuchItemType[] = u"There is no ItemType [%I64u]";
inline constexpr char16_t MaxAddLengthTooLarge[] =
    u"The length [%I64u] is too large; at most 4294967295 characters can be set";

// Encoding algorithms
inline constexpr char16_t UnknownByteEncoding[] = u"Unknown byte encoding.";
inline constexpr char16_t InvalidShort[] = u"Invalid value for SHORT byte encoding.";
inline constexpr char16_t InvalidInt[] = u"Invalid value for INT byte encoding.";
inline constexpr char16_t InvalidLong[] = u"Invalid value for LONG byte encoding.";
inline constexpr char16_t InvalidFloat[] = u"Invalid value for FLOAT byte encoding.";
inline constexpr char16_t InvalidDouble[] = u"Invalid value for DOUBLE byte encoding.";
inline constexpr char16_t InvalidUuid[] = u"Invalid value for UUID byte encoding.";

} // namespace KzXmlLib10::messages
