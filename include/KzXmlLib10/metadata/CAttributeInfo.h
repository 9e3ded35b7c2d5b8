#pragma once

#include <KzXmlLib10/metadata/Names.h>

#include <cstdint>
#include <string>

namespace KzXmlLib10Data {

/// Binds one XML attribute of a generated class to one property of that class.
///
/// Generated code builds a null-terminated table of them for each class. A descriptor reaches a value only
/// through CXmlGeneratedClass::AccessProperty, by index. Read-only once built, so threads may share it.
class QUILLON_EXPORT CAttributeInfo {
public:
    CAttributeInfo(const CAttributeInfo&) = default;
    CAttributeInfo& operator=(const CAttributeInfo&) = default;
    virtual ~CAttributeInfo();

    /// Writes the property as an attribute of the open start tag.
    virtual void AttributeToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                                CXmlWriter* writer) const = 0;
    /// Stores the attribute in the property if it is this descriptor's. True if it was taken.
    virtual bool AttributeFromXml(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                                  CXmlAttribute* attribute) = 0;
    /// Called once all attributes of an element were offered; `found` tells whether one was taken.
    /// Throws CKzValidationException if the attribute is required and was not found.
    virtual void Validate(const CXmlSerializationContext& context, bool found) const = 0;

protected:
    /// The name and the namespace may not be null (CKzInvalidParamException); a null default is the empty
    /// one.
    CAttributeInfo(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool optional,
                   const char16_t* defaultValue);

    void AccessProperty(CXmlGeneratedClass* object, bool read, KzVariant& value);
    void ReadProperty(const CXmlGeneratedClass* object, KzVariant& value) const;

    /// Forwarders to the protected operations of objects, and to the checks of namespaces.
    static void ToXml_Int(const CXmlObjectBase* object, CXmlWriter* writer, bool isRoot,
                          const char16_t* elementNamespace, const CXmlSerializationContext& context);
    static std::u16string GetTargetNamespace(const CXmlObjectBase* object);
    static void TestNamespace(const std::u16string& ns, const std::u16string& restriction,
                              const std::u16string& targetNamespace);
    static bool IsNamespaceValid(const std::u16string& ns, const std::u16string& restriction,
                                 const std::u16string& targetNamespace);

    /// Whether the names agree; without namespaces where the context ignores them.
    bool IsThisAttribute(const CXmlSerializationContext& context, CXmlAttribute* attribute);

    /// Whether the property is empty and need not be written.
    bool IsOmitted(const KzVariant& value) const;
    /// Whether the context leaves out defaults and the text is this one's default. Texts are compared, not
    /// values.
    bool IsOmittedDefault(const CXmlSerializationContext& context, const std::u16string& text) const;
    /// Throws if a required attribute was not found.
    void RequireFound(bool found) const;

    std::u16string m_attributeName;
    std::u16string m_attributeNamespace;
    std::int32_t m_propertyIndex;
    bool m_optional;
    std::u16string m_defaultValue;
};

/// An attribute that holds a primitive value.
class QUILLON_EXPORT CAttributeInfoPrimitive : public CAttributeInfo {
public:
    /// A null format override is the empty one.
    CAttributeInfoPrimitive(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                            bool optional, ItemType itemType, const char16_t* formatOverride,
                            CWhitespaceUtils::WhitespaceRule whitespaceRule,
                            const CPrimitiveRestrictions& restrictions, const char16_t* defaultValue);

    void AttributeToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                        CXmlWriter* writer) const override;
    bool AttributeFromXml(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                          CXmlAttribute* attribute) override;
    void Validate(const CXmlSerializationContext& context, bool found) const override;

    /// Tests a value against the facets; generated setters call it. Throws as CheckPrimitiveRestrictions
    /// does.
    void CheckRestriction(KzVariant value) const;

private:
    CPrimitiveRestrictions m_restrictions;
    ItemType m_itemType;
    std::u16string m_formatOverride;
    CWhitespaceUtils::WhitespaceRule m_whitespaceRule;
};

/// An attribute of an enumeration type; its property carries the enumerator as ItemType_i4.
class QUILLON_EXPORT CAttributeInfoEnum : public CAttributeInfo {
public:
    CAttributeInfoEnum(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool optional,
                       EnumToString enumToString, StringToEnum stringToEnum, const char16_t* defaultValue);

    void AttributeToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                        CXmlWriter* writer) const override;
    bool AttributeFromXml(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                          CXmlAttribute* attribute) override;
    void Validate(const CXmlSerializationContext& context, bool found) const override;

private:
    StringToEnum m_stringToEnum;
    EnumToString m_enumToString;
};

} // namespace KzXmlLib10Data
