#include "CCustomer.h"

#include "ClassFactory.h"
#include "SimpleTypes.h"

#include <KzXmlLib10/metadata/CElementInfoSeq.h>

namespace orders {

constinit CGeneratedObject::ClassTables CCustomer::m_tables(BuildTables);

CGeneratedObject::Tables CCustomer::BuildTables() {
    constexpr auto ns = ordersNamespace;
    constexpr auto preserve = CWhitespaceUtils::WhitespaceRule_Preserve;
    return {
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"CustomerType", ns,
                               true, false, -1, ItemType_Invalid, nullptr, false),
        ElementTable({
            new CElementInfoSeqPrimMnd(u"name", ns, Property_name, false, ItemType_string, nullptr, preserve,
                                       NameTypeFacets()),
            new CElementInfoSeqPrimMnd(u"email", ns, Property_email, false, ItemType_string, nullptr,
                                       preserve, EmailTypeFacets()),
            new CElementInfoSeqClsMnd(u"address", ns, Property_address, XmlElementType_Element,
                                      CClassFactory::CreateObject, ClassId_Address, false),
            new CElementInfoSeqPrimOpt(u"phone", ns, Property_phone, false, ItemType_string, nullptr,
                                       preserve, PhoneTypeFacets()),
        }),
        AttributeTable({}),
    };
}

CCustomer::CCustomer(const char16_t* elementName) : m_address(new CAddress(u"address")) {
    SetElementName(elementName);
}

void CCustomer::Init() {
    m_name.clear();
    m_email.clear();
    m_phone.reset();
}

void CCustomer::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    CElementInfo** elements = m_tables->elements;
    switch (propertyIndex) {
    case Property_name:
        return AccessPrimitive(elements[propertyIndex], read, value, m_name);
    case Property_email:
        return AccessPrimitive(elements[propertyIndex], read, value, m_email);
    case Property_address:
        return read ? value.SetXmlObject(m_address) : SetAddress(ObjectFromVariant<CAddress>(value));
    case Property_phone:
        return AccessPrimitive(elements[propertyIndex], read, value, m_phone);
    default:
        FailUnknownProperty(propertyIndex);
    }
}

void CCustomer::SetName(std::u16string value) { SetProperty(Property_name, std::move(value)); }
void CCustomer::SetEmail(std::u16string value) { SetProperty(Property_email, std::move(value)); }
void CCustomer::SetAddress(CAddress* value) {
    Throw_IfPropertyIsNull(value, u"address");
    Throw_IfElementNameDiffers(value, u"address");
    m_address = value;
}
void CCustomer::SetPhone(std::optional<std::u16string> value) {
    SetProperty(Property_phone, std::move(value));
}

} // namespace orders
