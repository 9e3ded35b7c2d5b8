#include "COrder.h"

#include "ClassFactory.h"

#include <KzXmlLib10/metadata/CElementInfoSeq.h>

namespace orders {

constinit CGeneratedObject::ClassTables COrder::m_tables(BuildTables);

CGeneratedObject::Tables COrder::BuildTables() {
    constexpr auto ns = ordersNamespace;
    constexpr auto preserve = CWhitespaceUtils::WhitespaceRule_Preserve;
    constexpr auto collapse = CWhitespaceUtils::WhitespaceRule_Collapse;
    return {
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"OrderType", ns, true,
                               false, -1, ItemType_Invalid, nullptr, false),
        ElementTable({
            new CElementInfoSeqClsMnd(u"customer", ns, Property_customer, XmlElementType_Element,
                                      CClassFactory::CreateObject, ClassId_Customer, false),
            new CElementInfoSeqPrimMnd(u"orderDate", ns, Property_orderDate, false, ItemType_datetime,
                                       nullptr, collapse, NoFacets()),
            new CElementInfoSeqPrimOpt(u"shipDate", ns, Property_shipDate, false, ItemType_date, nullptr,
                                       collapse, NoFacets()),
            new CElementInfoSeqClsCol(u"item", ns, Property_item, XmlElementType_Element),
            new CElementInfoSeqClsMnd(u"payment", ns, Property_payment, XmlElementType_Element,
                                      CClassFactory::CreateObject, ClassId_Payment, false),
            new CElementInfoSeqPrimOpt(u"note", ns, Property_note, false, ItemType_string, nullptr, preserve,
                                       NoFacets()),
            new CElementInfoSeqPrimMnd(u"total", ns, Property_total, false, ItemType_decimal, moneyTypeFormat,
                                       collapse, MoneyTypeFacets()),
            new CElementInfoSeqPrimCol(u"tag", ns, Property_tag),
        }),
        AttributeTable({
            new CAttributeInfoPrimitive(u"id", u"", Property_id, false, ItemType_i4, nullptr, collapse,
                                        NoFacets(), nullptr),
            new CAttributeInfoEnum(u"status", u"", Property_status, false, StatusTypeToString,
                                   StatusTypeFromString, nullptr),
            new CAttributeInfoPrimitive(u"priority", u"", Property_priority, true, ItemType_i4, nullptr,
                                        collapse, PriorityTypeFacets(), nullptr),
        }),
    };
}

COrder::COrder(const char16_t* elementName)
    : m_customer(new CCustomer(u"customer")), m_items(new CItemCol(u"item", ordersNamespace, 1, -1)),
      m_payment(new CPayment(u"payment")),
      m_tags(new CstringCol(u"tag", ordersNamespace, 0, -1, u"", -1, 32, u"", u"", u"", u"", -1,
                            CWhitespaceUtils::WhitespaceRule_Preserve, nullptr)) {
    SetElementName(elementName);
}

void COrder::Init() {
    m_orderDate = CDateTime();
    m_shipDate.reset();
    m_items->Clear();
    m_note.reset();
    m_total = CDecimal();
    m_tags->Clear();
    m_id = 0;
    m_status = StatusType_new;
    m_priority.reset();
}

void COrder::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    CElementInfo** elements = m_tables->elements;
    CAttributeInfo** attributes = m_tables->attributes;
    switch (propertyIndex) {
    case Property_customer:
        return read ? value.SetXmlObject(m_customer) : SetCustomer(ObjectFromVariant<CCustomer>(value));
    case Property_orderDate:
        return AccessDate(elements[propertyIndex], CDateTime::DTType_dateTime, read, value, m_orderDate);
    case Property_shipDate:
        return AccessDate(elements[propertyIndex], CDateTime::DTType_date, read, value, m_shipDate);
    case Property_item:
        return AccessCollection(read, value, m_items);
    case Property_payment:
        return read ? value.SetXmlObject(m_payment) : SetPayment(ObjectFromVariant<CPayment>(value));
    case Property_note:
        return AccessPrimitive(elements[propertyIndex], read, value, m_note);
    case Property_total:
        return AccessPrimitive(elements[propertyIndex], read, value, m_total);
    case Property_tag:
        return AccessCollection(read, value, m_tags);
    case Property_id:
        return AccessPrimitive(attributes[propertyIndex - Property_id], read, value, m_id);
    case Property_status:
        return AccessEnum(read, value, m_status);
    case Property_priority:
        return AccessPrimitive(attributes[propertyIndex - Property_id], read, value, m_priority);
    default:
        FailUnknownProperty(propertyIndex);
    }
}

void COrder::SetId(std::int32_t value) { SetProperty(Property_id, value); }
void COrder::SetStatus(StatusType value) { SetProperty(Property_status, value); }
void COrder::SetPriority(std::optional<std::int32_t> value) { SetProperty(Property_priority, value); }
void COrder::SetCustomer(CCustomer* value) {
    Throw_IfPropertyIsNull(value, u"customer");
    Throw_IfElementNameDiffers(value, u"customer");
    m_customer = value;
}
void COrder::SetOrderDate(CDateTime value) { SetProperty(Property_orderDate, std::move(value)); }
void COrder::SetShipDate(std::optional<CDateTime> value) { SetProperty(Property_shipDate, std::move(value)); }
void COrder::SetPayment(CPayment* value) {
    Throw_IfPropertyIsNull(value, u"payment");
    Throw_IfElementNameDiffers(value, u"payment");
    m_payment = value;
}
void COrder::SetNote(std::optional<std::u16string> value) { SetProperty(Property_note, std::move(value)); }
void COrder::SetTotal(CDecimal value) { SetProperty(Property_total, std::move(value)); }

} // namespace orders
