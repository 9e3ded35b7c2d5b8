#include <KzXmlLib10/conversions/FacetChecks.h>

#include <KzXmlLib10/conversions/CConversions.h>
#include <KzXmlLib10/conversions/CPrimitiveRestrictions.h>
#include <KzXmlLib10/conversions/XsdPattern.h>
#include <KzXmlLib10/object/Text.h>
#include <KzXmlLib10/values/KzVariant.h>

#include "conversions/Messages.h"
#include "object/Throw.h"

#include <functional>

namespace KzXmlLib10 {

namespace {

/// The bounds of a kind: how one is read, the message, and what that shows of the value. A relation has to
/// hold for the value to pass, so that a NaN fails.
template <auto FromText, const auto& Violation, auto Shown = std::identity(), class T>
void CheckRange(const char16_t* name, T value, const CPrimitiveRestrictions& restrictions) {
    const auto holds = [&](auto relation, const std::u16string& bound) {
        return bound.empty() || relation(value, FromText(bound, CWhitespaceUtils::WhitespaceRule_Collapse));
    };
    if (!holds(std::greater_equal(), restrictions.m_minInclusive) ||
        !holds(std::less_equal(), restrictions.m_maxInclusive) ||
        !holds(std::greater(), restrictions.m_minExclusive) ||
        !holds(std::less(), restrictions.m_maxExclusive))
        Throw<CKzException>(Violation, name, Shown(value));
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
    if (pattern.empty())
        return true;
    try {
        return MatchXsdPattern(ConvertToUtf8(pattern), value);
    } catch (CKzException& failure) {
        Throw<CKzException>(messages::PatternFailed, failure.GetFullMessage(), name, value);
    }
}

} // namespace

void CheckI1(const char16_t* name, std::int8_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<CConversions::i1FromString, messages::InvalidInteger>(name, value, restrictions);
}

void CheckI2(const char16_t* name, std::int16_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<CConversions::i2FromString, messages::InvalidInteger>(name, value, restrictions);
}

void CheckI4(const char16_t* name, std::int32_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<CConversions::i4FromString, messages::InvalidInteger>(name, value, restrictions);
}

void CheckI8(const char16_t* name, long long value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<CConversions::i8FromString, messages::InvalidText, CConversions::i8ToString>(name, value,
                                                                                            restrictions);
}

void CheckUI1(const char16_t* name, std::uint8_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<CConversions::ui1FromString, messages::InvalidInteger>(name, value, restrictions);
}

void CheckUI2(const char16_t* name, std::uint16_t value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<CConversions::ui2FromString, messages::InvalidInteger>(name, value, restrictions);
}

void CheckUI4(const char16_t* name, std::uint32_t value, const CPrimitiveRestrictions& restrictions) {
    // Deliberate: the message shows the value as a signed number.
    CheckRange<CConversions::ui4FromString, messages::InvalidInteger>(name, value, restrictions);
}

void CheckUI8(const char16_t* name, unsigned long long value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<CConversions::ui8FromString, messages::InvalidText, CConversions::ui8ToString>(name, value,
                                                                                              restrictions);
}

void CheckR4(const char16_t* name, float value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<CConversions::r4FromString, messages::InvalidReal>(name, value, restrictions);
}

void CheckR8(const char16_t* name, double value, const CPrimitiveRestrictions& restrictions) {
    CheckRange<CConversions::r8FromString, messages::InvalidReal>(name, value, restrictions);
}

void CheckString(const char16_t* name, const std::u16string& value,
                 const CPrimitiveRestrictions& restrictions) {
    if (!HasLengthWithin(value.size(), restrictions) || !MatchesPattern(name, value, restrictions.m_pattern))
        Throw<CKzException>(messages::InvalidText, name, value);
}

void CheckPrimitiveRestrictions(const char16_t* name, const KzVariant& value, ItemType type,
                                const CPrimitiveRestrictions& restrictions) {
    switch (type) {
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
    case ItemType_string:
        return CheckString(name, value.GetStringRef(), restrictions);
    case ItemType_boolean:
        return;
    default:
        Throw<CKzInvalidValueException>(messages::UnknownKindToCheck, value.GetType());
    }
}

} // namespace KzXmlLib10
