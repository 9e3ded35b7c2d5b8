// In the form that a generator emits for AddressType of orders.xsd.
#pragma once

#include "GeneratedObject.h"
#include "SimpleTypes.h"

#include <optional>
#include <string>

namespace orders {

/// The complex type AddressType.
class CAddress : public CObjectIn<ordersNamespace> {
public:
    explicit CAddress(const char16_t* elementName);

    // Setters throw CKzException for a value that the facets refuse.

    const std::u16string& GetStreet() const { return m_street; }
    void SetStreet(std::u16string value);
    const std::u16string& GetCity() const { return m_city; }
    void SetCity(std::u16string value);
    const std::u16string& GetPostalCode() const { return m_postalCode; }
    void SetPostalCode(std::u16string value);
    const std::optional<std::u16string>& GetRegion() const { return m_region; }
    void SetRegion(std::optional<std::u16string> value);
    const std::u16string& GetCountry() const { return m_country; }
    void SetCountry(std::u16string value);

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override { return m_tables->info; }
    CElementInfo** GetClassElementInfo() const override { return m_tables->elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return m_tables->attributes; }
    void Init() override;

private:
    enum Property { Property_street, Property_city, Property_postalCode, Property_region, Property_country };
    static Tables BuildTables();
    static ClassTables m_tables;

    std::u16string m_street;
    std::u16string m_city;
    std::u16string m_postalCode;
    std::optional<std::u16string> m_region;
    std::u16string m_country;
};

} // namespace orders
