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

// CDateTime: the kind forbids the operation
inline constexpr char16_t CannotSetOtherKind[] =
    u"Failed to copy CDateTime. Invalid Date Type: %s, expected: %s.";
inline constexpr char16_t CannotGetYear[] = u"Failed to GetYear. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetMonth[] = u"Failed to GetMonth. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetDay[] = u"Failed to GetDay. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetHour[] = u"Failed to GetHour. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetMinute[] = u"Failed to GetMinute. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetSecond[] = u"Failed to GetSecond. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetRealSecond[] = u"Failed to GetRealSecond. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetMilliSecond[] = u"Failed to GetMilliSecond. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetMicroSecond[] = u"Failed to GetMicroSecond. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetNanoSecond[] = u"Failed to GetNanoSecond. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetDayOfWeek[] = u"Failed to GetDayOfWeek. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetDayOfYear[] = u"Failed to GetDayOfYear. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetTime[] =
    u"Failed to GetTime, Date Status must be dateTime or date. Invalid Date Type: %s.";
inline constexpr char16_t CannotGetAsSystemTime[] =
    u"Failed to GetAsSystemTime, Date Status must be dateTime. Invalid Date Type: %s.";
inline constexpr char16_t NoTimeZone[] = u"TimeZone is not been used"; // sic
inline constexpr char16_t UnknownDateKind[] = u"Unknown date type %d.";
inline constexpr char16_t CannotConvertDateKind[] =
    u"Attempting to set a CDateTime of type %s using an XmlDateTime of type %s. The source CDateTime does "
    u"not contian enough data to allow the conversion."; // sic

// CDateTime: a field is out of range, or not zero though the kind does not have it
inline constexpr char16_t YearZero[] = u"Invalid Year Zero";
inline constexpr char16_t InvalidYear[] = u"Invalid Year [%d] (%d <= year <= %d && year != 0)";
inline constexpr char16_t InvalidMonth[] = u"Invalid Month [%d] (1 <= month <= 12)";
inline constexpr char16_t InvalidDayOfDate[] = u"Invalid Day [%d] (1 <= day <= days in month"; // sic
inline constexpr char16_t InvalidDayOfMonth[] = u"Invalid Day [%d] (1 <= day <= days in month)";
inline constexpr char16_t InvalidDay[] = u"Invalid Day [%d] (1 <= day <= 31)";
inline constexpr char16_t InvalidHour[] = u"Invalid Hour [%d] (0 <= hour <= 23)";
inline constexpr char16_t InvalidMinute[] = u"Invalid Minute [%d] (0 <= minute <= 59)";
inline constexpr char16_t InvalidSecond[] = u"Invalid Second [%d] (0 <= second <= 59)";
inline constexpr char16_t InvalidMilliSecond[] = u"Invalid Milli-Second [%d] (0 <= milli <= 999)";
inline constexpr char16_t InvalidMicroSecond[] = u"Invalid Micro-Second [%d] (0 <= micro <= 999)";
inline constexpr char16_t InvalidNanoSecond[] = u"Invalid Nano-Second [%d] (0 <= nano <= 999)";
inline constexpr char16_t UnusedYear[] = u"Invalid Year [%d] for type %s";
inline constexpr char16_t UnusedMonth[] = u"Invalid Month [%d] for type %s";
inline constexpr char16_t UnusedDay[] = u"Invalid Day [%d] for type %s";
inline constexpr char16_t UnusedHour[] = u"Invalid Hour [%d] for type %s";
inline constexpr char16_t UnusedMinute[] = u"Invalid Minute [%d] for type %s";
inline constexpr char16_t UnusedSecond[] = u"Invalid Second [%d] for type %s";
inline constexpr char16_t UnusedMilliSecond[] = u"Invalid Milli-Second [%d] for type %s";
inline constexpr char16_t UnusedMicroSecond[] = u"Invalid Micro-Second [%d] for type %s";
inline constexpr char16_t UnusedNanoSecond[] = u"Invalid Nano-Second [%d] for type %s";
inline constexpr char16_t InvalidTimeZone[] = u"Invalid TimeZone [%d:%d]";
inline constexpr char16_t DateNotSet[] = u"Date Not Set";

