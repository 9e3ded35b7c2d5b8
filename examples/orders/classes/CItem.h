// In the form that a generator emits for ItemType of orders.xsd.
#pragma once

#include "GeneratedObject.h"
#include "ObjectCollection.h"
#include "SimpleTypes.h"

#include <KzXmlLib10/values/CDecimal.h>

#include <cstdint>
#include <string>

namespace orders {

/// The complex type ItemType.
class CItem : public CObjectIn<ordersNamespace> {
public:
    explicit CItem(const char16_t* elementName);

    // Setters throw CKzException for a value that the facets refuse.

    const std::u16string& GetSku() const { return m_sku; }
    void SetSku(std::u16string value);
    const std::u16string& GetDescription() const { return m_description; }
    void SetDescription(std::u16string value);
    std::int32_t GetQuantity() const { return m_quantity; }
    void SetQuantity(std::int32_t value);
    const CDecimal& GetUnitPrice() const { return m_unitPrice; }
    void SetUnitPrice(CDecimal value);
    double GetWeight() const { return m_weight; }
    void SetWeight(double value);
    bool GetGift() const { return m_gift; }
    void SetGift(bool value);

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override { return m_tables->info; }
    CElementInfo** GetClassElementInfo() const override { return m_tables->elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return m_tables->attributes; }
    void Init() override;

private:
    enum Property {
        Property_sku,
        Property_description,
        Property_quantity,
        Property_unitPrice,
        Property_weight,
        Property_gift,
    };
    static Tables BuildTables();
    static ClassTables m_tables;

    std::u16string m_sku;
    std::u16string m_description;
    std::int32_t m_quantity = 0;
    CDecimal m_unitPrice;
    double m_weight = 0;
    bool m_gift = false;
};

/// Repeated elements of ItemType.
class CItemCol : public CObjectCollection<CItem> {
public:
    using CObjectCollection::CObjectCollection;
};

} // namespace orders
