// In the form that a generator emits for OrderType of orders.xsd.
#pragma once

#include "CCustomer.h"
#include "CItem.h"
#include "CPayment.h"
#include "SimpleTypes.h"

#include <KzXmlLib10/collections/CstringCol.h>
#include <KzXmlLib10/values/CDateTime.h>

namespace orders {

/// The complex type OrderType.
class COrder : public CObjectIn<ordersNamespace> {
public:
    explicit COrder(const char16_t* elementName);

    // Setters throw CKzException for a value that the facets refuse, CKzInvalidParamException for a date of
    // another kind and for an object that is null or has the name of another element.

    std::int32_t GetId() const { return m_id; }
    void SetId(std::int32_t value);
    StatusType GetStatus() const { return m_status; }
    void SetStatus(StatusType value);
    const std::optional<std::int32_t>& GetPriority() const { return m_priority; }
    void SetPriority(std::optional<std::int32_t> value);
    CCustomer* GetCustomer() const { return m_customer; }
    void SetCustomer(CCustomer* value);
    const CDateTime& GetOrderDate() const { return m_orderDate; }
    void SetOrderDate(CDateTime value);
    const std::optional<CDateTime>& GetShipDate() const { return m_shipDate; }
    void SetShipDate(std::optional<CDateTime> value);
    /// Never null; at least one item has to be in it when the order is read or written.
    CItemCol* GetItems() const { return m_items; }
    CPayment* GetPayment() const { return m_payment; }
    void SetPayment(CPayment* value);
    const std::optional<std::u16string>& GetNote() const { return m_note; }
    void SetNote(std::optional<std::u16string> value);
    const CDecimal& GetTotal() const { return m_total; }
    void SetTotal(CDecimal value);
    /// Never null.
    CstringCol* GetTags() const { return m_tags; }

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override { return m_tables->info; }
    CElementInfo** GetClassElementInfo() const override { return m_tables->elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return m_tables->attributes; }
    void Init() override;

private:
    enum Property {
        Property_customer,
        Property_orderDate,
        Property_shipDate,
        Property_item,
        Property_payment,
        Property_note,
        Property_total,
        Property_tag,
        Property_id,
        Property_status,
        Property_priority,
    };
    static Tables BuildTables();
    static ClassTables m_tables;

    CSmartPtr<CCustomer> m_customer;
    CDateTime m_orderDate;
    std::optional<CDateTime> m_shipDate;
    CSmartPtr<CItemCol> m_items;
    CSmartPtr<CPayment> m_payment;
    std::optional<std::u16string> m_note;
    CDecimal m_total;
    CSmartPtr<CstringCol> m_tags;
    std::int32_t m_id = 0;
    StatusType m_status = StatusType_new;
    std::optional<std::int32_t> m_priority;
};

/// Repeated elements of OrderType.
class COrderCol : public CObjectCollection<COrder> {
public:
    using CObjectCollection::CObjectCollection;
};

} // namespace orders