// CDateTime: texts and times
inline constexpr char16_t NullDateTime[] = u"Invalid DateTime (Null String)";
inline constexpr char16_t DateTimeWithoutT[] = u"Invalid XSD DateTime [%s]";
inline constexpr char16_t MalformedDateTime[] =
    u"Invalid XSD DateTime [%s] expected CCYY-MM-DDThh:mm:ss[.ff]";
inline constexpr char16_t NullDate[] = u"Invalid Date (Null String)";
inline constexpr char16_t EmptyDate[] = u"Invalid Date (Empty String)";
inline constexpr char16_t DateWithT[] = u"Invalid Date ('T' not allowed)";
inline constexpr char16_t DateWithTwoZones[] = u"Invalid Date (Bad Zone value)";
inline constexpr char16_t MalformedDate[] = u"Invalid XSD Date [%s] expected CCYY-MM-DD[Z|[+|-]hh:mm]";
inline constexpr char16_t NullTime[] = u"Invalid Time (Null String)";
inline constexpr char16_t EmptyTime[] = u"Invalid XSD Time (Empty String)";
inline constexpr char16_t MalformedTime[] = u"Invalid XSD Time [%s] expected hh:mm:ss[.ff]";
inline constexpr char16_t TimeFractionTooLong[] = u"Invalid XSD Time [%s] Fraction part too long";
inline constexpr char16_t MalformedTimeZone[] = u"Invalid XSD Time Zone [%s]";
inline constexpr char16_t TimeOutOfRange[] = u"Invalid Time [%I64d] (outside the years -9999 to 9999)";
inline constexpr char16_t CannotConvertFileTime[] = u"Failed to convert FILETIME to SYSTEMTIME";

// CDateTimeSpan
inline constexpr char16_t NullDuration[] = u"Invalid XSD Duration (Null String)";
inline constexpr char16_t EmptyDuration[] = u"Invalid XSD Duration (Empty String)";
inline constexpr char16_t MalformedDuration[] =
    u"Invalid XSD Duration [%s] expected [-]P[nY][nM][nD][T[nH][nM][nS.ff]]";
inline constexpr char16_t DurationFractionTooLong[] = u"Invalid XSD Duration [%s] Fraction part too long";

// CBigInteger
inline constexpr char16_t OutOfBoundOfInt[] = u"ERROR: Value out of bound of int.";
inline constexpr char16_t OutOfBoundOfLongLong[] = u"ERROR: Value out of bound of LONGLONG.";
inline constexpr char16_t OverflowInDivide[] = u"ERROR: Overflow in operator/.";
inline constexpr char16_t OverflowInModulo[] = u"ERROR: Overflow in operator%.";
inline constexpr char16_t OverflowInDivideAssign[] = u"ERROR: Overflow in operator /=."; // sic
inline constexpr char16_t OverflowInModuloAssign[] = u"ERROR: Overflow in operator%=.";
inline constexpr char16_t NegativeSquareRoot[] = u"ERROR: Negative Number in function SquareRoot().";
inline constexpr char16_t InfiniteInteger[] = u"ERROR: Infinity is not an integer.";
inline constexpr char16_t PowerOfTenTooLarge[] = u"ERROR: The power of ten %u is above the limit of %u.";

// CDecimal
inline constexpr char16_t InvalidCharInDecimal[] =
    u"The string representing a Decimal, contained an invalid char at position %d [%s]"; // sic
inline constexpr char16_t ExponentOfDecimalTooLarge[] =
    u"The string representing a Decimal, contained an exponent above %I64d [%s]";
inline constexpr char16_t DecimalTooLargeForLong[] =
    u"The Decimal value if to large to fit into a LONG"; // sic
inline constexpr char16_t DecimalTooLargeForLongLong[] =
    u"The Decimal value if to large to fit into a LONGLONG"; // sic
inline constexpr char16_t DecimalTooLargeForDouble[] =
    u"The Decimal value if to large to fit into a Double"; // sic

} // namespace KzXmlLib10::messages
