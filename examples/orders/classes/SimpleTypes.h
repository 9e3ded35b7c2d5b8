// In the form that a generator emits for the simple types of orders.xsd.
#pragma once

#include <KzXmlLib10/conversions/CPrimitiveRestrictions.h>

#include <cstdint>

namespace orders {

using namespace KzXmlLib10;

inline constexpr char16_t ordersNamespace[] = u"urn:example:orders";

enum StatusType : std::int32_t {
    StatusType_new,
    StatusType_confirmed,
    StatusType_packed,
    StatusType_shipped,
    StatusType_delivered,
    StatusType_returned,
    StatusType_cancelled,
};

enum CurrencyType : std::int32_t {
    CurrencyType_EUR,
    CurrencyType_USD,
    CurrencyType_SEK,
    CurrencyType_JPY,
};

/// Amounts are written with two decimal places.
inline constexpr char16_t moneyTypeFormat[] = u"2";

// The enumerations as text, and back. A number or text outside the enumeration throws
// CKzInvalidValueException.

const char16_t* StatusTypeToString(int value);
int StatusTypeFromString(const char16_t* text);
const char16_t* CurrencyTypeToString(int value);
int CurrencyTypeFromString(const char16_t* text);

// The facets of the simple types.

CPrimitiveRestrictions NoFacets();
CPrimitiveRestrictions NameTypeFacets();
CPrimitiveRestrictions EmailTypeFacets();
CPrimitiveRestrictions PhoneTypeFacets();
CPrimitiveRestrictions CountryTypeFacets();
CPrimitiveRestrictions SkuTypeFacets();
CPrimitiveRestrictions QuantityTypeFacets();
CPrimitiveRestrictions PriorityTypeFacets();
CPrimitiveRestrictions MoneyTypeFacets();
CPrimitiveRestrictions CardNumberFacets();
CPrimitiveRestrictions IbanFacets();

} // namespace orders
