#include "COrders.h"

#include <KzXmlLib10/metadata/CElementInfoSeq.h>

namespace orders {

constinit CGeneratedObject::ClassTables COrders::m_tables(BuildTables);

CGeneratedObject::Tables COrders::BuildTables() {
    constexpr auto ns = ordersNamespace;
    constexpr auto preserve = CWhitespaceUtils::WhitespaceRule_Preserve;
    constexpr auto collapse = CWhitespaceUtils::WhitespaceRule_Collapse;
    return {
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"orders", ns, true,
                               false, -1, ItemType_Invalid, nullptr, false),
        ElementTable({
            new CElementInfoSeqClsCol(u"order", ns, Property_order, XmlElementType_Element),
        }),
        AttributeTable({
            new CAttributeInfoPrimitive(u"version", u"", Property_version, false, ItemType_string, nullptr,
                                        preserve, NoFacets(), nullptr),
            new CAttributeInfoPrimitive(u"created", u"", Property_created, false, ItemType_datetime, nullptr,
                                        collapse, NoFacets(), nullptr),
            new CAttributeInfoEnum(u"currency", u"", Property_currency, true, CurrencyTypeToString,
                                   CurrencyTypeFromString, nullptr),
        }),
    };
}

COrders::COrders(const char16_t* elementName) : m_orders(new COrderCol(u"order", ordersNamespace, 0, -1)) {
    SetElementName(elementName);
}

void COrders::Init() {
    m_orders->Clear();
    m_version.clear();
    m_created = CDateTime();
    m_currency.reset();
}

void COrders::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    CAttributeInfo** attributes = m_tables->attributes;
    switch (propertyIndex) {
    case Property_order:
        return AccessCollection(read, value, m_orders);
    case Property_version:
        return AccessPrimitive(attributes[propertyIndex - Property_version], read, value, m_version);
    case Property_created:
        return AccessDate(attributes[propertyIndex - Property_version], CDateTime::DTType_dateTime, read,
                          value, m_created);
    case Property_currency:
        return AccessEnum(read, value, m_currency);
    default:
        FailUnknownProperty(propertyIndex);
    }
}

void COrders::SetVersion(std::u16string value) { SetProperty(Property_version, std::move(value)); }
void COrders::SetCreated(CDateTime value) { SetProperty(Property_created, std::move(value)); }
void COrders::SetCurrency(std::optional<CurrencyType> value) { SetProperty(Property_currency, value); }

} // namespace orders
