#pragma once

/// The bytes of a Fast Infoset document that are neither lengths, indices nor text, by the terms of ITU-T
/// X.891. Bits that a mark leaves free hold what the names behind it say.
namespace KzXmlLib10::fastinfoset {

using Byte = unsigned char;

inline constexpr Byte identification[] = {0xE0, 0x00, 0x00, 0x01};

// Ends
inline constexpr Byte End = 0xF0;       // of an element, a list or the document; the other half is padding
inline constexpr Byte DoubleEnd = 0xFF; // two of them

// The optional components of a document, in the order in which they stand
inline constexpr Byte AdditionalData = 0x40;
inline constexpr Byte InitialVocabulary = 0x20;
inline constexpr Byte Notations = 0x10;
inline constexpr Byte UnparsedEntities = 0x08;
inline constexpr Byte CharacterEncodingScheme = 0x04;
inline constexpr Byte Standalone = 0x02;
inline constexpr Byte Version = 0x01;

// The optional components of an initial vocabulary, two bytes
inline constexpr unsigned ExternalVocabulary = 0x1000;
inline constexpr unsigned OctetStringTables = 0x0FE0; // alphabets, algorithms and five tables of names
inline constexpr unsigned ValueTables = 0x001C;       // attribute values, character chunks, other strings
inline constexpr unsigned NameTables = 0x0003;        // element and attribute names

// The parts that a name, a notation or an external identifier has
inline constexpr Byte HasPrefix = 0x02;
inline constexpr Byte HasNamespace = 0x01;
inline constexpr Byte HasSystemIdentifier = 0x02;
inline constexpr Byte HasPublicIdentifier = 0x01;

// Items whose first bit is set. The low two bits tell the parts of those that have any.
inline constexpr Byte Notation = 0xC0;
inline constexpr Byte DocumentType = 0xC4;
inline constexpr Byte UnexpandedEntity = 0xC8;
inline constexpr Byte NamespaceAttribute = 0xCC;
inline constexpr Byte PartsMask = 0x03;
inline constexpr Byte UnparsedEntity = 0xD0; // the lowest bit tells whether there is a public identifier
inline constexpr Byte ProcessingInstruction = 0xE1;
inline constexpr Byte Comment = 0xE2;

// An element: the first bit is clear, the rest is an index, or one of
inline constexpr Byte ElementMask = 0x80;
inline constexpr Byte HasAttributes = 0x40;
inline constexpr Byte ElementNameMask = 0x3C;
inline constexpr Byte NamespaceAttributesFollow = 0x38;
inline constexpr Byte LiteralElementName = 0x3C;

// An attribute: the first bit is clear, the rest is an index, or
inline constexpr Byte AttributeNameMask = 0x78;
inline constexpr Byte LiteralAttributeName = 0x78;

// Identifying and other strings: an index, or a literal
inline constexpr Byte StringIndex = 0x80;
inline constexpr Byte EmptyString = 0xFF; // the index zero
inline constexpr Byte AddToTable = 0x40;

// Character chunks: the first two bits are 10
inline constexpr Byte CharacterChunkMask = 0xC0;
inline constexpr Byte CharacterChunk = 0x80;
inline constexpr Byte CharacterChunkIndex = 0x20;
inline constexpr Byte AddChunkToTable = 0x10;
inline constexpr Byte CharacterChunkLength = 0x03; // of a literal, the start of it

} // namespace KzXmlLib10::fastinfoset
