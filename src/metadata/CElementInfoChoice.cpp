#include <KzXmlLib10/metadata/CElementInfoChoice.h>

#include "metadata/Leaves.h"
#include "metadata/Messages.h"
#include "object/NotNull.h"
#include "object/Throw.h"

#include <KzXmlLib10/collections/CXmlCollectionBase.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10Data {

using namespace KzXmlLib10;

QUILLON_VALIDATE(CElementInfoChoice) { Throw<CKzException>(messages::ValidateNotImplemented); }

// Prim, Enum

QUILLON_FROM_XML(CElementInfoChoicePrimOpt) {
    return IsThisElement(context, *current) && TakePrimitive(object, current);
}

QUILLON_FROM_XML(CElementInfoChoiceEnumOpt) {
    return IsThisElement(context, *current) && TakeEnum(object, current, m_stringToEnum);
}

// Cls, AbsCls

QUILLON_TO_XML(CElementInfoChoiceClsOpt) { return ElementToXmlCls(context, object, writer, true); }
QUILLON_FROM_XML(CElementInfoChoiceClsOpt) {
    if (m_elementType == XmlElementType_Element) {
        if (!IsThisElement(context, *current))
            return false;
        const CSmartPtr<CXmlObjectBase> child = CreateObject(m_factory, m_classId);
        StoreObject(object, child);
        // The one place that allows an empty choice in the child.
        TakeObject(context, child, current, true);
        return true;
    }
    if (!*current)
        return false;
    const CSmartPtr<CXmlObjectBase> child = CreateObject(m_factory, m_classId);
    StoreObject(object, child);
    CXmlElement* result = FromXml_Int(child, parent, *current, context, false);
    if (result == *current) {
        StoreObject(object, nullptr);
        return false;
    }
    *current = result;
    return true;
}

QUILLON_FROM_XML(CElementInfoChoiceAbsClsOpt) {
    if (!IsThisElement(context, *current))
        return false;
    const CSmartPtr<CXmlObjectBase> child = NotNull(m_substitutionFactory, u"substitutionFactory")(*current);
    // Deliberate: stored even if the factory declined, which clears an earlier value.
    StoreObject(object, child);
    if (!child)
        return false;
    TakeObject(context, child, current, false);
    return true;
}

// Untpd

QUILLON_FROM_XML(CElementInfoChoiceUntpdOpt) {
    if (!*current)
        return false;
    const CSmartPtr<CXmlObjectBase> untyped =
        CreateUntyped(m_namespaceConstraint, m_targetNamespace, ownerNamespace);
    CXmlElement* result = ReadUntyped(context, untyped, parent, *current);
    const bool taken = result != *current;
    // Deliberate: a miss clears an earlier value.
    StoreObject(object, taken ? untyped : nullptr);
    *current = result;
    return taken;
}

// Col

QUILLON_TO_XML(CElementInfoChoiceCol) { return ElementToXmlCol(context, object, writer); }
QUILLON_FROM_XML(CElementInfoChoiceCol) {
    const CSmartPtr<CXmlCollectionBase> collection = HeldCollection(object);
    return FinishRun(context, *collection, ReadRun(context, collection, parent, *current), current,
                     ownerElementType);
}

bool CElementInfoChoiceCol::FinishRun(const CXmlSerializationContext& context,
                                      const CXmlCollectionBase& collection, CXmlElement* result,
                                      CXmlElement** current, XmlElementType ownerElementType) {
    if (result == *current)
        return false;
    if (ownerElementType == XmlElementType_Element) {
        *current = result;
        collection.ValidateCount(context);
        return true;
    }
    // The items that were read stay in the collection.
    if (!collection.IsValidCount(context))
        return false;
    *current = result;
    return true;
}

QUILLON_FROM_XML(CElementInfoChoiceUntpdCol) {
    if (!*current && !IsAnyElement())
        return false;
    const CSmartPtr<CXmlCollectionBase> collection = HeldCollection(object);
    return FinishRun(context, *collection, ReadUntypedRun(context, collection, parent, *current), current,
                     ownerElementType);
}

} // namespace KzXmlLib10Data
