#include "ClassFactory.h"

#include "CCarrier.h"
#include "CCustomer.h"
#include "CPayment.h"

#include <KzXmlLib10/object/Register.h>

namespace orders {

namespace {

[[maybe_unused]] const bool isRegistered = (Register(10, 1), true);

} // namespace

CSmartPtr<CXmlObjectBase> CClassFactory::CreateObject(int classId, const char16_t* elementName) {
    switch (classId) {
    case ClassId_Address:
        return new CAddress(elementName);
    case ClassId_Card:
        return new CCard(elementName);
    case ClassId_Customer:
        return new CCustomer(elementName);
    case ClassId_Payment:
        return new CPayment(elementName);
    case ClassId_Transfer:
        return new CTransfer(elementName);
    }
    return nullptr;
}

CSmartPtr<CXmlObjectBase> CClassFactory::CreateCarrier(CXmlElement* element) {
    if (GetElementTypeNamespaceUri(element) != shipmentNamespace)
        return nullptr;
    const std::u16string type = GetElementType(element);
    if (type == u"CourierType")
        return new CCourier(u"carrier");
    if (type == u"PostType")
        return new CPost(u"carrier");
    return nullptr;
}

} // namespace orders
