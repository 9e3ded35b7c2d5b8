#pragma once

#include "object/SupportContact.h"

/// The texts of failures of text input and output, whole, so that a text in a report is found by searching
/// for it.
namespace KzXmlLib10::messages {

// Reading
inline constexpr char16_t XmlStringIsEmpty[] = u"XML String is empty!";
inline constexpr char16_t ParserFailed[] = u"%s at line %d";
inline constexpr char16_t InputTooLarge[] = u"The XML input has %I64u bytes; the limit is %I64u";
inline constexpr char16_t ParserCharactersDiffer[] = u"The expat library at hand does not give out UTF-8";
inline constexpr char16_t XmlStreamIsEmpty[] = u"XML Stream is empty!";
inline constexpr char16_t EntitiesUnbounded[] =
    u"The expat library at hand does not bound the expansion of entities";
inline constexpr char16_t TreeTextTooLarge[] =
    u"The names, values and texts of the document come to more than %I64u bytes";
inline constexpr char16_t TreeTooLarge[] = u"The tree of the document comes to more than %I64u bytes";
inline constexpr char16_t NoRootElement[] = u"Invalid or empty XML document";
inline constexpr char16_t FileNotOpened[] = u"Failed to open the file [%s] Error [0x%08x]";
inline constexpr char16_t FileSizeUnknown[] = u"Failed to get the size of the file [%s] Error [0x%08x]";
inline constexpr char16_t FileNotRead[] = u"Failed to read the contents of the file [%s] Error [0x%08x]";
inline constexpr char16_t FileBlockNotRead[] = u"Failed to read the contents of the file. Error [0x%08x]";

// Writing
inline constexpr char16_t InvalidEolType[] = u"Invalid EOL type.";
inline constexpr char16_t AttributeAfterContent[] = u"Attributes must be added before elements";
inline constexpr char16_t ElementNotClosed[] = u"An Element has not been closed.";
inline constexpr char16_t NoOpenElement[] = u"There is no open element to write to";
inline constexpr char16_t NoPrefixLeft[] = u"There is no namespace prefix left to generate";
inline constexpr char16_t ZeroChunkSize[] = u"The chunk size of a text buffer must not be 0";
inline constexpr char16_t OutputTooLarge[] =
    u"The text is too large; a buffer takes at most 4294967295 characters";

// Bytes and files
inline constexpr char16_t UnknownEncoding[] =
    u"Unknown Encoding, select UTF-8 (contact " QUILLON_SUPPORT_CONTACT u" for support)";
inline constexpr char16_t EncodedTextTooLong[] = u"The text needs more than 4294967295 bytes";
inline constexpr char16_t FileNotWritten[] = u"Failed to write data to the file [%s] error [0x%08X]";
inline constexpr char16_t FileBlockNotWritten[] = u"Failed to write data to the file. Error [0x%08X]";

// Compression
inline constexpr char16_t CompressionFailed[] = u"Failed to compress data. [Error Code: %d]";
inline constexpr char16_t StreamTooLong[] = u"Streams of more than 4294967295 bytes are not supported";
inline constexpr char16_t InflatedTooLong[] =
    u"The content of the compressed stream is larger than the limit of %I64u bytes";

} // namespace KzXmlLib10::messages
