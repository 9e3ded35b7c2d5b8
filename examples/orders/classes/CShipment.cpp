#include "CShipment.h"

#include "ClassFactory.h"

#include <KzXmlLib10/metadata/CElementInfoSeq.h>

namespace orders {

constinit CGeneratedObject::ClassTables CShipment::m_tables(BuildTables);

CGeneratedObject::Tables CShipment::BuildTables() {
    constexpr auto ns = shipmentNamespace;
    constexpr auto preserve = CWhitespaceUtils::WhitespaceRule_Preserve;
    constexpr auto collapse = CWhitespaceUtils::WhitespaceRule_Collapse;
    return {
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"shipment", ns, true,
                               false, -1, ItemType_Invalid, nullptr, false),
        ElementTable({
            new CElementInfoSeqClsMnd(u"recipient", ns, Property_recipient, XmlElementType_Element,
                                      CClassFactory::CreateObject, ClassId_Customer, false),
            new CElementInfoSeqPrimMnd(u"parcels", ns, Property_parcels, false, ItemType_i4, nullptr,
                                       collapse, QuantityTypeFacets()),
            new CElementInfoSeqPrimMnd(u"weight", ns, Property_weight, true, ItemType_r8, nullptr, collapse,
                                       NoFacets()),
            new CElementInfoSeqAbsClsMnd(u"carrier", ns, Property_carrier, XmlElementType_Element,
                                         CClassFactory::CreateCarrier),
            new CElementInfoSeqPrimOpt(u"note", ns, Property_note, false, ItemType_string, nullptr, preserve,
                                       NoFacets()),
            new CElementInfoSeqUntpdCol(u"AnyElement", u"", Property_any),
        }),
        AttributeTable({
            new CAttributeInfoPrimitive(u"order", u"", Property_order, false, ItemType_i4, nullptr, collapse,
                                        NoFacets(), nullptr),
            new CAttributeInfoEnum(u"status", u"", Property_status, false, StatusTypeToString,
                                   StatusTypeFromString, nullptr),
        }),
    };
}

CShipment::CShipment(const char16_t* elementName)
    : m_recipient(new CCustomer(u"recipient")),
      m_anyElements(new CElementCol(u"", u"##other", shipmentNamespace, 0, -1)) {
    SetElementName(elementName);
}

void CShipment::Init() {
    m_parcels = 0;
    m_weight = {};
    m_carrier = nullptr;
    m_note.reset();
    m_anyElements->Clear();
    m_order = 0;
    m_status = StatusType_new;
}

void CShipment::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    CElementInfo** elements = m_tables->elements;
    switch (propertyIndex) {
    case Property_recipient:
        return read ? value.SetXmlObject(m_recipient) : SetRecipient(ObjectFromVariant<CCustomer>(value));
    case Property_parcels:
        return AccessPrimitive(elements[propertyIndex], read, value, m_parcels);
    case Property_weight:
        return AccessPrimitive(elements[propertyIndex], read, value, m_weight);
    case Property_carrier:
        return read ? value.SetXmlObject(m_carrier) : SetCarrier(ObjectFromVariant<CCarrier>(value));
    case Property_note:
        return AccessPrimitive(elements[propertyIndex], read, value, m_note);
    case Property_any:
        return AccessCollection(read, value, m_anyElements);
    case Property_order:
        return AccessPrimitive(m_tables->attributes[propertyIndex - Property_order], read, value, m_order);
    case Property_status:
        return AccessEnum(read, value, m_status);
    default:
        FailUnknownProperty(propertyIndex);
    }
}

void CShipment::SetOrder(std::int32_t value) { SetProperty(Property_order, value); }
void CShipment::SetStatus(StatusType value) { SetProperty(Property_status, value); }
void CShipment::SetRecipient(CCustomer* value) {
    Throw_IfPropertyIsNull(value, u"recipient");
    Throw_IfElementNameDiffers(value, u"recipient");
    m_recipient = value;
}
void CShipment::SetParcels(std::int32_t value) { SetProperty(Property_parcels, value); }
void CShipment::SetWeight(Nillable<double> value) { SetProperty(Property_weight, std::move(value)); }
void CShipment::SetCarrier(CCarrier* value) {
    Throw_IfPropertyIsNull(value, u"carrier");
    Throw_IfElementNameDiffers(value, u"carrier");
    m_carrier = value;
}
void CShipment::SetNote(std::optional<std::u16string> value) { SetProperty(Property_note, std::move(value)); }

} // namespace orders
