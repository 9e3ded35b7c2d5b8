#include "CAddress.h"

#include <KzXmlLib10/metadata/CElementInfoSeq.h>

namespace orders {

constinit CGeneratedObject::ClassTables CAddress::m_tables(BuildTables);

CGeneratedObject::Tables CAddress::BuildTables() {
    constexpr auto ns = ordersNamespace;
    constexpr auto preserve = CWhitespaceUtils::WhitespaceRule_Preserve;
    return {
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"AddressType", ns, true,
                               false, -1, ItemType_Invalid, nullptr, false),
        ElementTable({
            new CElementInfoSeqPrimMnd(u"street", ns, Property_street, false, ItemType_string, nullptr,
                                       preserve, NoFacets()),
            new CElementInfoSeqPrimMnd(u"city", ns, Property_city, false, ItemType_string, nullptr, preserve,
                                       NameTypeFacets()),
            new CElementInfoSeqPrimMnd(u"postalCode", ns, Property_postalCode, false, ItemType_string,
                                       nullptr, preserve, NoFacets()),
            new CElementInfoSeqPrimOpt(u"region", ns, Property_region, false, ItemType_string, nullptr,
                                       preserve, NoFacets()),
            new CElementInfoSeqPrimMnd(u"country", ns, Property_country, false, ItemType_string, nullptr,
                                       preserve, CountryTypeFacets()),
        }),
        AttributeTable({}),
    };
}

CAddress::CAddress(const char16_t* elementName) { SetElementName(elementName); }

void CAddress::Init() {
    m_street.clear();
    m_city.clear();
    m_postalCode.clear();
    m_region.reset();
    m_country.clear();
}

void CAddress::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    CElementInfo** elements = m_tables->elements;
    switch (propertyIndex) {
    case Property_street:
        return AccessPrimitive(elements[propertyIndex], read, value, m_street);
    case Property_city:
        return AccessPrimitive(elements[propertyIndex], read, value, m_city);
    case Property_postalCode:
        return AccessPrimitive(elements[propertyIndex], read, value, m_postalCode);
    case Property_region:
        return AccessPrimitive(elements[propertyIndex], read, value, m_region);
    case Property_country:
        return AccessPrimitive(elements[propertyIndex], read, value, m_country);
    default:
        FailUnknownProperty(propertyIndex);
    }
}

void CAddress::SetStreet(std::u16string value) { SetProperty(Property_street, std::move(value)); }
void CAddress::SetCity(std::u16string value) { SetProperty(Property_city, std::move(value)); }
void CAddress::SetPostalCode(std::u16string value) { SetProperty(Property_postalCode, std::move(value)); }
void CAddress::SetRegion(std::optional<std::u16string> value) {
    SetProperty(Property_region, std::move(value));
}
void CAddress::SetCountry(std::u16string value) { SetProperty(Property_country, std::move(value)); }

} // namespace orders
