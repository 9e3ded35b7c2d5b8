// In the form that a generator emits for OrdersType of orders.xsd.
#pragma once

#include "COrder.h"

namespace orders {

/// The complex type OrdersType, and the element orders: the root of a document.
class COrders : public CObjectIn<ordersNamespace> {
public:
    explicit COrders(const char16_t* elementName = u"orders");

    // Setters throw CKzException for a value that the facets refuse, CKzInvalidParamException for a date of
    // another kind.

    const std::u16string& GetVersion() const { return m_version; }
    void SetVersion(std::u16string value);
    const CDateTime& GetCreated() const { return m_created; }
    void SetCreated(CDateTime value);
    const std::optional<CurrencyType>& GetCurrency() const { return m_currency; }
    void SetCurrency(std::optional<CurrencyType> value);
    /// Never null.
    COrderCol* GetOrders() const { return m_orders; }

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override { return m_tables->info; }
    CElementInfo** GetClassElementInfo() const override { return m_tables->elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return m_tables->attributes; }
    void Init() override;

private:
    enum Property { Property_order, Property_version, Property_created, Property_currency };
    static Tables BuildTables();
    static ClassTables m_tables;

    CSmartPtr<COrderCol> m_orders;
    std::u16string m_version;
    CDateTime m_created;
    std::optional<CurrencyType> m_currency;
};

} // namespace orders
