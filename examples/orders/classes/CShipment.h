// In the form that a generator emits for ShipmentType of shipment.xsd.
#pragma once

#include "CCarrier.h"
#include "CCustomer.h"
#include "SimpleTypes.h"

#include <KzXmlLib10/collections/CElement.h>
#include <KzXmlLib10/collections/CElementCol.h>

namespace orders {

/// The complex type ShipmentType, and the element shipment.
class CShipment : public CObjectIn<shipmentNamespace> {
public:
    explicit CShipment(const char16_t* elementName = u"shipment");

    // Setters throw CKzException for a value that the facets refuse, CKzInvalidParamException for an object
    // that is null or has the name of another element.

    std::int32_t GetOrder() const { return m_order; }
    void SetOrder(std::int32_t value);
    StatusType GetStatus() const { return m_status; }
    void SetStatus(StatusType value);
    CCustomer* GetRecipient() const { return m_recipient; }
    void SetRecipient(CCustomer* value);
    std::int32_t GetParcels() const { return m_parcels; }
    void SetParcels(std::int32_t value);
    const Nillable<double>& GetWeight() const { return m_weight; }
    void SetWeight(Nillable<double> value);
    /// Null until a carrier was set or read: its type is abstract.
    CCarrier* GetCarrier() const { return m_carrier; }
    void SetCarrier(CCarrier* value);
    const std::optional<std::u16string>& GetNote() const { return m_note; }
    void SetNote(std::optional<std::u16string> value);
    /// What stands under the wildcard. Never null.
    CElementCol* GetAnyElements() const { return m_anyElements; }

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override { return m_tables->info; }
    CElementInfo** GetClassElementInfo() const override { return m_tables->elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return m_tables->attributes; }
    void Init() override;

private:
    enum Property {
        Property_recipient,
        Property_parcels,
        Property_weight,
        Property_carrier,
        Property_note,
        Property_any,
        Property_order,
        Property_status,
    };
    static Tables BuildTables();
    static ClassTables m_tables;

    CSmartPtr<CCustomer> m_recipient;
    std::int32_t m_parcels = 0;
    Nillable<double> m_weight;
    CSmartPtr<CCarrier> m_carrier;
    std::optional<std::u16string> m_note;
    CSmartPtr<CElementCol> m_anyElements;
    std::int32_t m_order = 0;
    StatusType m_status = StatusType_new;
};

} // namespace orders
