#pragma once

/// The texts of failures of the edges to the standard library, whole, so that a text in a report is found by
/// searching for it.
namespace KzXmlLib10::messages {

inline constexpr char16_t ZeroInFileName[] = u"A file name cannot hold a zero";
inline constexpr char16_t RootNamespaceRefused[] =
    u"The root of the document is in the namespace [%s], which the element does not admit";

// Records
inline constexpr char16_t RecordFailed[] = u"Failed to process the record %I64u";
inline constexpr char16_t RecordNameNeeded[] =
    u"The class stands for a type; the records need the name of their element";
inline constexpr char16_t SourceNotRead[] = u"Failed to read the stream of the document";
inline constexpr char16_t CompressedStreamDamaged[] = u"The compressed stream is damaged or ends too early";

// Times
inline constexpr char16_t TimeHasZone[] = u"The value has a time zone, which would be lost";
inline constexpr char16_t TimeHasNoZone[] = u"The value has no time zone";
inline constexpr char16_t OtherKindOfTime[] = u"The value is a %s, not a %s";
inline constexpr char16_t TimeNotExact[] = u"The value is no whole number of the unit";
inline constexpr char16_t TimeTooLarge[] = u"The value does not fit into the target";
inline constexpr char16_t SpanWithMonths[] = u"The duration has years or months, which have no fixed length";

} // namespace KzXmlLib10::messages
