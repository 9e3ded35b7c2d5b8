#include <KzXmlLib10/metadata/CElementInfo.h>

#include "metadata/Messages.h"
#include "object/NotNull.h"
#include "object/RecursionLevel.h"

#include <KzXmlLib10/object/CXmlGeneratedClass.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/KzVariant.h>
#include <KzXmlLib10/xml/CXmlElement.h>

#include <string_view>

namespace KzXmlLib10Data {

using namespace KzXmlLib10;

CElementInfo::CElementInfo(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
    : CElementInfo(name, namespaceUri, propertyIndex, false) {}

CElementInfo::CElementInfo(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                           bool nillable)
    : m_elementName(NotNull(name, u"name")), m_elementNamespace(NotNull(namespaceUri, u"namespaceUri")),
      m_propertyIndex(propertyIndex), m_itemType(ItemType_Invalid),
      m_whitespaceRule(CWhitespaceUtils::WhitespaceRule_None), m_nillable(nillable), m_isPrimitive(false) {}

CElementInfo::CElementInfo(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                           bool nillable, ItemType itemType, const char16_t* formatOverride,
                           CWhitespaceUtils::WhitespaceRule whitespaceRule,
                           const CPrimitiveRestrictions& restrictions)
    : m_elementName(NotNull(name, u"name")), m_elementNamespace(NotNull(namespaceUri, u"namespaceUri")),
      m_propertyIndex(propertyIndex), m_restrictions(restrictions), m_itemType(itemType),
      m_formatOverride(EmptyIfNull(formatOverride)), m_whitespaceRule(whitespaceRule), m_nillable(nillable),
      m_isPrimitive(true) {}

CElementInfo::~CElementInfo() = default;

void CElementInfo::PseudoChildAttributeToXml(const CXmlSerializationContext&, const CXmlGeneratedClass*,
                                             CXmlWriter*) const {}

std::u16string CElementInfo::GetElementName() const { return m_elementName; }
std::u16string CElementInfo::GetElementNamespace() const { return m_elementNamespace; }
int CElementInfo::GetPropertyIndex() const { return m_propertyIndex; }

std::u16string CElementInfo::GetAnyDefaultNamespace(const char16_t* namespaceConstraint,
                                                    const char16_t* ownerNamespace,
                                                    const char16_t* targetNamespace) {
    const std::u16string_view constraint = NotNull(namespaceConstraint, u"namespaceConstraint");
    const std::u16string_view owner = NotNull(ownerNamespace, u"ownerNamespace");
    if (constraint == u"##any")
        return std::u16string(owner);
    if (constraint == u"##other")
        return owner.empty() ? u"DefaultNamespace" : u"";
    if (constraint == u"##local")
        return u"";
    if (constraint == u"##targetNamespace")
        return NotNull(targetNamespace, u"targetNamespace");
    const std::size_t blank = constraint.find(u' ');
    if (blank != constraint.npos && constraint.size() >= 3 && constraint.starts_with(u"##"))
        return GetAnyDefaultNamespace(std::u16string(constraint.substr(0, blank)).c_str(), ownerNamespace,
                                      targetNamespace);
    return u"";
}

const char16_t* CElementInfo::RequireText(const char16_t* text, const char16_t* argument) {
    return NotNull(text, argument);
}

void CElementInfo::AccessProperty(CXmlGeneratedClass* object, bool read, KzVariant& value) {
    object->AccessProperty(m_propertyIndex, read, value);
}

void CElementInfo::ReadProperty(const CXmlGeneratedClass* object, KzVariant& value) const {
    object->ReadProperty(m_propertyIndex, value);
}

CXmlElement* CElementInfo::FromXml_Int(CXmlObjectBase* object, CXmlElement* element, CXmlElement* current,
                                       const CXmlSerializationContext& context, bool isOptional) {
    return object->FromXml_Int(element, current, context, isOptional);
}

void CElementInfo::AttributesToXml_Int(const CXmlObjectBase* object, CXmlWriter* writer,
                                       const CXmlSerializationContext& context) {
    const RecursionLevel level; // groups inside each other come here without an element in between
    object->AttributesToXml_Int(writer, context);
}

} // namespace KzXmlLib10Data
