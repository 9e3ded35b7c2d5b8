/// The writing operations that all groups share: one for each kind of property.

#include <KzXmlLib10/metadata/CElementInfo.h>

#include "metadata/Messages.h"
#include "object/NotNull.h"
#include "object/Throw.h"
#include "xml/Leaf.h"

#include <KzXmlLib10/collections/CXmlCollectionBase.h>
#include <KzXmlLib10/conversions/FacetChecks.h>
#include <KzXmlLib10/object/CXmlGeneratedClass.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/KzVariant.h>
#include <KzXmlLib10/xml/CXmlWriter.h>

namespace KzXmlLib10Data {

using namespace KzXmlLib10;

namespace {

void WriteNil(CXmlWriter* writer, const std::u16string& name, const std::u16string& namespaceUri) {
    writer->StartElement(name, namespaceUri);
    writer->WriteXsiNil();
    writer->EndElement();
}

} // namespace

void CElementInfo::CheckRestriction(const KzVariant& value) const {
    if (!m_isPrimitive)
        Throw<CKzException>(messages::CannotCheckRestriction, value.GetType());
    CheckPrimitiveRestrictions(m_elementName.c_str(), value, m_itemType, m_restrictions);
}

bool CElementInfo::ElementToXmlPrim(const CXmlSerializationContext&, const CXmlGeneratedClass* object,
                                    CXmlWriter* writer) const {
    KzVariant value;
    object->ReadProperty(m_propertyIndex, value);
    if (value.IsNil()) {
        WriteNil(writer, m_elementName, m_elementNamespace);
        return true;
    }
    const ItemType type = value.GetTypeAsEnum();
    // Deliberate: a mandatory value that is not there is left out without a word.
    if (type == ItemType_Invalid)
        return false;
    // The facets come before the start tag, so that a bad value leaves no open element behind.
    CheckRestriction(value);
    const CXmlWriter::LeafName name{m_elementName, m_elementNamespace, m_nameNumber.Get()};
    if (type == ItemType_string)
        writer->WriteLeaf(name, value.GetStringRef(), type);
    else
        WriteLeafOf(*writer, name, type, [&] { return value.ToText(m_formatOverride); });
    return true;
}

bool CElementInfo::ElementToXmlEnum(const CXmlSerializationContext&, const CXmlGeneratedClass* object,
                                    CXmlWriter* writer, EnumToString enumToString) const {
    KzVariant value;
    object->ReadProperty(m_propertyIndex, value);
    if (value.IsNil()) {
        WriteNil(writer, m_elementName, m_elementNamespace);
        return true;
    }
    if (value.GetTypeAsEnum() == ItemType_Invalid)
        return false;
    WriteLeafOf(*writer, {m_elementName, m_elementNamespace, m_nameNumber.Get()}, ItemType_string, [&] {
        return std::u16string(EmptyIfNull(NotNull(enumToString, u"enumToString")(value.GetI4())));
    });
    return true;
}

bool CElementInfo::ElementToXmlCls(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                                   CXmlWriter* writer, bool isOptional) const {
    KzVariant value;
    const CXmlObjectBase* const child = ReadObject(object, value);
    if (!child)
        return false;
    // The object writes its own element name, which its constructor or its reading gave it.
    child->ToXml_Int(writer, false, m_elementNamespace.c_str(), context, isOptional);
    return true;
}

bool CElementInfo::ElementToXmlCol(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                                   CXmlWriter* writer) const {
    KzVariant value;
    CXmlCollectionBase& collection = ReadCollection(object, value);
    if (collection.GetCount() < 1)
        return false;
    const CXmlObjectBase* base = collection.GetBase();
    base->ToXml_Int(writer, false, m_elementNamespace.c_str(), context, false);
    return true;
}

bool CElementInfo::CheckedElementToXmlCol(const CXmlSerializationContext& context,
                                          const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    if (!context.GetIgnoreInvalidCollectionCounts()) {
        KzVariant value;
        ReadCollection(object, value).ValidateCount(context);
    }
    return ElementToXmlCol(context, object, writer);
}

void CElementInfo::PseudoItemAttributesToXml(const CXmlSerializationContext& context,
                                             const CXmlGeneratedClass* object, CXmlWriter* writer,
                                             XmlElementType elementType) const {
    if (elementType == XmlElementType_Pseudo)
        AttributesToXml_Int(HeldCollection(object), writer, context);
}

void CElementInfo::PseudoAttributesToXml(const CXmlSerializationContext& context,
                                         const CXmlGeneratedClass* object, CXmlWriter* writer,
                                         XmlElementType elementType) const {
    if (elementType != XmlElementType_Pseudo)
        return;
    KzVariant value;
    if (const CXmlObjectBase* const child = ReadObject(object, value))
        AttributesToXml_Int(child, writer, context);
}

} // namespace KzXmlLib10Data
