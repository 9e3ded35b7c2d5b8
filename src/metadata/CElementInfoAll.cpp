#include <KzXmlLib10/metadata/CElementInfoAll.h>

#include "metadata/Leaves.h"
#include "metadata/Messages.h"
#include "object/Throw.h"

#include <KzXmlLib10/collections/CXmlCollectionBase.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10Data {

using namespace KzXmlLib10;

bool CElementInfoAll::RequireFound(bool found, bool isElement) const {
    if (!found && isElement)
        Throw<CKzValidationException>(messages::MandatoryElementNotFound, m_elementName);
    return found;
}

QUILLON_VALIDATE(CElementInfoAllMandatory) { return RequireFound(found, isElement); }
QUILLON_VALIDATE(CElementInfoAllOptional) { return true; }

// Prim, Enum

QUILLON_FROM_XML(CElementInfoAllPrimMnd) {
    return IsThisElement(context, *current) && TakePrimitive(object, current);
}

QUILLON_FROM_XML(CElementInfoAllPrimOpt) {
    return IsThisElement(context, *current) && TakePrimitive(object, current);
}

QUILLON_FROM_XML(CElementInfoAllEnumMnd) {
    return IsThisElement(context, *current) && TakeEnum(object, current, m_stringToEnum);
}

QUILLON_FROM_XML(CElementInfoAllEnumOpt) {
    return IsThisElement(context, *current) && TakeEnum(object, current, m_stringToEnum);
}

// Cls

QUILLON_FROM_XML(CElementInfoAllClsMnd) {
    if (m_elementType == XmlElementType_Element) {
        if (!IsThisElement(context, *current))
            return false;
        TakeObject(context, HeldObject(object), current, false);
        return true;
    }
    CXmlElement* result = FromXml_Int(HeldObject(object), parent, *current, context, false);
    const bool taken = result != *current;
    *current = result;
    return taken;
}
QUILLON_VALIDATE(CElementInfoAllClsMnd) {
    // Deliberate: not as in a sequence. Here the flag matters for a real child too, and a missing child of
    // kind XmlElementType_Pseudo always fails.
    if (!found && isElement && m_elementType != XmlElementType_Pseudo && !m_consumeRequired)
        return true;
    return RequireFound(found, isElement);
}

QUILLON_FROM_XML(CElementInfoAllClsOpt) {
    const bool isElement = m_elementType == XmlElementType_Element;
    if (isElement ? !IsThisElement(context, *current) : !*current)
        return false;
    const CSmartPtr<CXmlObjectBase> child = CreateObject(m_factory, m_classId);
    if (isElement) {
        ReadAndStoreObject(context, object, child, current);
        return true;
    }
    CXmlElement* result = FromXml_Int(child, parent, *current, context, false);
    if (result == *current)
        return false;
    StoreObject(object, child);
    *current = result;
    return true;
}

// AbsCls

QUILLON_FROM_XML(CElementInfoAllAbsClsMnd) { Throw<CKzException>(messages::AllAbsClsMndNotImplemented); }

QUILLON_FROM_XML(CElementInfoAllAbsClsOpt) { Throw<CKzException>(messages::AllAbsClsOptNotImplemented); }

// Untpd

QUILLON_FROM_XML(CElementInfoAllUntpdMnd) {
    if (!*current)
        return false;
    CXmlElement* result = ReadUntyped(context, HeldObjectOrNull(object), parent, *current);
    const bool taken = result != *current;
    *current = result;
    return taken;
}

QUILLON_FROM_XML(CElementInfoAllUntpdOpt) {
    if (!*current)
        return false;
    const CSmartPtr<CXmlObjectBase> untyped =
        CreateUntyped(m_namespaceConstraint, m_targetNamespace, ownerNamespace);
    CXmlElement* result = ReadUntyped(context, untyped, parent, *current);
    if (result == *current)
        return false;
    StoreObject(object, untyped);
    *current = result;
    return true;
}

// Col

QUILLON_TO_XML(CElementInfoAllCol) { return CheckedElementToXmlCol(context, object, writer); }
QUILLON_FROM_XML(CElementInfoAllCol) {
    *current = ReadRun(context, HeldCollection(object), parent, *current);
    return false;
}

} // namespace KzXmlLib10Data
