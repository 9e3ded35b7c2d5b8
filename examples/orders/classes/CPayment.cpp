#include "CPayment.h"

#include "ClassFactory.h"

#include <KzXmlLib10/metadata/CElementInfoChoice.h>
#include <KzXmlLib10/metadata/CElementInfoSeq.h>

namespace orders {

// CCard

constinit CGeneratedObject::ClassTables CCard::m_tables(BuildTables);

CGeneratedObject::Tables CCard::BuildTables() {
    constexpr auto ns = ordersNamespace;
    constexpr auto preserve = CWhitespaceUtils::WhitespaceRule_Preserve;
    return {
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"CardType", ns, true,
                               false, -1, ItemType_Invalid, nullptr, false),
        ElementTable({
            new CElementInfoSeqPrimMnd(u"holder", ns, Property_holder, false, ItemType_string, nullptr,
                                       preserve, NameTypeFacets()),
            new CElementInfoSeqPrimMnd(u"number", ns, Property_number, false, ItemType_string, nullptr,
                                       preserve, CardNumberFacets()),
        }),
        AttributeTable({}),
    };
}

CCard::CCard(const char16_t* elementName) { SetElementName(elementName); }

void CCard::Init() {
    m_holder.clear();
    m_number.clear();
}

void CCard::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    CElementInfo** elements = m_tables->elements;
    switch (propertyIndex) {
    case Property_holder:
        return AccessPrimitive(elements[propertyIndex], read, value, m_holder);
    case Property_number:
        return AccessPrimitive(elements[propertyIndex], read, value, m_number);
    default:
        FailUnknownProperty(propertyIndex);
    }
}

void CCard::SetHolder(std::u16string value) { SetProperty(Property_holder, std::move(value)); }
void CCard::SetNumber(std::u16string value) { SetProperty(Property_number, std::move(value)); }

// CTransfer

constinit CGeneratedObject::ClassTables CTransfer::m_tables(BuildTables);

CGeneratedObject::Tables CTransfer::BuildTables() {
    constexpr auto ns = ordersNamespace;
    constexpr auto preserve = CWhitespaceUtils::WhitespaceRule_Preserve;
    return {
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"TransferType", ns,
                               true, false, -1, ItemType_Invalid, nullptr, false),
        ElementTable({
            new CElementInfoSeqPrimMnd(u"iban", ns, Property_iban, false, ItemType_string, nullptr, preserve,
                                       IbanFacets()),
            new CElementInfoSeqPrimOpt(u"reference", ns, Property_reference, false, ItemType_string, nullptr,
                                       preserve, NoFacets()),
        }),
        AttributeTable({}),
    };
}

CTransfer::CTransfer(const char16_t* elementName) { SetElementName(elementName); }

void CTransfer::Init() {
    m_iban.clear();
    m_reference.reset();
}

void CTransfer::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    CElementInfo** elements = m_tables->elements;
    switch (propertyIndex) {
    case Property_iban:
        return AccessPrimitive(elements[propertyIndex], read, value, m_iban);
    case Property_reference:
        return AccessPrimitive(elements[propertyIndex], read, value, m_reference);
    default:
        FailUnknownProperty(propertyIndex);
    }
}

void CTransfer::SetIban(std::u16string value) { SetProperty(Property_iban, std::move(value)); }
void CTransfer::SetReference(std::optional<std::u16string> value) {
    SetProperty(Property_reference, std::move(value));
}

// CPayment

constinit CGeneratedObject::ClassTables CPayment::m_tables(BuildTables);

CGeneratedObject::Tables CPayment::BuildTables() {
    constexpr auto ns = ordersNamespace;
    return {
        new CParentElementInfo(XmlElementGroupType_Choice, XmlElementType_Element, u"PaymentType", ns, true,
                               false, -1, ItemType_Invalid, nullptr, false),
        ElementTable({
            new CElementInfoChoiceClsOpt(u"card", ns, Property_card, XmlElementType_Element,
                                         CClassFactory::CreateObject, ClassId_Card),
            new CElementInfoChoiceClsOpt(u"transfer", ns, Property_transfer, XmlElementType_Element,
                                         CClassFactory::CreateObject, ClassId_Transfer),
        }),
        AttributeTable({}),
    };
}

CPayment::CPayment(const char16_t* elementName) { SetElementName(elementName); }

void CPayment::Init() {
    m_validElement.clear();
    m_card = nullptr;
    m_transfer = nullptr;
}

void CPayment::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    switch (propertyIndex) {
    case Property_card:
        return read ? value.SetXmlObject(m_card) : SetCard(ObjectFromVariant<CCard>(value));
    case Property_transfer:
        return read ? value.SetXmlObject(m_transfer) : SetTransfer(ObjectFromVariant<CTransfer>(value));
    default:
        FailUnknownProperty(propertyIndex);
    }
}

void CPayment::SetCard(CCard* value) { SetMember(u"card", m_card, value); }
void CPayment::SetTransfer(CTransfer* value) { SetMember(u"transfer", m_transfer, value); }

template <class T>
void CPayment::SetMember(const char16_t* name, CSmartPtr<T>& member, T* value) {
    if (value == member)
        return;
    Throw_IfElementNameDiffers(value, name);
    Choice_SelectElement(name, value, m_validElement);
    member = value;
}

} // namespace orders
