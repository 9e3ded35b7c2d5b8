// In the form that a generator emits for CustomerType of orders.xsd.
#pragma once

#include "CAddress.h"

namespace orders {

/// The complex type CustomerType.
class CCustomer : public CObjectIn<ordersNamespace> {
public:
    explicit CCustomer(const char16_t* elementName);

    // Setters throw CKzException for a value that the facets refuse, CKzInvalidParamException for an object
    // that is null or has the name of another element.

    const std::u16string& GetName() const { return m_name; }
    void SetName(std::u16string value);
    const std::u16string& GetEmail() const { return m_email; }
    void SetEmail(std::u16string value);
    CAddress* GetAddress() const { return m_address; }
    void SetAddress(CAddress* value);
    const std::optional<std::u16string>& GetPhone() const { return m_phone; }
    void SetPhone(std::optional<std::u16string> value);

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override { return m_tables->info; }
    CElementInfo** GetClassElementInfo() const override { return m_tables->elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return m_tables->attributes; }
    void Init() override;

private:
    enum Property { Property_name, Property_email, Property_address, Property_phone };
    static Tables BuildTables();
    static ClassTables m_tables;

    std::u16string m_name;
    std::u16string m_email;
    CSmartPtr<CAddress> m_address;
    std::optional<std::u16string> m_phone;
};

} // namespace orders
