/// The steps of reading that the leaves of all groups are composed of.

#include <KzXmlLib10/metadata/CElementInfo.h>

#include "metadata/Messages.h"
#include "object/BooleanWords.h"
#include "object/Messages.h"
#include "object/NotNull.h"
#include "object/RecursionLevel.h"
#include "object/TextScan.h"
#include "object/Throw.h"
#include "xml/ElementText.h"
#include "xml/FindAttribute.h"

#include <KzXmlLib10/collections/CElement.h>
#include <KzXmlLib10/collections/CElementCol.h>
#include <KzXmlLib10/object/CXmlGeneratedClass.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/KzVariant.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10Data {

using namespace KzXmlLib10;

namespace {

CXmlObjectBase* Required(CXmlObjectBase* object, const std::u16string& elementName) {
    if (!object)
        Throw<CKzInvalidStateException>(messages::MandatoryMemberIsNull, elementName);
    return object;
}

} // namespace

/// Whether an element of this name was met in the document before, as is usual.
inline bool CElementInfo::IsKnown(const CXmlElement& element) const {
    return element.m_name->IsKnownAs(m_nameNumber);
}

[[gnu::noinline]] bool CElementInfo::HasNameOf(const CXmlElement& element,
                                               const CXmlSerializationContext& context) const {
    if (!SameText(element.GetLocalName(), m_elementName))
        return false;
    if (!SameText(element.GetNamespaceURI(), m_elementNamespace))
        return context.GetIgnoreNamespaces();
    element.m_name->MakeKnownAs(m_nameNumber);
    return true;
}

bool CElementInfo::IsThisElement(const CXmlSerializationContext& context, const CXmlElement* element) const {
    return element && (IsKnown(*element) || HasNameOf(*element, context));
}

bool CElementInfo::SeekElement(const CXmlSerializationContext& context, CXmlElement** current) const {
    while (!IsThisElement(context, *current)) {
        if (context.GetIgnoreMissingMandatoryElements())
            return false;
        if (!context.GetIgnoreUnknownElements() || !*current)
            FailRequired();
        RecursionLevel::CountSkippedElement();
        *current = (*current)->GetNextSiblingElement();
    }
    return true;
}

inline bool CElementInfo::IsNil(const CXmlElement& element) const {
    return element.HasAttributes() && HasNilAttribute(element);
}

[[gnu::noinline]] bool CElementInfo::HasNilAttribute(const CXmlElement& element) const {
    const std::u16string& value = FindSchemaInstanceAttribute(element, u"nil");
    if (value.empty() || IsFalseWord(value))
        return false;
    if (!m_nillable)
        Throw<CKzValidationException>(messages::NilOnNonNillable, m_elementName);
    if (!IsTrueWord(value))
        Throw<CKzValidationException>(messages::UnexpectedNilValue, value);
    return true;
}

/// The rule for the text of an element, which holds no carriage return.
inline CWhitespaceUtils::WhitespaceRule CElementInfo::RuleForElements() const {
    const bool changesNothing = m_whitespaceRule == CWhitespaceUtils::WhitespaceRule_Preserve;
    return changesNothing ? CWhitespaceUtils::WhitespaceRule_None : m_whitespaceRule;
}

bool CElementInfo::TakePrimitive(CXmlGeneratedClass* object, CXmlElement** current) {
    KzVariant value;
    if (IsNil(**current))
        value.SetNil();
    else
        value.FromText(ElementText(**current).Get(), m_itemType, RuleForElements());
    return StoreAndAdvance(object, value, current);
}

bool CElementInfo::TakeEnum(CXmlGeneratedClass* object, CXmlElement** current, StringToEnum stringToEnum) {
    KzVariant value;
    if (IsNil(**current))
        value.SetNil();
    else
        value.SetI4(NotNull(stringToEnum, u"stringToEnum")(ElementText(**current).Get().data()));
    return StoreAndAdvance(object, value, current);
}

bool CElementInfo::StoreAndAdvance(CXmlGeneratedClass* object, KzVariant& value, CXmlElement** current) {
    object->AccessProperty(m_propertyIndex, false, value);
    *current = (*current)->GetNextSiblingElement();
    return true;
}

void CElementInfo::TakeObject(const CXmlSerializationContext& context, CXmlObjectBase* child,
                              CXmlElement** current, bool isOptional) {
    FromXml_Int(child, *current, (*current)->GetFirstElement(), context, isOptional);
    *current = (*current)->GetNextSiblingElement();
}

