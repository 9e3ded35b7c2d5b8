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

// Writing
inline constexpr char16_t NoSuchDeclaration[] = u"There is no FInfoDecl [%d]";
inline constexpr char16_t EmptyNameWritten[] =
    u"Failed to write FastInfoset. A name or namespace has no character that UTF-8 can hold.";
inline constexpr char16_t Utf16NotWritten[] =
    u"Failed to write FastInfoset. Unsupported Feature UTF16BE in EncodedCharacterStringBit5.";
inline constexpr char16_t WrittenAlphabet[] =
    u"Failed to write FastInfoset. Invalid Restricted Alphabet value [%d]";
inline constexpr char16_t WrittenAlgorithm[] =
    u"Failed to write FastInfoset. Invalid Encoding Algorithm value [%d]";
inline constexpr char16_t UnknownEncodingBit5[] =
    u"Failed to write FastInfoset. Unknown encoding in EncodedCharacterStringBit5.";
inline constexpr char16_t UnknownEncodingBit7[] =
    u"Failed to write FastInfoset. Unknown encoding in EncodedCharacterStringBit7.";
inline constexpr char16_t WrittenAlphabetSize[] =
    u"Failed to write FastInfoset. Invalid Restricted Alphabet. Alphabet must contain between 2 and 2^20 "
    u"characters.";
inline constexpr char16_t UnsupportedAlphabet[] =
    u"Failed to write FastInfoset. Unsupported Feature in AppendRestrictedAlphabetString.";
inline constexpr char16_t NotInAlphabet[] =
    u"Failed to write FastInfoset. Invalid character not found for Restricted Alphabet.";

// Reading
inline constexpr char16_t UnexpectedEnd[] = u"Failed to parse FastInfoset. Unexpected End of File.";
inline constexpr char16_t InvalidItem[] = u"Failed to parse FastInfoset. Invalid Encoding of Element type.";
inline constexpr char16_t PrefixWithoutNamespace[] =
    u"Failed to parse FastInfoset. Invalid QName type Prefix without Namespace.";
inline constexpr char16_t ReadAlphabetSize[] =
    u"Failed to parse FastInfoset. Invalid Encoding of Restricted Alphabet. Alphabet must contain between 2 "
    u"and 2^20 characters.";
inline constexpr char16_t PositionBeyondAlphabet[] =
    u"Failed to parse FastInfoset. The position [%u] lies beyond the Restricted Alphabet.";
inline constexpr char16_t NoSuchIndex[] =
    u"Failed to parse FastInfoset. The index [%I64u] lies beyond its table.";
inline constexpr char16_t Utf16NotRead[] =
    u"Failed to parse FastInfoset. Unsupported Feature UTF16BE string.";
inline constexpr char16_t ListNotEnded[] =
    u"Failed to parse FastInfoset. Invalid Encoding of Notations or Unparsed Entities.";

// Reading integers; sic: two blanks in front of "on"
inline constexpr char16_t InvalidOctetsBit2[] =
    u"Failed to parse FastInfoset. Invalid NonEmptyOctetString type  on the second bit of an octet.";
inline constexpr char16_t InvalidOctetsBit5[] =
    u"Failed to parse FastInfoset. Invalid NonEmptyOctetString type  on the fifth bit of an octet.";
inline constexpr char16_t InvalidOctetsBit7[] =
    u"Failed to parse FastInfoset. Invalid NonEmptyOctetString type  on the seventh bit of an octet.";
inline constexpr char16_t InvalidIntegerBit2[] = u"Failed to parse FastInfoset. Invalid Encoding of integers "
                                                 u"1 To 2^20 type  on the second bit of an octet.";
inline constexpr char16_t InvalidIntegerFrom0Bit2[] =
    u"Failed to parse FastInfoset. Invalid Encoding of integers 0 To 2^20 type  on the second bit of an "
    u"octet.";
inline constexpr char16_t InvalidIntegerBit3[] = u"Failed to parse FastInfoset. Invalid Encoding of integers "
                                                 u"1 To 2^20 type  on the third bit of an octet.";
inline constexpr char16_t InvalidIntegerBit4[] = u"Failed to parse FastInfoset. Invalid Encoding of integers "
                                                 u"1 To 2^20 type  on the fourth bit of an octet.";
inline constexpr char16_t InvalidSequenceLength[] =
    u"Failed to parse FastInfoset. Invalid Encoding of the length of a sequence.";

} // namespace KzXmlLib10::messages
