#pragma once

/// The texts of failures of the object core, whole, so that a text in a report is found by searching for it.
namespace KzXmlLib10::messages {

inline constexpr char16_t LoneSurrogate[] =
    u"Malformed UTF-16: surrogate without its partner at position %I64u";
inline constexpr char16_t MalformedUtf8[] = u"Malformed UTF-8 at byte %I64u";

inline constexpr char16_t NullArgument[] = u"The argument %s may not be null";

inline constexpr char16_t LimitTooLarge[] = u"The limit %s may not be above %I64u";

inline constexpr char16_t AliasNotFound[] = u"Namespace alias [%s] not found";
inline constexpr char16_t NamespaceIndexOutOfRange[] = u"There is no namespace at the index %d";
inline constexpr char16_t MissingElementsAreIgnored[] =
    u"The parser can only ignore additional elements, or ignore the fact that some required ones are "
    u"missing, you can not ignore both\n"
    u"Set IgnoreMissingMandatoryElements to false before setting IgnoreUnknownElements to true";
inline constexpr char16_t UnknownElementsAreIgnored[] =
    u"The parser can only ignore additional elements, or ignore the fact that some required ones are "
    u"missing, you can not ignore both\n"
    u"Set IgnoreUnknownElements to false before setting IgnoreMissingMandatoryElements to true";

inline constexpr char16_t PleaseEnsureVersion[] =
    u"Please ensure your generated code is the same version as this library "
    u"(Quillon Runtime: v%d.%d, Generator: v%d.%d).";
inline constexpr char16_t WrongVersion[] = u"Wrong Version (Quillon Runtime: v%d.%d, Generator: v%d.%d)";

inline constexpr char16_t InvalidNamespaceForRestriction[] =
    u"Invalid namespace [%s]. The namespace must be one of [%s] where the target namespace is [%s]";
inline constexpr char16_t PropertyIsNull[] = u"The Property [%s] is mandatory, it may node be NULL"; // sic
inline constexpr char16_t ElementNameDiffers[] =
    u"This property requrires an element with the name %s the element being set has the element name "
    u"%s"; // sic

inline constexpr char16_t FailedToWriteElement[] = u"Failed to convert the element [%s] to XML";
inline constexpr char16_t FailedToWriteAttributes[] = u"Failed to convert attributes to XML";
inline constexpr char16_t UnknownGroupTypeOnWriting[] = u"Unknown XML Group Type";
inline constexpr char16_t FailedToReadElement[] = u"Failed to process the element [%s]";
inline constexpr char16_t UnknownGroupTypeOnReading[] = u"Unknow Group Type"; // sic
inline constexpr char16_t UnexpectedAttribute[] = u"Unexpected Attribute [%s] found.";
inline constexpr char16_t NilOnNonNillable[] =
    u"Invalid use of 'nil' attibute in non-nillable element [%s]"; // sic
inline constexpr char16_t UnexpectedNilValue[] = u"Unexpected Value [%s] for 'nil' Attribute found.";
inline constexpr char16_t UnprocessedElement[] =
    u"Failed read all the elements held within the element [%s]. The unexpected element [%s] remains un "
    u"processed"; // sic
inline constexpr char16_t NestedTooDeep[] = u"The elements are nested too deep (%d levels)";
inline constexpr char16_t TooManySkipped[] = u"More unknown elements were skipped than the limit of %I64u";
inline constexpr char16_t ZlibOnlyForStreams[] = u"ZLIB Compression only available for To Stream methods.";
inline constexpr char16_t InvalidOrEmptyDocument[] = u"Invalid or empty XML document";

} // namespace KzXmlLib10::messages
