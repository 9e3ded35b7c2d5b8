#include "CItem.h"

#include <KzXmlLib10/metadata/CElementInfoSeq.h>

namespace orders {

constinit CGeneratedObject::ClassTables CItem::m_tables(BuildTables);

CGeneratedObject::Tables CItem::BuildTables() {
    constexpr auto ns = ordersNamespace;
    constexpr auto preserve = CWhitespaceUtils::WhitespaceRule_Preserve;
    constexpr auto collapse = CWhitespaceUtils::WhitespaceRule_Collapse;
    return {
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"ItemType", ns, true,
                               false, -1, ItemType_Invalid, nullptr, false),
        ElementTable({
            new CElementInfoSeqPrimMnd(u"sku", ns, Property_sku, false, ItemType_string, nullptr, preserve,
                                       SkuTypeFacets()),
            new CElementInfoSeqPrimMnd(u"description", ns, Property_description, false, ItemType_string,
                                       nullptr, preserve, NoFacets()),
            new CElementInfoSeqPrimMnd(u"quantity", ns, Property_quantity, false, ItemType_i4, nullptr,
                                       collapse, QuantityTypeFacets()),
            new CElementInfoSeqPrimMnd(u"unitPrice", ns, Property_unitPrice, false, ItemType_decimal,
                                       moneyTypeFormat, collapse, MoneyTypeFacets()),
            new CElementInfoSeqPrimMnd(u"weight", ns, Property_weight, false, ItemType_r8, nullptr, collapse,
                                       NoFacets()),
            new CElementInfoSeqPrimMnd(u"gift", ns, Property_gift, false, ItemType_boolean, nullptr, collapse,
                                       NoFacets()),
        }),
        AttributeTable({}),
    };
}

CItem::CItem(const char16_t* elementName) { SetElementName(elementName); }

void CItem::Init() {
    m_sku.clear();
    m_description.clear();
    m_quantity = 0;
    m_unitPrice = CDecimal();
    m_weight = 0;
    m_gift = false;
}

void CItem::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    CElementInfo** elements = m_tables->elements;
    switch (propertyIndex) {
    case Property_sku:
        return AccessPrimitive(elements[propertyIndex], read, value, m_sku);
    case Property_description:
        return AccessPrimitive(elements[propertyIndex], read, value, m_description);
    case Property_quantity:
        return AccessPrimitive(elements[propertyIndex], read, value, m_quantity);
    case Property_unitPrice:
        return AccessPrimitive(elements[propertyIndex], read, value, m_unitPrice);
    case Property_weight:
        return AccessPrimitive(elements[propertyIndex], read, value, m_weight);
    case Property_gift:
        return AccessPrimitive(elements[propertyIndex], read, value, m_gift);
    default:
        FailUnknownProperty(propertyIndex);
    }
}

void CItem::SetSku(std::u16string value) { SetProperty(Property_sku, std::move(value)); }
void CItem::SetDescription(std::u16string value) { SetProperty(Property_description, std::move(value)); }
void CItem::SetQuantity(std::int32_t value) { SetProperty(Property_quantity, value); }
void CItem::SetUnitPrice(CDecimal value) { SetProperty(Property_unitPrice, std::move(value)); }
void CItem::SetWeight(double value) { SetProperty(Property_weight, value); }
void CItem::SetGift(bool value) { SetProperty(Property_gift, value); }

} // namespace orders
