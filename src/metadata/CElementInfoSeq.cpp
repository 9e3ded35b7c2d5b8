#include <KzXmlLib10/metadata/CElementInfoSeq.h>

#include "metadata/Messages.h"
#include "object/NotNull.h"

#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10Data {

using namespace KzXmlLib10;

CElementInfoSeq::CElementInfoSeq(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
    : CElementInfo(name, namespaceUri, propertyIndex) {}
CElementInfoSeq::CElementInfoSeq(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                                 bool nillable)
    : CElementInfo(name, namespaceUri, propertyIndex, nillable) {}
CElementInfoSeq::CElementInfoSeq(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                                 bool nillable, ItemType itemType, const char16_t* formatOverride,
                                 CWhitespaceUtils::WhitespaceRule whitespaceRule,
                                 const CPrimitiveRestrictions& restrictions)
    : CElementInfo(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride, whitespaceRule,
                   restrictions) {}

bool CElementInfoSeq::Validate(const CXmlSerializationContext&, const CXmlGeneratedClass*, bool, bool) const {
    Throw<CKzException>(messages::ValidateNotImplemented);
}

CElementInfoSeqNonCol::CElementInfoSeqNonCol(const char16_t* name, const char16_t* namespaceUri,
                                             int propertyIndex)
    : CElementInfoSeq(name, namespaceUri, propertyIndex) {}

// Prim

CElementInfoSeqPrimMnd::CElementInfoSeqPrimMnd(const char16_t* name, const char16_t* namespaceUri,
                                               int propertyIndex, bool nillable, ItemType itemType,
                                               const char16_t* formatOverride,
                                               CWhitespaceUtils::WhitespaceRule whitespaceRule,
                                               const CPrimitiveRestrictions& restrictions)
    : CElementInfoSeq(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride, whitespaceRule,
                      restrictions) {}

bool CElementInfoSeqPrimMnd::ElementToXml(const CXmlSerializationContext& context,
                                          const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    return ElementToXmlPrim(context, object, writer);
}

bool CElementInfoSeqPrimMnd::ElementFromXml(const CXmlSerializationContext& context,
                                            CXmlGeneratedClass* object, CXmlElement*, CXmlElement** current,
                                            const char16_t*, XmlElementType ownerElementType) {
    if (ownerElementType == XmlElementType_Element)
        return !SeekElement(context, current) || TakePrimitive(object, current);
    // What is skipped here stays skipped on a miss; the engine restores its own position.
    for (; *current; *current = (*current)->GetNextSiblingElement()) {
        if (IsThisElement(context, *current))
            return TakePrimitive(object, current);
        if (!context.GetIgnoreUnknownElements())
            return false;
    }
    return false;
}

CElementInfoSeqPrimOpt::CElementInfoSeqPrimOpt(const char16_t* name, const char16_t* namespaceUri,
                                               int propertyIndex, bool nillable, ItemType itemType,
                                               const char16_t* formatOverride,
                                               CWhitespaceUtils::WhitespaceRule whitespaceRule,
                                               const CPrimitiveRestrictions& restrictions)
    : CElementInfoSeq(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride, whitespaceRule,
                      restrictions) {}

bool CElementInfoSeqPrimOpt::ElementToXml(const CXmlSerializationContext& context,
                                          const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    return ElementToXmlPrim(context, object, writer);
}

bool CElementInfoSeqPrimOpt::ElementFromXml(const CXmlSerializationContext& context,
                                            CXmlGeneratedClass* object, CXmlElement*, CXmlElement** current,
                                            const char16_t*, XmlElementType) {
    return !IsThisElement(context, *current) || TakePrimitive(object, current);
}

// Enum

CElementInfoSeqEnumMnd::CElementInfoSeqEnumMnd(const char16_t* name, const char16_t* namespaceUri,
                                               int propertyIndex, bool nillable, EnumToString enumToString,
                                               StringToEnum stringToEnum)
    : CElementInfoSeq(name, namespaceUri, propertyIndex, nillable),
      m_stringToEnum(NotNull(stringToEnum, u"stringToEnum")),
      m_enumToString(NotNull(enumToString, u"enumToString")) {}

bool CElementInfoSeqEnumMnd::ElementToXml(const CXmlSerializationContext& context,
                                          const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    return ElementToXmlEnum(context, object, writer, m_enumToString);
}

bool CElementInfoSeqEnumMnd::ElementFromXml(const CXmlSerializationContext& context,
                                            CXmlGeneratedClass* object, CXmlElement*, CXmlElement** current,
                                            const char16_t*, XmlElementType ownerElementType) {
    if (ownerElementType == XmlElementType_Element)
        return !SeekElement(context, current) || TakeEnum(object, current, m_stringToEnum);
    // Deliberate: nothing is skipped in a group, other than by its sister for primitive values.
    return IsThisElement(context, *current) && TakeEnum(object, current, m_stringToEnum);
}

CElementInfoSeqEnumOpt::CElementInfoSeqEnumOpt(const char16_t* name, const char16_t* namespaceUri,
                                               int propertyIndex, bool nillable, EnumToString enumToString,
                                               StringToEnum stringToEnum)
    : CElementInfoSeq(name, namespaceUri, propertyIndex, nillable),
      m_enumToString(NotNull(enumToString, u"enumToString")),
      m_stringToEnum(NotNull(stringToEnum, u"stringToEnum")) {}

bool CElementInfoSeqEnumOpt::ElementToXml(const CXmlSerializationContext& context,
                                          const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    return ElementToXmlEnum(context, object, writer, m_enumToString);
}

bool CElementInfoSeqEnumOpt::ElementFromXml(const CXmlSerializationContext& context,
                                            CXmlGeneratedClass* object, CXmlElement*, CXmlElement** current,
                                            const char16_t*, XmlElementType) {
    return !IsThisElement(context, *current) || TakeEnum(object, current, m_stringToEnum);
}

// Cls

CElementInfoSeqClsMnd::CElementInfoSeqClsMnd(const char16_t* name, const char16_t* namespaceUri,
                                             int propertyIndex, XmlElementType elementType,
                                             ClassFactory factory, int classId, bool consumeRequired)
    : CElementInfoSeq(name, namespaceUri, propertyIndex), m_elementType(elementType),
      m_consumeRequired(consumeRequired), m_factory(factory), m_classId(classId) {}

bool CElementInfoSeqClsMnd::ElementToXml(const CXmlSerializationContext& context,
                                         const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    return ElementToXmlCls(context, object, writer, false);
}

void CElementInfoSeqClsMnd::PseudoChildAttributeToXml(const CXmlSerializationContext& context,
                                                      const CXmlGeneratedClass* object,
                                                      CXmlWriter* writer) const {
    PseudoAttributesToXml(context, object, writer, m_elementType);
}

bool CElementInfoSeqClsMnd::ElementFromXml(const CXmlSerializationContext& context,
                                           CXmlGeneratedClass* object, CXmlElement* parent,
                                           CXmlElement** current, const char16_t*,
                                           XmlElementType ownerElementType) {
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

CElementInfoSeqClsOpt::CElementInfoSeqClsOpt(const char16_t* name, const char16_t* namespaceUri,
                                             int propertyIndex, XmlElementType elementType,
                                             ClassFactory factory, int classId)
    : CElementInfoSeq(name, namespaceUri, propertyIndex), m_elementType(elementType),
      m_factory(NotNull(factory, u"factory")), m_classId(classId) {}

bool CElementInfoSeqClsOpt::ElementToXml(const CXmlSerializationContext& context,
                                         const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    return ElementToXmlCls(context, object, writer, false);
}

void CElementInfoSeqClsOpt::PseudoChildAttributeToXml(const CXmlSerializationContext& context,
                                                      const CXmlGeneratedClass* object,
                                                      CXmlWriter* writer) const {
    PseudoAttributesToXml(context, object, writer, m_elementType);
}

bool CElementInfoSeqClsOpt::ElementFromXml(const CXmlSerializationContext& context,
                                           CXmlGeneratedClass* object, CXmlElement* parent,
                                           CXmlElement** current, const char16_t*, XmlElementType) {
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

CElementInfoSeqAbsClsMnd::CElementInfoSeqAbsClsMnd(const char16_t* name, const char16_t* namespaceUri,
                                                   int propertyIndex, XmlElementType elementType,
                                                   SubstitutionFactory substitutionFactory)
    : CElementInfoSeq(name, namespaceUri, propertyIndex), m_elementType(elementType),
      m_substitutionFactory(NotNull(substitutionFactory, u"substitutionFactory")) {}

bool CElementInfoSeqAbsClsMnd::ElementToXml(const CXmlSerializationContext& context,
                                            const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    return ElementToXmlCls(context, object, writer, false);
}

void CElementInfoSeqAbsClsMnd::PseudoChildAttributeToXml(const CXmlSerializationContext& context,
                                                         const CXmlGeneratedClass* object,
                                                         CXmlWriter* writer) const {
    PseudoAttributesToXml(context, object, writer, m_elementType);
}

bool CElementInfoSeqAbsClsMnd::ElementFromXml(const CXmlSerializationContext& context,
                                              CXmlGeneratedClass* object, CXmlElement*, CXmlElement** current,
                                              const char16_t*, XmlElementType ownerElementType) {
    CSmartPtr<CXmlObjectBase> child;
    if (IsThisElement(context, *current))
        child = m_substitutionFactory(*current);
    if (!child) {
        if (ownerElementType == XmlElementType_Element)
            Throw<CKzValidationException>(messages::NoSubstitutionElement, m_elementName);
        return false;
    }
    ReadAndStoreObject(context, object, child, current);
    return true;
}

CElementInfoSeqAbsClsOpt::CElementInfoSeqAbsClsOpt(const char16_t* name, const char16_t* namespaceUri,
                                                   int propertyIndex, XmlElementType elementType,
                                                   SubstitutionFactory substitutionFactory)
    : CElementInfoSeq(name, namespaceUri, propertyIndex), m_elementType(elementType),
      m_substitutionFactory(NotNull(substitutionFactory, u"substitutionFactory")) {}

bool CElementInfoSeqAbsClsOpt::ElementToXml(const CXmlSerializationContext& context,
                                            const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    return ElementToXmlCls(context, object, writer, false);
}

void CElementInfoSeqAbsClsOpt::PseudoChildAttributeToXml(const CXmlSerializationContext& context,
                                                         const CXmlGeneratedClass* object,
                                                         CXmlWriter* writer) const {
    PseudoAttributesToXml(context, object, writer, m_elementType);
}

bool CElementInfoSeqAbsClsOpt::ElementFromXml(const CXmlSerializationContext& context,
                                              CXmlGeneratedClass* object, CXmlElement*, CXmlElement** current,
                                              const char16_t*, XmlElementType) {
    if (!IsThisElement(context, *current))
        return true;
    if (const CSmartPtr<CXmlObjectBase> child = m_substitutionFactory(*current))
        ReadAndStoreObject(context, object, child, current);
    return true;
}

} // namespace KzXmlLib10Data
