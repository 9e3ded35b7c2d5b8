#include <KzXmlLib10/metadata/CParentElementInfo.h>

#include "object/NotNull.h"

namespace KzXmlLib10Data {

using KzXmlLib10::EmptyIfNull;
using KzXmlLib10::ItemType;
using KzXmlLib10::NotNull;

CParentElementInfo::CParentElementInfo(XmlElementGroupType elementGroupType, XmlElementType elementType,
                                       const char16_t* elementName, const char16_t* elementNamespace,
                                       bool fromXmlFailIfAttributeUnknown, bool hasBaseClasses,
                                       int primitiveValuePropertyIndex, ItemType primitiveDataType,
                                       const char16_t* primitiveFormatOverride,
                                       bool outputPrimitiveClassAsTextProperty)
    : m_elementGroupType(elementGroupType), m_elementType(elementType),
      m_elementName(NotNull(elementName, u"elementName")),
      m_elementNamespace(NotNull(elementNamespace, u"elementNamespace")),
      m_fromXmlFailIfAttributeUnknown(fromXmlFailIfAttributeUnknown), m_hasBaseClasses(hasBaseClasses),
      m_primitiveValuePropertyIndex(primitiveValuePropertyIndex), m_primitiveDataType(primitiveDataType),
      m_primitiveFormatOverride(EmptyIfNull(primitiveFormatOverride)),
      m_outputPrimitiveClassAsTextProperty(outputPrimitiveClassAsTextProperty) {}

CParentElementInfo::~CParentElementInfo() = default;

XmlElementGroupType CParentElementInfo::GetElementGroupType() const { return m_elementGroupType; }
XmlElementType CParentElementInfo::GetElementType() const { return m_elementType; }
std::u16string CParentElementInfo::GetElementName() const { return m_elementName; }
std::u16string CParentElementInfo::GetElementNamespace() const { return m_elementNamespace; }
bool CParentElementInfo::GetFromXmlFailIfAttributeUnknown() const { return m_fromXmlFailIfAttributeUnknown; }
bool CParentElementInfo::GetHasBaseClasses() const { return m_hasBaseClasses; }
int CParentElementInfo::GetPrimitiveValuePropertyIndex() const { return m_primitiveValuePropertyIndex; }
ItemType CParentElementInfo::GetPrimitiveDataType() const { return m_primitiveDataType; }
std::u16string CParentElementInfo::GetPrimitiveFormatOverride() const { return m_primitiveFormatOverride; }
bool CParentElementInfo::GetOutputPrimitiveClassAsTextProperty() const {
    return m_outputPrimitiveClassAsTextProperty;
}

} // namespace KzXmlLib10Data
