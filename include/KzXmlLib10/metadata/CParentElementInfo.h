#pragma once

#include <KzXmlLib10/metadata/XmlElementType.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/object/ItemType.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <typeinfo>

namespace KzXmlLib10Data {

/// What kind of XML structure a generated class stands for.
///
///     new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"order",
///                            u"urn:example:orders", true, false, -1, ItemType_Invalid, nullptr, false)
///
/// Generated code builds one for each class, under CXmlGeneratedClass::m_csInit, and never changes it.
class QUILLON_EXPORT CParentElementInfo {
public:
    /// The names may not be null (CKzInvalidParamException); a null format override is the empty one.
    CParentElementInfo(XmlElementGroupType elementGroupType, XmlElementType elementType,
                       const char16_t* elementName, const char16_t* elementNamespace,
                       bool fromXmlFailIfAttributeUnknown, bool hasBaseClasses,
                       int primitiveValuePropertyIndex, KzXmlLib10::ItemType primitiveDataType,
                       const char16_t* primitiveFormatOverride, bool outputPrimitiveClassAsTextProperty);
    CParentElementInfo(const CParentElementInfo&) = default;
    CParentElementInfo& operator=(const CParentElementInfo&) = default;
    virtual ~CParentElementInfo();

    XmlElementGroupType GetElementGroupType() const;
    XmlElementType GetElementType() const;
    /// The element name that the class was generated for.
    std::u16string GetElementName() const;
    /// The namespace URI of that element; empty for none.
    std::u16string GetElementNamespace() const;
    /// Whether an attribute that no descriptor takes is an error on reading.
    bool GetFromXmlFailIfAttributeUnknown() const;
    /// Whether the class takes part in a derivation, so that `xsi:type` may have to be written.
    bool GetHasBaseClasses() const;
    /// The property that holds the element's own text value; -1 for none.
    int GetPrimitiveValuePropertyIndex() const;
    /// The kind of that value; ItemType_Invalid for none.
    KzXmlLib10::ItemType GetPrimitiveDataType() const;
    std::u16string GetPrimitiveFormatOverride() const;
    /// Whether that property takes the element's text as it stands, without conversion.
    bool GetOutputPrimitiveClassAsTextProperty() const;

private:
    friend class KzXmlLib10::CXmlGeneratedClass;

    /// Noted by any thread, and by each record for itself.
    struct NotedClass {
        NotedClass() = default;
        NotedClass(const NotedClass&) {}
        NotedClass& operator=(const NotedClass&) { return *this; }

        std::atomic<const std::type_info*> type = nullptr;
    };

    XmlElementGroupType m_elementGroupType;
    XmlElementType m_elementType;
    std::u16string m_elementName;
    std::u16string m_elementNamespace;
    bool m_fromXmlFailIfAttributeUnknown;
    bool m_hasBaseClasses;
    std::int32_t m_primitiveValuePropertyIndex;
    KzXmlLib10::ItemType m_primitiveDataType;
    std::u16string m_primitiveFormatOverride;
    bool m_outputPrimitiveClassAsTextProperty;
    mutable NotedClass m_notNillable; ///< a class found not to be nillable
};

} // namespace KzXmlLib10Data
