#include <KzXmlLib10/metadata/CAttributeInfoAny.h>

#include "metadata/Messages.h"
#include "object/NotNull.h"

#include <KzXmlLib10/collections/CAttribute.h>
#include <KzXmlLib10/collections/CAttributeCol.h>
#include <KzXmlLib10/object/CXmlGeneratedClass.h>
#include <KzXmlLib10/values/KzVariant.h>
#include <KzXmlLib10/xml/CXmlAttribute.h>

namespace KzXmlLib10Data {

using namespace KzXmlLib10;

CAttributeInfoAny::CAttributeInfoAny(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                                     bool optional, const char16_t* namespaceConstraint,
                                     const char16_t* targetNamespace, const char16_t* defaultValue)
    : CAttributeInfo(name, namespaceUri, propertyIndex, optional, defaultValue),
      m_namespaceConstraint(NotNull(namespaceConstraint, u"namespaceConstraint")),
      m_targetNamespace(NotNull(targetNamespace, u"targetNamespace")) {}

CSmartPtr<CXmlObjectBase> CAttributeInfoAny::ReadObject(const CXmlGeneratedClass* object) const {
    KzVariant value;
    ReadProperty(object, value);
    return value.GetTypeAsEnum() < ItemType_xmlObject ? nullptr : value.GetXmlObject();
}

bool CAttributeInfoAny::AttributeFromXml(const CXmlSerializationContext&, CXmlGeneratedClass* object,
                                         CXmlAttribute* attribute) {
    if (!IsNamespaceValid(attribute->GetNamespaceURI(), m_namespaceConstraint, m_targetNamespace))
        return false;
    const CSmartPtr<CXmlObjectBase> held = ReadObject(object);
    auto* collection = dynamic_cast<CAttributeCol*>(static_cast<CXmlObjectBase*>(held));
    if (!collection)
        Throw<CKzException>(messages::NotAnAttributeCol);
    collection->Add(attribute->GetLocalName().c_str(), attribute->GetValue().c_str(),
                    attribute->GetNamespaceURI().c_str());
    return true;
}

void CAttributeInfoAny::AttributeToXml(const CXmlSerializationContext& context,
                                       const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    const CSmartPtr<CXmlObjectBase> held = ReadObject(object);
    const std::u16string targetNamespace = GetTargetNamespace(object);
    if (held)
        ToXml_Int(held, writer, false, targetNamespace.c_str(), context);
}

void CAttributeInfoAny::Validate(const CXmlSerializationContext&, bool) const {}

} // namespace KzXmlLib10Data
