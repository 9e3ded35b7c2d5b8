#pragma once

#include <KzXmlLib10/metadata/CAttributeInfo.h>

namespace KzXmlLib10Data {

/// An attribute wildcard (xs:anyAttribute); its property holds a CAttributeCol.
///
/// It takes every attribute whose namespace the constraint admits, so it stands behind the named attributes
/// of its table.
class QUILLON_EXPORT CAttributeInfoAny : public CAttributeInfo {
public:
    /// The constraint has the forms of CXmlObjectBase::IsNamespaceValid; neither it nor the target namespace
    /// may be null (CKzInvalidParamException).
    CAttributeInfoAny(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool optional,
                      const char16_t* namespaceConstraint, const char16_t* targetNamespace,
                      const char16_t* defaultValue);

    void AttributeToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                        CXmlWriter* writer) const override;
    bool AttributeFromXml(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                          CXmlAttribute* attribute) override;
    /// Never fails.
    void Validate(const CXmlSerializationContext& context, bool found) const override;

private:
    /// The object in the property, or null.
    CSmartPtr<CXmlObjectBase> ReadObject(const CXmlGeneratedClass* object) const;

    std::u16string m_namespaceConstraint;
    std::u16string m_targetNamespace;
};

} // namespace KzXmlLib10Data
