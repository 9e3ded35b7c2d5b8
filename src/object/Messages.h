#pragma once

/// The texts of failures of the object core, whole, so that a text in a report is found by searching for it.
namespace KzXmlLib10::messages {

inline constexpr char16_t LoneSurrogate[] =
    u"Malformed UTF-16: surrogate without its partner at position %I64u";
inline constexpr char16_t MalformedUtf8[] = u"Malformed UTF-8 at byte %I64u";

inline constexpr char16_t NullArgument[] = u"The argument %s may not be null";

inline constexpr char16_t AliasNotFound[] = u"Namespace alias [%s] not found";
inline constexpr char16_t NamespaceIndexOutOfRange[] = u"There is no namespace at the index %d";
inline constexpr char16_t MissingElementsAreIgnored[] =
    u"The parser can only ignore additional elements, or ignore the fact that some required ones are "
    u"missing, "
    u"you can not ignore both\nSet IgnoreMissingMandatoryElements to false before setting "
    u"IgnoreUnknownElements "
    u"to true";
inline constexpr char16_t UnknownElementsAreIgnored[] =
    u"The parser can only ignore additional elements, or ignore the fact that some required ones are "
    u"missing, "
    u"you can not ignore both\nSet IgnoreUnknownElements to false before setting "
    u"IgnoreMissingMandatoryElements to true";

inline constexpr char16_t PleaseEnsureVersion[] =
    u"Please ensure your generated code is the same version as this library "
    u"(Quillon Runtime: v%d.%d, Generator: v%d.%d).";
inline constexpr char16_t WrongVersion[] = u"Wrong Version (Quillon Runtime: v%d.%d, Generator: v%d.%d)";

} // namespace KzXmlLib10::messages
