#include "SimpleTypes.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/FormatString.h>

#include <cstddef>
#include <string_view>

namespace orders {

namespace {

constexpr const char16_t* statusTypeNames[] = {
    u"new", u"confirmed", u"packed", u"shipped", u"delivered", u"returned", u"cancelled",
};
constexpr const char16_t* currencyTypeNames[] = {u"EUR", u"USD", u"SEK", u"JPY"};

template <std::size_t count>
const char16_t* EnumToText(const char16_t* const (&names)[count], const char16_t* type, int value) {
    if (value < 0 || value >= static_cast<int>(count))
        throw CKzInvalidValueException(
            FormatString(u"The number %d is none of the values of %s", value, type));
    return names[value];
}

template <std::size_t count>
int EnumFromText(const char16_t* const (&names)[count], const char16_t* type, const char16_t* text) {
    for (std::size_t i = 0; i < count; ++i)
        if (std::u16string_view(text) == names[i])
            return static_cast<int>(i);
    throw CKzInvalidValueException(FormatString(u"The text [%s] is none of the values of %s", text, type));
}

CPrimitiveRestrictions Pattern(const char16_t* pattern) {
    return CPrimitiveRestrictions(pattern, -1, -1, u"", u"", u"", u"", -1);
}

CPrimitiveRestrictions Lengths(int minLength, int maxLength) {
    return CPrimitiveRestrictions(u"", minLength, maxLength, u"", u"", u"", u"", -1);
}

CPrimitiveRestrictions Range(const char16_t* minInclusive, const char16_t* maxInclusive) {
    return CPrimitiveRestrictions(u"", -1, -1, minInclusive, maxInclusive, u"", u"", -1);
}

} // namespace

const char16_t* StatusTypeToString(int value) { return EnumToText(statusTypeNames, u"StatusType", value); }
int StatusTypeFromString(const char16_t* text) { return EnumFromText(statusTypeNames, u"StatusType", text); }
const char16_t* CurrencyTypeToString(int value) {
    return EnumToText(currencyTypeNames, u"CurrencyType", value);
}
int CurrencyTypeFromString(const char16_t* text) {
    return EnumFromText(currencyTypeNames, u"CurrencyType", text);
}

CPrimitiveRestrictions NoFacets() { return CPrimitiveRestrictions(); }
CPrimitiveRestrictions NameTypeFacets() { return Lengths(1, 80); }
CPrimitiveRestrictions EmailTypeFacets() {
    return Pattern(u"[A-Za-z0-9._\\-]+@[A-Za-z0-9.\\-]+\\.[a-z]{2,10}");
}
CPrimitiveRestrictions PhoneTypeFacets() { return Pattern(u"\\+?[0-9 ]{5,24}"); }
CPrimitiveRestrictions CountryTypeFacets() { return Pattern(u"[A-Z]{2}"); }
CPrimitiveRestrictions SkuTypeFacets() { return Pattern(u"[A-Z]{3}-[0-9]{6}"); }
CPrimitiveRestrictions QuantityTypeFacets() { return Range(u"1", u"1000"); }
CPrimitiveRestrictions PriorityTypeFacets() { return Range(u"1", u"9"); }
// The digits of MoneyType have no facet in the library: its format writes two places.
CPrimitiveRestrictions MoneyTypeFacets() { return Range(u"0", u""); }
CPrimitiveRestrictions CardNumberFacets() { return Pattern(u"[0-9]{16}"); }
CPrimitiveRestrictions IbanFacets() { return Pattern(u"[A-Z]{2}[0-9]{2}[A-Z0-9]{10,30}"); }

} // namespace orders
