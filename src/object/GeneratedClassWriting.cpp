/// How a generated class becomes a start tag, attributes, children, text and an end tag.

#include <KzXmlLib10/object/CXmlGeneratedClass.h>

#include "object/Messages.h"
#include "object/NotNull.h"
#include "object/RecursionLevel.h"
#include "object/Throw.h"

#include <KzXmlLib10/collections/CAttributeCol.h>
#include <KzXmlLib10/metadata/CAttributeInfo.h>
#include <KzXmlLib10/metadata/CElementInfo.h>
#include <KzXmlLib10/metadata/CParentElementInfo.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/object/INillable.h>
#include <KzXmlLib10/values/KzVariant.h>
#include <KzXmlLib10/xml/CXmlWriter.h>

namespace KzXmlLib10 {

using namespace KzXmlLib10Data;

// The steps are inline, since each stands in one place.

void CXmlGeneratedClass::ToXml_Int(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                                   const CXmlSerializationContext& context, bool isOptional) const {
    try {
        const RecursionLevel level;
        WriteObject(writer, isRoot, elementNamespace, context, isOptional);
    } catch (CKzException& failure) {
        ThrowAround<CKzValidationException>(failure, messages::FailedToWriteElement, GetElementName());
    }
}

inline void CXmlGeneratedClass::WriteObject(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                                            const CXmlSerializationContext& context, bool isOptional) const {
    const CParentElementInfo& info = *GetClassInfo();
    const bool hasTag = info.GetElementType() == XmlElementType_Element;
    if (hasTag)
        StartElement(writer, isRoot, elementNamespace, context, isOptional);
    const INillable* nillable = AsNillable(info);
    if (nillable && nillable->IsNil()) {
        writer->WriteXsiNil();
    } else {
        WriteContent(writer, context, isOptional);
        WritePrimitiveValue(writer);
    }
    if (hasTag)
        writer->EndElement();
}

inline void CXmlGeneratedClass::StartElement(CXmlWriter* writer, bool isRoot,
                                             const char16_t* elementNamespace,
                                             const CXmlSerializationContext& context, bool isOptional) const {
    if (isRoot) {
        for (const std::u16string& instruction : context.GetProcessingInstructions())
            writer->WriteProcessingInstruction(instruction);
        const CNamespaceAliasMap& aliases = context.GetNamespaceAliases();
        for (int i = 0; i < aliases.GetNamespaceCount(); ++i) {
            const std::u16string uri = aliases.GetNamespaceAt(i);
            writer->AddNamespace(aliases.GetAliasFromNamespace(uri.c_str()), uri);
        }
        if (const std::u16string uri = context.GetDefaultNamespaceURI(); !uri.empty())
            writer->SetDefaultNamespace(uri);
    }
    writer->StartElement(ElementName(),
                         writer->KeepNamespace(NotNull(elementNamespace, u"elementNamespace")));
    if (isRoot)
        CXmlObjectBase::ToXml_Int(context.GetAdditionalRootAttributes(), writer, false, elementNamespace,
                                  context, isOptional);
    AttributesToXml_Int(writer, context);
    if (isRoot) {
        if (const std::u16string schema = context.GetInLineSchema(); !schema.empty())
            writer->WriteInlineSchema(schema);
    }
}

inline void CXmlGeneratedClass::WriteContent(CXmlWriter* writer, const CXmlSerializationContext& context,
                                             bool isOptional) const {
    switch (GetClassInfo()->GetElementGroupType()) {
    case XmlElementGroupType_Sequence:
        return ProcessElementSeqToXml(context, GetClassElementInfo(), writer);
    case XmlElementGroupType_Choice:
        return ProcessElementChoiceToXml(context, GetClassElementInfo(), writer, isOptional);
    case XmlElementGroupType_All:
        return ProcessElementAllToXml(context, GetClassElementInfo(), writer);
    default:
        Throw<CKzException>(messages::UnknownGroupTypeOnWriting);
    }
}

inline void CXmlGeneratedClass::ProcessElementSeqToXml(const CXmlSerializationContext& context,
                                                       CElementInfo** elements, CXmlWriter* writer) const {
    for (; *elements; ++elements)
        (*elements)->ElementToXml(context, this, writer);
}

inline void CXmlGeneratedClass::ProcessElementAllToXml(const CXmlSerializationContext& context,
                                                       CElementInfo** elements, CXmlWriter* writer) const {
    ProcessElementSeqToXml(context, elements, writer);
}

inline void CXmlGeneratedClass::WritePrimitiveValue(CXmlWriter* writer) const {
    const CParentElementInfo* info = GetClassInfo();
    const int property = info->GetPrimitiveValuePropertyIndex();
    if (property == -1 || info->GetPrimitiveDataType() == ItemType_Invalid)
        return;
    KzVariant value;
    ReadProperty(property, value);
    if (value.IsNil())
        writer->WriteXsiNil();
    else
        writer->WriteText(value.ToString(info->GetPrimitiveFormatOverride().c_str()), value.GetTypeAsEnum());
}

void CXmlGeneratedClass::AttributesToXml_Int(CXmlWriter* writer,
                                             const CXmlSerializationContext& context) const {
    try {
        if (context.GetWriteTypeAttribute()) {
            const CParentElementInfo* info = GetClassInfo();
            if (info->GetHasBaseClasses() && ElementName() != info->GetElementName())
                writer->WriteXsiType(info->GetElementNamespace(), info->GetElementName(), ItemType_string);
        }
        ProcessAttributesToXml(context, GetClassElementInfo(), GetClassAttributeInfo(), writer);
    } catch (CKzException& failure) {
        ThrowAround<CKzException>(failure, messages::FailedToWriteAttributes);
    }
}

inline void CXmlGeneratedClass::ProcessAttributesToXml(const CXmlSerializationContext& context,
                                                       CElementInfo** elements, CAttributeInfo** attributes,
                                                       CXmlWriter* writer) const {
    for (; *attributes; ++attributes)
        (*attributes)->AttributeToXml(context, this, writer);
    for (; *elements; ++elements)
        (*elements)->PseudoChildAttributeToXml(context, this, writer);
}

} // namespace KzXmlLib10
