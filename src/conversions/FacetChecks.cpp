#include <KzXmlLib10/conversions/FacetChecks.h>

#include <KzXmlLib10/conversions/CConversions.h>
#include <KzXmlLib10/conversions/CPrimitiveRestrictions.h>
#include <KzXmlLib10/values/KzVariant.h>

#include "conversions/Messages.h"
#include "conversions/PatternMatching.h"
#include "object/Digit.h"
#include "object/Throw.h"

#include <compare>
#include <concepts>
#include <functional>
#include <string_view>
#include <type_traits>
#include <utility>

namespace KzXmlLib10 {

namespace {

/// How a value stands to a bound. A NaN is unordered.
template <class T>
requires std::is_arithmetic_v<T> std::partial_ordering Compare(T value, T bound) { return value <=> bound; }

/// Equality comes first: a zero that has kept a minus sign counts as less than one without.
template <std::totally_ordered T>
std::partial_ordering CompareExact(const T& value, const T& bound) {
    if (value == bound)
        return std::partial_ordering::equivalent;
    return value < bound ? std::partial_ordering::less : std::partial_ordering::greater;
}
std::partial_ordering Compare(const CDecimal& value, const CDecimal& bound) {
    return value > bound ? std::partial_ordering::greater : CompareExact(value, bound);
}
std::partial_ordering Compare(const CBigInteger& value, const CBigInteger& bound) {
    return CompareExact(value, bound);
}

/// Dates, times and durations, some pairs of which are unordered.
template <class T>
requires requires(const T& value) { value.CompareTo(value); }
std::partial_ordering Compare(const T& value, const T& bound) {
    switch (value.CompareTo(bound)) {
    case CDateTime::DTCompareResult_Equal:
        return std::partial_ordering::equivalent;
    case CDateTime::DTCompareResult_Less:
        return std::partial_ordering::less;
    case CDateTime::DTCompareResult_Greater:
        return std::partial_ordering::greater;
    default:
        return std::partial_ordering::unordered;
    }
}

/// The number that up to nine digits make, or -1 for any other text.
int ShortNumber(std::u16string_view text) {
    if (text.empty() || text.size() > 9)
        return -1;
    int number = 0;
    for (const char16_t unit : text) {
        if (!IsDigit(unit))
            return -1;
        number = 10 * number + (unit - u'0');
    }
    return number;
}

/// What a conversion makes of a bound. Most are short numbers, which do not need all that it does.
template <auto FromText>
constexpr auto OrShort = [](const std::u16string& bound, CWhitespaceUtils::WhitespaceRule rule) {
    using T = decltype(FromText(bound, rule));
    const int number = ShortNumber(bound);
    if constexpr (std::is_integral_v<T>)
        return number >= 0 && std::in_range<T>(number) ? static_cast<T>(number) : FromText(bound, rule);
    else
        return number >= 0 ? T(number) : FromText(bound, rule);
};

/// The bounds of a kind: how one is read, the message, and what that shows of the value. What cannot be
/// ordered fails as a NaN and passes as a date or duration.
template <auto FromText, const auto& Violation, auto Shown = std::identity(), class T>
void CheckRange(const char16_t* name, const T& value, const CPrimitiveRestrictions& restrictions) {
    const auto holds = [&](std::partial_ordering side, bool inclusive, const std::u16string& bound) {
        if (bound.empty())
            return true;
        const std::partial_ordering order =
            Compare(value, FromText(bound, CWhitespaceUtils::WhitespaceRule_Collapse));
        if (order == std::partial_ordering::unordered)
            return !std::is_floating_point_v<T>;
        return order == side || (inclusive && std::is_eq(order));
    };
    constexpr auto above = std::partial_ordering::greater;
    constexpr auto below = std::partial_ordering::less;
    if (!holds(above, true, restrictions.m_minInclusive) ||
        !holds(below, true, restrictions.m_maxInclusive) ||
        !holds(above, false, restrictions.m_minExclusive) ||
        !holds(below, false, restrictions.m_maxExclusive))
        Throw<CKzException>(Violation, name, Shown(value));
}

/// The same for kinds of a class that writes itself.
template <auto FromText, class T>
void CheckRangeOf(const char16_t* name, const T& value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<FromText, messages::InvalidText, [](const T& shown) { return shown.ToString(); }>(
        name, value, restrictions);
}

/// A negative facet is not in force.
bool HasLengthWithin(std::size_t length, const CPrimitiveRestrictions& restrictions) {
    const auto holds = [&](auto relation, int facet) {
        return facet < 0 || relation(length, static_cast<std::size_t>(facet));
    };
    return holds(std::greater_equal(), restrictions.m_minLength) &&
           holds(std::less_equal(), restrictions.m_maxLength) &&
           holds(std::equal_to(), restrictions.m_length);
}

bool MatchesPattern(const char16_t* name, const std::u16string& value, const std::u16string& pattern) {
    try {
        return MatchXsdPatternOf(pattern, value);
    } catch (CKzException& failure) {
        Throw<CKzException>(messages::PatternFailed, failure.GetFullMessage(), name, value);
    }
}

/// Apart from CheckString, as most texts have no pattern. A text of a bad length fails without a look at it.
[[gnu::noinline]] void CheckPattern(const char16_t* name, const std::u16string& value,
                                    const std::u16string& pattern, bool isWithin) {
    if (!isWithin || !MatchesPattern(name, value, pattern))
        Throw<CKzException>(messages::InvalidText, name, value);
}

} // namespace

void CheckI1(const char16_t* name, std::int8_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<OrShort<CConversions::i1FromString>, messages::InvalidInteger>(name, value, restrictions);
}

void CheckI2(const char16_t* name, std::int16_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<OrShort<CConversions::i2FromString>, messages::InvalidInteger>(name, value, restrictions);
}

void CheckI4(const char16_t* name, std::int32_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<OrShort<CConversions::i4FromString>, messages::InvalidInteger>(name, value, restrictions);
}

void CheckI8(const char16_t* name, long long value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<OrShort<CConversions::i8FromString>, messages::InvalidText, CConversions::i8ToString>(
        name, value, restrictions);
}

void CheckUI1(const char16_t* name, std::uint8_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<OrShort<CConversions::ui1FromString>, messages::InvalidInteger>(name, value, restrictions);
}

void CheckUI2(const char16_t* name, std::uint16_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<OrShort<CConversions::ui2FromString>, messages::InvalidInteger>(name, value, restrictions);
}

void CheckUI4(const char16_t* name, std::uint32_t value, const CPrimitiveRestrictions& restrictions) {
    // Deliberate: the message shows the value as a signed number.
    CheckRange<OrShort<CConversions::ui4FromString>, messages::InvalidInteger>(name, value, restrictions);
}

void CheckUI8(const char16_t* name, unsigned long long value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<OrShort<CConversions::ui8FromString>, messages::InvalidText, CConversions::ui8ToString>(
        name, value, restrictions);
}

void CheckR4(const char16_t* name, float value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<OrShort<CConversions::r4FromString>, messages::InvalidReal>(name, value, restrictions);
}

void CheckR8(const char16_t* name, double value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<OrShort<CConversions::r8FromString>, messages::InvalidReal>(name, value, restrictions);
}

void CheckDecimal(const char16_t* name, const CDecimal& value, const CPrimitiveRestrictions& restrictions) {
    CheckRangeOf<OrShort<CConversions::decimalFromString>>(name, value, restrictions);
}

void CheckInteger(const char16_t* name, const CBigInteger& value,
                  const CPrimitiveRestrictions& restrictions) {
    CheckRangeOf<OrShort<CConversions::integerFromString>>(name, value, restrictions);
}

void CheckYear(const char16_t* name, std::uint16_t value, const CPrimitiveRestrictions& restrictions) {
    // Deliberate: unsigned, so negative years stand above all positive ones.
    CheckRange<CConversions::yearFromString, messages::InvalidInteger>(name, value, restrictions);
}

void CheckMonth(const char16_t* name, std::uint8_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<CConversions::monthFromString, messages::InvalidInteger>(name, value, restrictions);
}

void CheckDay(const char16_t* name, std::uint8_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<CConversions::dayFromString, messages::InvalidInteger>(name, value, restrictions);
}

void CheckDateTime(const char16_t* name, const CDateTime& value, const CPrimitiveRestrictions& restrictions) {
    CheckRangeOf<CConversions::datetimeFromString>(name, value, restrictions);
}

void CheckDate(const char16_t* name, const CDateTime& value, const CPrimitiveRestrictions& restrictions) {
    CheckRangeOf<CConversions::dateFromString>(name, value, restrictions);
}

void CheckTime(const char16_t* name, const CDateTime& value, const CPrimitiveRestrictions& restrictions) {
    CheckRangeOf<CConversions::timeFromString>(name, value, restrictions);
}

void CheckYearMonth(const char16_t* name, const CDateTime& value,
                    const CPrimitiveRestrictions& restrictions) {
    CheckRangeOf<CConversions::yearMonthFromString>(name, value, restrictions);
}

void CheckMonthDay(const char16_t* name, const CDateTime& value, const CPrimitiveRestrictions& restrictions) {
    CheckRangeOf<CConversions::monthDayFromString>(name, value, restrictions);
}

void CheckDuration(const char16_t* name, const CDateTimeSpan& value,
                   const CPrimitiveRestrictions& restrictions) {
    CheckRangeOf<CConversions::durationFromString>(name, value, restrictions);
}

void CheckHexBinary(const char16_t* name, const CBinaryData& value,
                    const CPrimitiveRestrictions& restrictions) {
    if (!HasLengthWithin(value.GetLength(), restrictions))
        Throw<CKzException>(messages::InvalidText, name, value.GetAsHexString());
}

void CheckBase64Binary(const char16_t* name, const CBinaryData& value,
                       const CPrimitiveRestrictions& restrictions) {
    // Deliberate: the message shows hexadecimal text here too.
    CheckHexBinary(name, value, restrictions);
}

void CheckString(const char16_t* name, const std::u16string& value,
                 const CPrimitiveRestrictions& restrictions) {
    const bool isWithin = HasLengthWithin(value.size(), restrictions);
    if (!isWithin || !restrictions.m_pattern.empty())
        CheckPattern(name, value, restrictions.m_pattern, isWithin);
}

namespace {

void CheckOtherThanString(const char16_t* name, const KzVariant& value, ItemType type,
                          const CPrimitiveRestrictions& restrictions) {
    switch (type) {
    case ItemType_hexBinary:
        return CheckHexBinary(name, value.GetHexBinary(), restrictions);
    case ItemType_base64Binary:
        return CheckBase64Binary(name, value.GetBase64Binary(), restrictions);
    case ItemType_i1:
        return CheckI1(name, value.GetI1(), restrictions);
    case ItemType_i2:
        return CheckI2(name, value.GetI2(), restrictions);
    case ItemType_i4:
        return CheckI4(name, value.GetI4(), restrictions);
    case ItemType_i8:
        return CheckI8(name, value.GetI8(), restrictions);
    case ItemType_ui1:
        return CheckUI1(name, value.GetUI1(), restrictions);
    case ItemType_ui2:
        return CheckUI2(name, value.GetUI2(), restrictions);
    case ItemType_ui4:
        return CheckUI4(name, value.GetUI4(), restrictions);
    case ItemType_ui8:
        return CheckUI8(name, value.GetUI8(), restrictions);
    case ItemType_r4:
        return CheckR4(name, value.GetR4(), restrictions);
    case ItemType_r8:
        return CheckR8(name, value.GetR8(), restrictions);
    case ItemType_duration:
        return CheckDuration(name, value.GetDuration(), restrictions);
    case ItemType_yearMonth:
        return CheckYearMonth(name, value.GetYearMonth(), restrictions);
    case ItemType_monthDay:
        return CheckMonthDay(name, value.GetMonthDay(), restrictions);
    case ItemType_year:
        return CheckYear(name, value.GetYear(), restrictions);
    case ItemType_month:
        return CheckMonth(name, value.GetMonth(), restrictions);
    case ItemType_day:
        return CheckDay(name, value.GetDay(), restrictions);
    case ItemType_date:
        return CheckDate(name, value.GetDate(), restrictions);
    case ItemType_datetime:
        return CheckDateTime(name, value.GetDateTime(), restrictions);
    case ItemType_time:
        return CheckTime(name, value.GetTime(), restrictions);
    case ItemType_boolean:
        return;
    case ItemType_decimal:
        return CheckDecimal(name, value.GetDecimalRef(), restrictions);
    case ItemType_integer:
        return CheckInteger(name, value.GetIntegerRef(), restrictions);
    default:
        Throw<CKzInvalidValueException>(messages::UnknownKindToCheck, value.GetType());
    }
}

} // namespace

void CheckPrimitiveRestrictions(const char16_t* name, const KzVariant& value, ItemType type,
                                const CPrimitiveRestrictions& restrictions) {
    if (type == ItemType_string) // as most are
        CheckString(name, value.GetStringRef(), restrictions);
    else
        CheckOtherThanString(name, value, type, restrictions);
}

} // namespace KzXmlLib10
