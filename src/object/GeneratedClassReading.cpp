/// How a parsed element becomes the members of a generated object.

#include <KzXmlLib10/object/CXmlGeneratedClass.h>

#include "object/BooleanWords.h"
#include "object/Messages.h"
#include "object/RecursionLevel.h"
#include "object/Throw.h"

#include <KzXmlLib10/metadata/CAttributeInfo.h>
#include <KzXmlLib10/metadata/CElementInfo.h>
#include <KzXmlLib10/metadata/CParentElementInfo.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/object/INillable.h>
#include <KzXmlLib10/values/KzVariant.h>
#include <KzXmlLib10/xml/CXmlElement.h>

#include <atomic>
#include <typeinfo>

namespace KzXmlLib10 {

using namespace KzXmlLib10Data;

CXmlElement* CXmlGeneratedClass::FromXml_Int(CXmlElement* element, CXmlElement* current,
                                             const CXmlSerializationContext& context, bool isOptional) {
    try {
        const RecursionLevel level;
        return ReadObject(element, current, context, isOptional);
    } catch (CKzException& failure) {
        ThrowAround<CKzValidationException>(failure, messages::FailedToReadElement, element->GetLocalName());
    }
}

CXmlElement* CXmlGeneratedClass::ReadObject(CXmlElement* element, CXmlElement* current,
                                            const CXmlSerializationContext& context, bool isOptional) {
    Init();
    const CParentElementInfo* info = GetClassInfo();
    if (info->GetElementType() == XmlElementType_Element)
        TakeElementName(element->GetLocalName());
    ProcessAttributesFromXml(context, element, info->GetFromXmlFailIfAttributeUnknown());
    const INillable* nillable = AsNillable(*info);
    if (nillable && nillable->IsNil())
        return current;
    CXmlElement* rest = ReadChildren(*info, element, current, context, isOptional);
    ReadPrimitiveValue(*info, *element);
    return rest;
}

/// Null for most classes, which it takes long to find out, so it is noted with the tables of the class.
const INillable* CXmlGeneratedClass::AsNillable(const CParentElementInfo& info) const {
    std::atomic<const std::type_info*>& noted = info.m_notNillable.type;
    if (noted.load(std::memory_order_relaxed) == &typeid(*this))
        return nullptr;
    const auto* nillable = dynamic_cast<const INillable*>(this);
    if (!nillable)
        noted.store(&typeid(*this), std::memory_order_relaxed);
    return nillable;
}

CXmlElement* CXmlGeneratedClass::ReadChildren(const CParentElementInfo& info, CXmlElement* element,
                                              CXmlElement* current, const CXmlSerializationContext& context,
                                              bool isOptional) {
    switch (info.GetElementGroupType()) {
    case XmlElementGroupType_Sequence:
        return ProcessElementSeqFromXml(context, element, current, info.GetElementType());
    case XmlElementGroupType_Choice:
        return ProcessElementChoiceFromXml(context, element, current, info.GetElementType(), isOptional);
    case XmlElementGroupType_All:
        return ProcessElementAllFromXml(context, element, current, info.GetElementType());
    default:
        Throw<CKzException>(messages::UnknownGroupTypeOnReading);
    }
}

void CXmlGeneratedClass::ReadPrimitiveValue(const CParentElementInfo& info, const CXmlElement& element) {
    const int property = info.GetPrimitiveValuePropertyIndex();
    if (property == -1 || info.GetPrimitiveDataType() == ItemType_Invalid)
        return;
    KzVariant value;
    if (info.GetOutputPrimitiveClassAsTextProperty())
        value.SetString(element.GetText());
    else
        value.FromString(element.GetText(), info.GetPrimitiveDataType(),
                         CWhitespaceUtils::WhitespaceRule_None);
    AccessProperty(property, false, value);
}

void CXmlGeneratedClass::ProcessAttributesFromXml(const CXmlSerializationContext& context,
                                                  CXmlElement* element, bool failIfUnknown) {
    CAttributeInfo** const table = GetClassAttributeInfo();
    if (!*table && !element->HasAttributes()) // as is usual
        return;
    std::string found; // which needs no heap for a few flags
    for (CAttributeInfo** entry = table; *entry; ++entry)
        found.push_back(0);
    for (CXmlAttribute* attribute : element->GetAttributes()) {
        if (attribute->IsNamespaceAttribute())
            continue;
        if (attribute->IsNilAttribute())
            ReadNilAttribute(*element, *attribute);
        else if (!OfferAttribute(context, table, attribute, found) && failIfUnknown &&
                 !context.GetIgnoreUnknownAttributes())
            Throw<CKzValidationException>(messages::UnexpectedAttribute, attribute->GetLocalName());
    }
    for (std::size_t i = 0; i < found.size(); ++i)
        table[i]->Validate(context, found[i]);
}

void CXmlGeneratedClass::ReadNilAttribute(const CXmlElement& element, const CXmlAttribute& attribute) {
    auto* nillable = dynamic_cast<INillable*>(this);
    if (!nillable)
        Throw<CKzValidationException>(messages::NilOnNonNillable, element.GetLocalName());
    const std::u16string& value = attribute.GetValue();
    if (!IsTrueWord(value) && !IsFalseWord(value))
        Throw<CKzValidationException>(messages::UnexpectedNilValue, value);
    nillable->SetNil(IsTrueWord(value));
}

bool CXmlGeneratedClass::OfferAttribute(const CXmlSerializationContext& context, CAttributeInfo** table,
                                        CXmlAttribute* attribute, std::string& found) {
    for (std::size_t i = 0; i < found.size(); ++i)
        if (table[i]->AttributeFromXml(context, this, attribute)) {
            found[i] = true;
            return true;
        }
    return false;
}

bool CXmlGeneratedClass::OfferElement(const CXmlSerializationContext& context, std::size_t index,
                                      CXmlElement* element, CXmlElement*& current, XmlElementType type) {
    return GetClassElementInfo()[index]->ElementFromXml(context, this, element, &current,
                                                        GetNamespace().c_str(), type);
}

namespace {

/// Passes over a child that no descriptor takes. False if there is none, or if it may not be skipped.
[[gnu::cold]] bool SkipUnknown(const CXmlSerializationContext& context, const CXmlElement& parent,
                               CXmlElement*& current) {
    if (!context.GetIgnoreUnknownElements() || !current)
        return false;
    RecursionLevel::CountSkippedElement(&parent);
    current = current->GetNextSiblingElement();
    return true;
}

} // namespace

CXmlElement* CXmlGeneratedClass::ProcessElementSeqFromXml(const CXmlSerializationContext& context,
                                                          CXmlElement* element, CXmlElement* current,
                                                          XmlElementType type) {
    CXmlElement* const start = current;
    CXmlElement* last = current;
    const int count = GetClassElementInfoCount();
    int resume = 0; // the descriptor that moved the position last gets the next look
    for (;;) {
        for (int i = resume; i < count; ++i) {
            while (!OfferElement(context, static_cast<std::size_t>(i), element, current, type))
                if (!SkipUnknown(context, *element, current))
                    return start;
            if (current != last) {
                last = current;
                resume = i;
            }
        }
        if (type != XmlElementType_Element || !current)
            return current;
        if (!SkipUnknown(context, *element, current))
            FailUnprocessed(*element, *current);
        if (!current)
            return nullptr;
    }
}

void CXmlGeneratedClass::FailUnprocessed(const CXmlElement& element, const CXmlElement& left) {
    Throw<CKzValidationException>(messages::UnprocessedElement, element.GetLocalName(), left.GetLocalName());
}

} // namespace KzXmlLib10
