#pragma once

/// The texts of failures of conversions and facet checks, whole, so that a text in a report is found by
/// searching for it.
namespace KzXmlLib10::messages {

inline constexpr char16_t UnknownWhitespaceRule[] = u"Unknown WhitespaceRule";

// sic: "to large" throughout
inline constexpr char16_t I1TooLarge[] = u"The value [%s] is to large to fit in a i1";
inline constexpr char16_t I2TooLarge[] = u"The value [%s] is to large to fit in a i2";
inline constexpr char16_t I4TooLarge[] = u"The value [%s] is to large to fit in a i4";
inline constexpr char16_t I8TooLarge[] = u"The value [%s] is to large to fit in a i8";
inline constexpr char16_t Ui1TooLarge[] = u"The value [%s] is to large to fit in a ui1";
inline constexpr char16_t Ui2TooLarge[] = u"The value [%s] is to large to fit in a ui2";
inline constexpr char16_t Ui4TooLarge[] = u"The value [%s] is to large to fit in a ui4";
inline constexpr char16_t Ui8TooLarge[] = u"The value [%s] is to large to fit in a ui8";

inline constexpr char16_t I4Malformed[] = u"The value [%s] can not be converted to a i4";
inline constexpr char16_t I8Malformed[] = u"The value [%s] can not be converted to a i8";
inline constexpr char16_t Ui4Malformed[] = u"The value [%s] can not be converted to a ui4";
inline constexpr char16_t Ui8Malformed[] = u"The value [%s] can not be converted to a ui8";
inline constexpr char16_t R4Malformed[] = u"The value [%s] can not be converted to a r4";
inline constexpr char16_t R8Malformed[] = u"The value [%s] can not be converted to a r8";

inline constexpr char16_t InvalidChar[] =
    u"The value [%s] can not be a char as it is either empty of greater than 1 char long"; // sic
inline constexpr char16_t InvalidBoolean[] = u"A Boolean Value read from an XML document was invalid [%s]. "
                                             u"Valid values are 'true', 'false', '1', or '0'";

inline constexpr char16_t BadRealFormat[] =
    u"The format [%s] does not hold exactly one conversion of a floating-point number";

inline constexpr char16_t InvalidPattern[] = u"Invalid Regular Expression: %s Error: '%s'";
inline constexpr char16_t PatternFailed[] = u"%s\nInvalid Value for %s [%s]";
inline constexpr char16_t InvalidInteger[] = u"Invalid Value for %s [%d]";
inline constexpr char16_t InvalidText[] = u"Invalid Value for %s [%s]";
inline constexpr char16_t InvalidReal[] = u"Invalid Value for %s [%f]";
inline constexpr char16_t UnknownKindToCheck[] = u"unknown type [%s]";

} // namespace KzXmlLib10::messages
