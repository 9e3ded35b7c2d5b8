// In the form that a generator emits for PaymentType of orders.xsd and the two types that it chooses from.
#pragma once

#include "GeneratedObject.h"
#include "SimpleTypes.h"

#include <optional>
#include <string>

namespace orders {

/// The complex type CardType.
class CCard : public CObjectIn<ordersNamespace> {
public:
    explicit CCard(const char16_t* elementName);

    // Setters throw CKzException for a value that the facets refuse.

    const std::u16string& GetHolder() const { return m_holder; }
    void SetHolder(std::u16string value);
    const std::u16string& GetNumber() const { return m_number; }
    void SetNumber(std::u16string value);

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override { return m_tables->info; }
    CElementInfo** GetClassElementInfo() const override { return m_tables->elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return m_tables->attributes; }
    void Init() override;

private:
    enum Property { Property_holder, Property_number };
    static Tables BuildTables();
    static ClassTables m_tables;

    std::u16string m_holder;
    std::u16string m_number;
};

/// The complex type TransferType.
class CTransfer : public CObjectIn<ordersNamespace> {
public:
    explicit CTransfer(const char16_t* elementName);

    // Setters throw CKzException for a value that the facets refuse.

    const std::u16string& GetIban() const { return m_iban; }
    void SetIban(std::u16string value);
    const std::optional<std::u16string>& GetReference() const { return m_reference; }
    void SetReference(std::optional<std::u16string> value);

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override { return m_tables->info; }
    CElementInfo** GetClassElementInfo() const override { return m_tables->elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return m_tables->attributes; }
    void Init() override;

private:
    enum Property { Property_iban, Property_reference };
    static Tables BuildTables();
    static ClassTables m_tables;

    std::u16string m_iban;
    std::optional<std::u16string> m_reference;
};

/// The complex type PaymentType: one of its members is set, the others are null.
class CPayment : public CObjectIn<ordersNamespace> {
public:
    explicit CPayment(const char16_t* elementName);

    // A setter throws CKzInvalidStateException while another member is set, which has to be set to null
    // first, and CKzInvalidParamException for an object that has the name of another element.

    CCard* GetCard() const { return m_card; }
    void SetCard(CCard* value);
    CTransfer* GetTransfer() const { return m_transfer; }
    void SetTransfer(CTransfer* value);
    /// The name of the member that is set; empty if none is.
    const std::u16string& GetChoice() const { return m_validElement; }

    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    CParentElementInfo* GetClassInfo() const override { return m_tables->info; }
    CElementInfo** GetClassElementInfo() const override { return m_tables->elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return m_tables->attributes; }
    void Init() override;

private:
    enum Property { Property_card, Property_transfer };
    static Tables BuildTables();
    static ClassTables m_tables;

    template <class T>
    void SetMember(const char16_t* name, CSmartPtr<T>& member, T* value);

    std::u16string m_validElement;
    CSmartPtr<CCard> m_card;
    CSmartPtr<CTransfer> m_transfer;
};

} // namespace orders