void CElementInfo::ReadAndStoreObject(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                                      CXmlObjectBase* child, CXmlElement** current) {
    TakeObject(context, child, current, false);
    StoreObject(object, child);
}

CSmartPtr<CXmlObjectBase> CElementInfo::CreateObject(ClassFactory factory, int classId) const {
    CSmartPtr<CXmlObjectBase> child = NotNull(factory, u"factory")(classId, m_elementName.c_str());
    if (!child)
        Throw<CKzInvalidStateException>(messages::FactoryGaveNothing, m_elementName);
    return child;
}

void CElementInfo::StoreObject(CXmlGeneratedClass* object, CXmlObjectBase* child) {
    KzVariant value;
    value.SetXmlObject(child);
    AccessProperty(object, false, value);
}

CXmlObjectBase* CElementInfo::ReadObject(const CXmlGeneratedClass* object, KzVariant& value) const {
    ReadProperty(object, value);
    return value.GetTypeAsEnum() == ItemType_Invalid ? nullptr : value.PeekXmlObject();
}

CXmlCollectionBase& CElementInfo::ReadCollection(const CXmlGeneratedClass* object, KzVariant& value) const {
    CXmlObjectBase* const held = Required(ReadObject(object, value), m_elementName);
    if (value.GetTypeAsEnum() == ItemType_xmlCollection) // needs no look at the class
        return static_cast<CXmlCollectionBase&>(*held);
    auto* const collection = dynamic_cast<CXmlCollectionBase*>(held);
    if (!collection)
        Throw<CKzInvalidStateException>(messages::NotACollection, m_elementName);
    return *collection;
}

CSmartPtr<CXmlObjectBase> CElementInfo::HeldObjectOrNull(const CXmlGeneratedClass* object) const {
    KzVariant value;
    return ReadObject(object, value);
}

CSmartPtr<CXmlObjectBase> CElementInfo::HeldObject(const CXmlGeneratedClass* object) const {
    return Required(HeldObjectOrNull(object), m_elementName);
}

CSmartPtr<CXmlCollectionBase> CElementInfo::HeldCollection(const CXmlGeneratedClass* object) const {
    KzVariant value;
    return &ReadCollection(object, value);
}

CXmlElement* CElementInfo::ReadRun(const CXmlSerializationContext& context, CXmlCollectionBase* collection,
                                   CXmlElement* parent, CXmlElement* current) const {
    return FromXml_Int(collection, parent, current, context, false);
}

CXmlElement* CElementInfo::ReadUntypedRun(const CXmlSerializationContext& context,
                                          CXmlCollectionBase* collection, CXmlElement* parent,
                                          CXmlElement* current) const {
    if (IsAnyElement())
        return ReadRun(context, collection, parent, current);
    auto* untyped = dynamic_cast<CElementCol*>(collection);
    if (!untyped)
        Throw<CKzInvalidStateException>(messages::NotAnElementCol, m_elementName);
    return untyped->FromXmlLockElementName_Int(m_elementName, current ? current->GetNamespaceURI() : u"",
                                               parent, current, context);
}

bool CElementInfo::HasValidCount(const CXmlSerializationContext& context,
                                 const CXmlCollectionBase& collection, XmlElementType ownerElementType) {
    if (ownerElementType != XmlElementType_Element)
        return collection.IsValidCount(context);
    collection.ValidateCount(context);
    return true;
}

CSmartPtr<CXmlObjectBase> CElementInfo::CreateUntyped(const std::u16string& namespaceConstraint,
                                                      const std::u16string& targetNamespace,
                                                      const char16_t* ownerNamespace) const {
    const std::u16string namespaceUri =
        GetAnyDefaultNamespace(namespaceConstraint.c_str(), ownerNamespace, targetNamespace.c_str());
    return new CElement(m_elementName.c_str(), namespaceUri.c_str(), namespaceConstraint.c_str(),
                        targetNamespace.c_str());
}

CXmlElement* CElementInfo::ReadUntyped(const CXmlSerializationContext& context, CXmlObjectBase* untyped,
                                       CXmlElement* parent, CXmlElement* current) const {
    // The namespace is not compared here; the generic element applies the wildcard's constraint.
    if (!IsAnyElement() && current->GetLocalName() != m_elementName)
        return current;
    return FromXml_Int(Required(untyped, m_elementName), parent, current, context, false);
}

bool CElementInfo::IsAnyElement() const { return m_elementName == u"AnyElement"; }

void CElementInfo::FailRequired() const {
    Throw<CKzValidationException>(messages::RequiredElementNotFound, m_elementName);
}

} // namespace KzXmlLib10Data
