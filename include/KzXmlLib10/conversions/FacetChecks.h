#pragma once

#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/object/ItemType.h>

#include <cstdint>
#include <string>

namespace KzXmlLib10 {

/// Checks a value of the given kind against facets; `name` is that of its element or attribute.
///
///     const CPrimitiveRestrictions percent(u"", -1, -1, u"0", u"100", u"", u"", -1);
///     CheckPrimitiveRestrictions(u"Share", value, ItemType_i4, percent);
///
/// Throws CKzException for a violation, whichever facet is broken, and for a pattern that does not compile;
/// CKzInvalidValueException for a kind without a check, the char among them; and what the conversion of the
/// kind throws for a bound that it cannot read. Bounds of values count for numbers, dates, times and
/// durations, lengths for texts and binary data, patterns for texts; a boolean passes always.
QUILLON_EXPORT void CheckPrimitiveRestrictions(const char16_t* name, const KzVariant& value, ItemType type,
                                               const CPrimitiveRestrictions& restrictions);

/// The check of each kind. The bounds are read when they are reached, in the order minInclusive,
/// maxInclusive, minExclusive, maxExclusive, and the check ends at the first one broken. A NaN breaks every
/// bound; a date, time or duration breaks none to which its relation is indeterminate.
QUILLON_EXPORT void CheckI1(const char16_t* name, std::int8_t value,
                            const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckI2(const char16_t* name, std::int16_t value,
                            const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckI4(const char16_t* name, std::int32_t value,
                            const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckI8(const char16_t* name, long long value,
                            const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckUI1(const char16_t* name, std::uint8_t value,
                             const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckUI2(const char16_t* name, std::uint16_t value,
                             const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckUI4(const char16_t* name, std::uint32_t value,
                             const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckUI8(const char16_t* name, unsigned long long value,
                             const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckR4(const char16_t* name, float value, const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckR8(const char16_t* name, double value, const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckDecimal(const char16_t* name, const CDecimal& value,
                                 const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckInteger(const char16_t* name, const CBigInteger& value,
                                 const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckYear(const char16_t* name, std::uint16_t value,
                              const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckMonth(const char16_t* name, std::uint8_t value,
                               const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckDay(const char16_t* name, std::uint8_t value,
                             const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckDateTime(const char16_t* name, const CDateTime& value,
                                  const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckDate(const char16_t* name, const CDateTime& value,
                              const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckTime(const char16_t* name, const CDateTime& value,
                              const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckYearMonth(const char16_t* name, const CDateTime& value,
                                   const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckMonthDay(const char16_t* name, const CDateTime& value,
                                  const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckDuration(const char16_t* name, const CDateTimeSpan& value,
                                  const CPrimitiveRestrictions& restrictions);
/// Lengths are in bytes. The message shows hexadecimal text.
QUILLON_EXPORT void CheckHexBinary(const char16_t* name, const CBinaryData& value,
                                   const CPrimitiveRestrictions& restrictions);
QUILLON_EXPORT void CheckBase64Binary(const char16_t* name, const CBinaryData& value,
                                      const CPrimitiveRestrictions& restrictions);
/// Lengths are in 16-bit code units, in the order minLength, maxLength, length; the pattern comes last.
QUILLON_EXPORT void CheckString(const char16_t* name, const std::u16string& value,
                                const CPrimitiveRestrictions& restrictions);

} // namespace KzXmlLib10
