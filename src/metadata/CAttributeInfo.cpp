#include <KzXmlLib10/metadata/CAttributeInfo.h>

#include "metadata/Messages.h"
#include "metadata/ValueText.h"
#include "object/NamespaceRestriction.h"
#include "object/NotNull.h"
#include "object/TextScan.h"

#include <KzXmlLib10/conversions/FacetChecks.h>
#include <KzXmlLib10/object/CXmlGeneratedClass.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/KzVariant.h>
#include <KzXmlLib10/xml/CXmlAttribute.h>
#include <KzXmlLib10/xml/CXmlWriter.h>

namespace KzXmlLib10Data {

using namespace KzXmlLib10;

CAttributeInfo::CAttributeInfo(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                               bool optional, const char16_t* defaultValue)
    : m_attributeName(NotNull(name, u"name")), m_attributeNamespace(NotNull(namespaceUri, u"namespaceUri")),
      m_propertyIndex(propertyIndex), m_optional(optional), m_defaultValue(EmptyIfNull(defaultValue)) {}

CAttributeInfo::~CAttributeInfo() = default;

void CAttributeInfo::AccessProperty(CXmlGeneratedClass* object, bool read, KzVariant& value) {
    object->AccessProperty(m_propertyIndex, read, value);
}

void CAttributeInfo::ReadProperty(const CXmlGeneratedClass* object, KzVariant& value) const {
    object->ReadProperty(m_propertyIndex, value);
}

void CAttributeInfo::ToXml_Int(const CXmlObjectBase* object, CXmlWriter* writer, bool isRoot,
                               const char16_t* elementNamespace, const CXmlSerializationContext& context) {
    object->ToXml_Int(writer, isRoot, elementNamespace, context, false);
}

std::u16string CAttributeInfo::GetTargetNamespace(const CXmlObjectBase* object) {
    return object->GetTargetNamespace();
}

void CAttributeInfo::TestNamespace(const std::u16string& ns, const std::u16string& restriction,
                                   const std::u16string& targetNamespace) {
    KzXmlLib10::TestNamespace(ns, restriction, targetNamespace);
}

bool CAttributeInfo::IsNamespaceValid(const std::u16string& ns, const std::u16string& restriction,
                                      const std::u16string& targetNamespace) {
    return KzXmlLib10::IsNamespaceValid(ns, restriction, targetNamespace);
}

bool CAttributeInfo::IsThisAttribute(const CXmlSerializationContext& context, CXmlAttribute* attribute) {
    if (!attribute || !SameText(attribute->GetLocalName(), m_attributeName))
        return false;
    return context.GetIgnoreNamespaces() || SameText(attribute->GetNamespaceURI(), m_attributeNamespace);
}

bool CAttributeInfo::IsOmitted(const KzVariant& value) const {
    return m_optional && value.GetTypeAsEnum() == ItemType_Invalid && !value.IsNil();
}

bool CAttributeInfo::IsOmittedDefault(const CXmlSerializationContext& context,
                                      const std::u16string& text) const {
    return m_optional && !m_defaultValue.empty() && context.GetNoOptionalAttributeDefaultOutput() &&
           text == m_defaultValue;
}

void CAttributeInfo::RequireFound(bool found) const {
    if (!m_optional && !found)
        Throw<CKzValidationException>(messages::RequiredAttributeNotFound, m_attributeName);
}

CAttributeInfoPrimitive::CAttributeInfoPrimitive(const char16_t* name, const char16_t* namespaceUri,
                                                 int propertyIndex, bool optional, ItemType itemType,
                                                 const char16_t* formatOverride,
                                                 CWhitespaceUtils::WhitespaceRule whitespaceRule,
                                                 const CPrimitiveRestrictions& restrictions,
                                                 const char16_t* defaultValue)
    : CAttributeInfo(name, namespaceUri, propertyIndex, optional, defaultValue), m_restrictions(restrictions),
      m_itemType(itemType), m_formatOverride(EmptyIfNull(formatOverride)), m_whitespaceRule(whitespaceRule) {}

void CAttributeInfoPrimitive::CheckRestriction(KzVariant value) const {
    CheckPrimitiveRestrictions(m_attributeName.c_str(), value, m_itemType, m_restrictions);
}

bool CAttributeInfoPrimitive::AttributeFromXml(const CXmlSerializationContext&, CXmlGeneratedClass* object,
                                               CXmlAttribute* attribute) {
    // Deliberate: the context is not asked, so ignoring namespaces has no power over primitive attributes.
    if (!SameText(attribute->GetLocalName(), m_attributeName) ||
        !SameText(attribute->GetNamespaceURI(), m_attributeNamespace))
        return false;
    KzVariant value;
    value.FromString(attribute->GetValue(), m_itemType, m_whitespaceRule);
    AccessProperty(object, false, value);
    return true;
}

void CAttributeInfoPrimitive::AttributeToXml(const CXmlSerializationContext& context,
                                             const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    KzVariant value;
    ReadProperty(object, value);
    if (IsOmitted(value))
        return;
    const ValueText text(value, m_formatOverride);
    if (IsOmittedDefault(context, text.Get()))
        return;
    CheckPrimitiveRestrictions(m_attributeName.c_str(), value, m_itemType, m_restrictions);
    writer->WriteAttribute(m_attributeName, m_attributeNamespace, text.Get(), value.GetTypeAsEnum());
}

void CAttributeInfoPrimitive::Validate(const CXmlSerializationContext&, bool found) const {
    RequireFound(found);
}

CAttributeInfoEnum::CAttributeInfoEnum(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                                       bool optional, EnumToString enumToString, StringToEnum stringToEnum,
                                       const char16_t* defaultValue)
    : CAttributeInfo(name, namespaceUri, propertyIndex, optional, defaultValue),
      m_stringToEnum(NotNull(stringToEnum, u"stringToEnum")),
      m_enumToString(NotNull(enumToString, u"enumToString")) {}

bool CAttributeInfoEnum::AttributeFromXml(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                                          CXmlAttribute* attribute) {
    if (!IsThisAttribute(context, attribute))
        return false;
    KzVariant value;
    value.SetI4(m_stringToEnum(attribute->GetValue().c_str()));
    AccessProperty(object, false, value);
    return true;
}

void CAttributeInfoEnum::AttributeToXml(const CXmlSerializationContext& context,
                                        const CXmlGeneratedClass* object, CXmlWriter* writer) const {
    KzVariant value;
    ReadProperty(object, value);
    if (IsOmitted(value))
        return;
    const std::u16string text = EmptyIfNull(m_enumToString(value.GetI4()));
    if (IsOmittedDefault(context, text))
        return;
    writer->WriteAttribute(m_attributeName, m_attributeNamespace, text, ItemType_string);
}

void CAttributeInfoEnum::Validate(const CXmlSerializationContext&, bool found) const { RequireFound(found); }

} // namespace KzXmlLib10Data
