#include "CCarrier.h"

#include "SimpleTypes.h"

#include <KzXmlLib10/metadata/CElementInfoSeq.h>

namespace orders {

// CCarrier has no tables of its own: each derived class repeats its descriptors in front of those it adds.

CElementInfo* CCarrier::NameElement() {
    return new CElementInfoSeqPrimMnd(u"name", shipmentNamespace, Property_name, false, ItemType_string,
                                      nullptr, CWhitespaceUtils::WhitespaceRule_Preserve, NameTypeFacets());
}

void CCarrier::Init() { m_name.clear(); }

void CCarrier::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    switch (propertyIndex) {
    case Property_name:
        return AccessPrimitive(GetClassElementInfo()[propertyIndex], read, value, m_name);
    default:
        FailUnknownProperty(propertyIndex);
    }
}

void CCarrier::SetName(std::u16string value) { SetProperty(Property_name, std::move(value)); }

// CCourier

constinit CGeneratedObject::ClassTables CCourier::m_tables(BuildTables);

CGeneratedObject::Tables CCourier::BuildTables() {
    return {
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"CourierType",
                               shipmentNamespace, true, true, -1, ItemType_Invalid, nullptr, false),
        ElementTable({
            NameElement(),
            new CElementInfoSeqPrimMnd(u"phone", shipmentNamespace, Property_phone, false, ItemType_string,
                                       nullptr, CWhitespaceUtils::WhitespaceRule_Preserve, PhoneTypeFacets()),
        }),
        AttributeTable({}),
    };
}

CCourier::CCourier(const char16_t* elementName) { SetElementName(elementName); }

void CCourier::Init() {
    CCarrier::Init();
    m_phone.clear();
}

void CCourier::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    switch (propertyIndex) {
    case Property_phone:
        return AccessPrimitive(m_tables->elements[propertyIndex], read, value, m_phone);
    default:
        CCarrier::AccessProperty(propertyIndex, read, value);
    }
}

void CCourier::SetPhone(std::u16string value) { SetProperty(Property_phone, std::move(value)); }

// CPost

constinit CGeneratedObject::ClassTables CPost::m_tables(BuildTables);

CGeneratedObject::Tables CPost::BuildTables() {
    return {
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"PostType",
                               shipmentNamespace, true, true, -1, ItemType_Invalid, nullptr, false),
        ElementTable({
            NameElement(),
            new CElementInfoSeqPrimMnd(u"office", shipmentNamespace, Property_office, false, ItemType_string,
                                       nullptr, CWhitespaceUtils::WhitespaceRule_Preserve, NoFacets()),
            new CElementInfoSeqPrimMnd(u"registered", shipmentNamespace, Property_registered, false,
                                       ItemType_boolean, nullptr, CWhitespaceUtils::WhitespaceRule_Collapse,
                                       NoFacets()),
        }),
        AttributeTable({}),
    };
}

CPost::CPost(const char16_t* elementName) { SetElementName(elementName); }

void CPost::Init() {
    CCarrier::Init();
    m_office.clear();
    m_registered = false;
}

void CPost::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    switch (propertyIndex) {
    case Property_office:
        return AccessPrimitive(m_tables->elements[propertyIndex], read, value, m_office);
    case Property_registered:
        return AccessPrimitive(m_tables->elements[propertyIndex], read, value, m_registered);
    default:
        CCarrier::AccessProperty(propertyIndex, read, value);
    }
}

void CPost::SetOffice(std::u16string value) { SetProperty(Property_office, std::move(value)); }
void CPost::SetRegistered(bool value) { SetProperty(Property_registered, value); }

} // namespace orders
