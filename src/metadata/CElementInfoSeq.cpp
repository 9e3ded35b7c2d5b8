#include <KzXmlLib10/metadata/CElementInfoSeq.h>

#include "metadata/Leaves.h"
#include "metadata/Messages.h"
#include "object/NotNull.h"
#include "object/RecursionLevel.h"
#include "object/Throw.h"

#include <KzXmlLib10/collections/CXmlCollectionBase.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10Data {

using namespace KzXmlLib10;

QUILLON_VALIDATE(CElementInfoSeq) { Throw<CKzException>(messages::ValidateNotImplemented); }

// Prim

QUILLON_FROM_XML(CElementInfoSeqPrimMnd) {
    if (ownerElementType == XmlElementType_Element)
        return !SeekElement(context, current) || TakePrimitive(object, current);
    // What is skipped here stays skipped on a miss; the engine restores its own position.
    for (; *current; *current = (*current)->GetNextSiblingElement()) {
        if (IsThisElement(context, *current))
            return TakePrimitive(object, current);
        if (!context.GetIgnoreUnknownElements())
            return false;
        RecursionLevel::CountSkippedElement();
    }
    return false;
}

QUILLON_FROM_XML(CElementInfoSeqPrimOpt) {
    return !IsThisElement(context, *current) || TakePrimitive(object, current);
}

// Enum

QUILLON_TO_XML(CElementInfoSeqEnumMnd) { return ElementToXmlEnum(context, object, writer, m_enumToString); }
QUILLON_FROM_XML(CElementInfoSeqEnumMnd) {
    if (ownerElementType == XmlElementType_Element)
        return !SeekElement(context, current) || TakeEnum(object, current, m_stringToEnum);
    // Deliberate: nothing is skipped in a group, whereas its sister for primitive values skips.
    return IsThisElement(context, *current) && TakeEnum(object, current, m_stringToEnum);
}

QUILLON_FROM_XML(CElementInfoSeqEnumOpt) {
    return !IsThisElement(context, *current) || TakeEnum(object, current, m_stringToEnum);
}

// Cls

QUILLON_FROM_XML(CElementInfoSeqClsMnd) {
    if (m_elementType == XmlElementType_Element)
        return ReadElement(context, object, current, ownerElementType);
    return m_consumeRequired ? ReadRequiredGroup(context, object, parent, current, ownerElementType)
                             : ReadGroup(context, object, parent, current, ownerElementType);
}

bool CElementInfoSeqClsMnd::ReadElement(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                                        CXmlElement** current, XmlElementType ownerElementType) {
    if (ownerElementType != XmlElementType_Element) {
        if (!IsThisElement(context, *current))
            return false;
    } else if (!SeekElement(context, current)) {
        return true;
    }
    TakeObject(context, HeldObject(object), current, false);
    return true;
}

bool CElementInfoSeqClsMnd::ReadGroup(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                                      CXmlElement* parent, CXmlElement** current,
                                      XmlElementType ownerElementType) {
    CXmlElement* result = FromXml_Int(HeldObject(object), parent, *current, context, false);
    // The engine skips one element and offers the next one to the group again.
    if (*current && result == *current && context.GetIgnoreUnknownElements() &&
        ownerElementType == XmlElementType_Element)
        return false;
    *current = result;
    return true;
}

bool CElementInfoSeqClsMnd::ReadRequiredGroup(const CXmlSerializationContext& context,
                                              CXmlGeneratedClass* object, CXmlElement* parent,
                                              CXmlElement** current, XmlElementType ownerElementType) {
    if (*current) {
        CXmlElement* result = FromXml_Int(HeldObject(object), parent, *current, context, false);
        if (result != *current) {
            *current = result;
            return true;
        }
    }
    if (ownerElementType == XmlElementType_Element)
        FailRequired();
    return false;
}

QUILLON_FROM_XML(CElementInfoSeqClsOpt) {
    // The object is stored after it was filled, so that a failed read leaves the property unset.
    if (m_elementType == XmlElementType_Element) {
        if (!IsThisElement(context, *current))
            return true;
        const CSmartPtr<CXmlObjectBase> child = CreateObject(m_factory, m_classId);
        TakeObject(context, child, current, false);
        StoreObject(object, child);
        return true;
    }
    if (!*current)
        return true;
    const CSmartPtr<CXmlObjectBase> child = CreateObject(m_factory, m_classId);
    CXmlElement* result = FromXml_Int(child, parent, *current, context, false);
    if (result != *current)
        StoreObject(object, child);
    *current = result;
    return true;
}

// AbsCls

QUILLON_FROM_XML(CElementInfoSeqAbsClsMnd) {
    CSmartPtr<CXmlObjectBase> child;
    if (IsThisElement(context, *current))
        child = NotNull(m_substitutionFactory, u"substitutionFactory")(*current);
    if (!child) {
        if (ownerElementType == XmlElementType_Element)
            Throw<CKzValidationException>(messages::NoSubstitutionElement, m_elementName);
        return false;
    }
    ReadAndStoreObject(context, object, child, current);
    return true;
}

QUILLON_FROM_XML(CElementInfoSeqAbsClsOpt) {
    if (!IsThisElement(context, *current))
        return true;
    if (const CSmartPtr<CXmlObjectBase> child =
            NotNull(m_substitutionFactory, u"substitutionFactory")(*current))
        ReadAndStoreObject(context, object, child, current);
    return true;
}

// Untpd

QUILLON_FROM_XML(CElementInfoSeqUntpdMnd) {
    // Deliberate: the end of the list is a failure even in a group, unlike for every other mandatory member.
    if (!*current)
        FailRequired();
    CXmlElement* result = ReadUntyped(context, HeldObjectOrNull(object), parent, *current);
    if (result == *current) {
        if (ownerElementType == XmlElementType_Element)
            Throw<CKzValidationException>(messages::RequiredNamespaceNotFound, m_elementNamespace);
        return false;
    }
    *current = result;
    return true;
}

QUILLON_FROM_XML(CElementInfoSeqUntpdOpt) {
    if (!*current)
        return true;
    const CSmartPtr<CXmlObjectBase> untyped =
        CreateUntyped(m_namespaceConstraint, m_targetNamespace, ownerNamespace);
    CXmlElement* result = ReadUntyped(context, untyped, parent, *current);
    if (result != *current)
        StoreObject(object, untyped);
    *current = result;
    return true;
}

// Col

QUILLON_TO_XML(CElementInfoSeqCol) { return CheckedElementToXmlCol(context, object, writer); }
QUILLON_FROM_XML(CElementInfoSeqCol) {
    const CSmartPtr<CXmlCollectionBase> collection = HeldCollection(object);
    *current = ReadRun(context, collection, parent, *current);
    return HasValidCount(context, *collection, ownerElementType);
}

QUILLON_FROM_XML(CElementInfoSeqUntpdCol) {
    const CSmartPtr<CXmlCollectionBase> collection = HeldCollection(object);
    *current = ReadUntypedRun(context, collection, parent, *current);
    return HasValidCount(context, *collection, ownerElementType);
}

} // namespace KzXmlLib10Data
