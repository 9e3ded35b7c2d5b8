/// The walk of a choice group, on writing and on reading.

#include <KzXmlLib10/object/CXmlGeneratedClass.h>

#include "metadata/Messages.h"
#include "object/RecursionLevel.h"
#include "object/Throw.h"

#include <KzXmlLib10/collections/CXmlCollectionBase.h>
#include <KzXmlLib10/metadata/CElementInfoChoice.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/KzVariant.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10 {

using namespace KzXmlLib10Data;

namespace {

template <class... Classes>
bool IsOneOf(const CElementInfo* entry) {
    return (dynamic_cast<const Classes*>(entry) || ...);
}

bool IsChoiceCollection(const CElementInfo* entry) {
    return IsOneOf<CElementInfoChoicePrimCol, CElementInfoChoiceClsCol, CElementInfoChoiceAbsClsCol,
                   CElementInfoChoiceEnumCol, CElementInfoChoiceUntpdCol>(entry);
}

bool IsOptionalMember(const CElementInfo* entry) {
    return IsOneOf<CElementInfoChoicePrimOpt, CElementInfoChoiceClsOpt, CElementInfoChoiceAbsClsOpt,
                   CElementInfoChoiceEnumOpt, CElementInfoChoiceUntpdOpt>(entry);
}

} // namespace

bool CXmlGeneratedClass::DoesElementContainOptionalElements() const {
    for (CElementInfo** entry = GetClassElementInfo(); *entry; ++entry) {
        if (IsOptionalMember(*entry))
            return true;
        if (!IsChoiceCollection(*entry))
            continue;
        KzVariant value;
        ReadProperty((*entry)->GetPropertyIndex(), value);
        const CSmartPtr<CXmlObjectBase> held = value.GetXmlObject();
        const auto* collection =
            dynamic_cast<const CXmlCollectionBase*>(static_cast<const CXmlObjectBase*>(held));
        if (collection && collection->GetMinOccurs() == 0)
            return true;
    }
    return false;
}

void CXmlGeneratedClass::ProcessElementChoiceToXml(const CXmlSerializationContext& context,
                                                   CElementInfo** elements, CXmlWriter* writer,
                                                   bool isOptional) const {
    for (; *elements; ++elements)
        if ((*elements)->ElementToXml(context, this, writer))
            return;
    if (!DoesElementContainOptionalElements() && !isOptional && !context.GetIgnoreMissingChoice())
        Throw<CKzValidationException>(messages::EmptyChoiceOnWriting);
}

bool CXmlGeneratedClass::FindChoice(const CXmlSerializationContext& context, CXmlElement* element,
                                    CXmlElement*& current, XmlElementType type) {
    const int count = GetClassElementInfoCount();
    for (;;) {
        for (int i = 0; i < count; ++i)
            if (OfferElement(context, static_cast<std::size_t>(i), element, current, type))
                return true;
        // Only a class with a tag of its own skips unknown children in search of a member.
        if (!current || !context.GetIgnoreUnknownElements() || type != XmlElementType_Element)
            return false;
        RecursionLevel::CountSkippedElement(element);
        current = current->GetNextSiblingElement();
        if (!current)
            return false;
    }
}

CXmlElement* CXmlGeneratedClass::ProcessElementChoiceFromXml(const CXmlSerializationContext& context,
                                                             CXmlElement* element, CXmlElement* current,
                                                             XmlElementType type, bool isOptional) {
    CXmlElement* const start = current;
    const bool found = FindChoice(context, element, current, type);
    if (!found && !isOptional) {
        if (type == XmlElementType_Pseudo)
            return context.GetIgnoreUnknownElements() ? start : current;
        if (type == XmlElementType_Element && !DoesElementContainOptionalElements() &&
            !context.GetIgnoreMissingChoice())
            Throw<CKzValidationException>(messages::EmptyChoiceOnReading, element->GetLocalName());
    }
    if (type != XmlElementType_Element || !current || context.GetIgnoreUnknownElements())
        return current;
    FailUnprocessed(*element, *current);
}

} // namespace KzXmlLib10
