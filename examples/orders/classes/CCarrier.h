// In the form that a generator emits for CarrierType of shipment.xsd and the types derived from it.
#pragma once

#include "GeneratedObject.h"

#include <string>

namespace orders {

inline constexpr char16_t shipmentNamespace[] = u"urn:example:shipment";

/// The abstract complex type CarrierType.
class CCarrier : public CObjectIn<shipmentNamespace> {
public:
    const std::u16string& GetName() const { return m_name; }
    /// Throws CKzException for a value that the facets refuse.
    void SetName(std::u16string value);

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    void Init() override;

protected:
    enum Property { Property_name, Property_Count };
    static CElementInfo* NameElement();

private:
    std::u16string m_name;
};

/// The complex type CourierType.
class CCourier : public CCarrier {
public:
    explicit CCourier(const char16_t* elementName);

    const std::u16string& GetPhone() const { return m_phone; }
    /// Throws CKzException for a value that the facets refuse.
    void SetPhone(std::u16string value);

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override { return m_tables->info; }
    CElementInfo** GetClassElementInfo() const override { return m_tables->elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return m_tables->attributes; }
    void Init() override;

private:
    enum Property { Property_phone = CCarrier::Property_Count };
    static Tables BuildTables();
    static ClassTables m_tables;

    std::u16string m_phone;
};

/// The complex type PostType.
class CPost : public CCarrier {
public:
    explicit CPost(const char16_t* elementName);

    const std::u16string& GetOffice() const { return m_office; }
    void SetOffice(std::u16string value);
    bool GetRegistered() const { return m_registered; }
    void SetRegistered(bool value);

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override { return m_tables->info; }
    CElementInfo** GetClassElementInfo() const override { return m_tables->elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return m_tables->attributes; }
    void Init() override;

private:
    enum Property { Property_office = CCarrier::Property_Count, Property_registered };
    static Tables BuildTables();
    static ClassTables m_tables;

    std::u16string m_office;
    bool m_registered = false;
};

} // namespace orders
