// In the form that a generator emits: the factory of all classes of orders.xsd and shipment.xsd.
#pragma once

#include <KzXmlLib10/object/CClassfactoryBase.h>
#include <KzXmlLib10/object/CSmartPtr.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>

namespace orders {

using namespace KzXmlLib10;

/// The numbers by which descriptors name the classes.
enum ClassId {
    ClassId_Address,
    ClassId_Card,
    ClassId_Customer,
    ClassId_Payment,
    ClassId_Transfer,
};

class CClassFactory : public CClassfactoryBase {
public:
    /// A new object of the class, under the name of the element that it will stand for.
    static CSmartPtr<CXmlObjectBase> CreateObject(int classId, const char16_t* elementName);

    /// An object of the class derived from CarrierType that the element's xsi:type names, or null if it
    /// names none.
    static CSmartPtr<CXmlObjectBase> CreateCarrier(CXmlElement* element);
};

} // namespace orders
