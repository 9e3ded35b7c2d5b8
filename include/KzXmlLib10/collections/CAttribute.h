#pragma once

#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>

namespace KzXmlLib10 {

/// An attribute that no descriptor names: a name, a value and a namespace.
///
///     CSmartPtr<CAttribute> attribute = element->GetAttributes()->Add(u"lang", u"en");
///     attribute->SetValue(u"fr");
///
/// Made by CAttributeCol only. The setters take any text that is not null (CKzInvalidParamException) and do
/// not look at the restriction of the collection.
class QUILLON_EXPORT CAttribute : public CXmlObjectBase, public CInstanceMonitor {
public:
    CAttribute(const CAttribute& other);
    CAttribute& operator=(const CAttribute& other);
    ~CAttribute() override;

    using CXmlObjectBase::GetBase;
    CXmlObjectBase* GetBase() override;
    std::u16string GetNamespace() const override;

    std::u16string GetName() const;
    void SetName(const char16_t* name);
    std::u16string GetValue() const;
    void SetValue(const char16_t* value);
    void SetNamespace(const char16_t* namespaceUri);

    CSmartPtr<CAttribute> Clone() const;

protected:
    /// No argument may be null (CKzInvalidParamException).
    CAttribute(const char16_t* name, const char16_t* value, const char16_t* namespaceUri);

    std::u16string GetTargetNamespace() const override;

    using CXmlObjectBase::FromXml_Int;
    using CXmlObjectBase::ToXml_Int;
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                   const CXmlSerializationContext& context, bool isOptional) const override;
    /// Always throws CKzException: the collection reads.
    CXmlElement* FromXml_Int(CXmlElement* element, CXmlElement* current,
                             const CXmlSerializationContext& context, bool isOptional) override;

    /// Hooks that nothing calls.
    void FireOnChangeName();
    void FireOnChangeNamespace();

private:
    friend class CAttributeCol;

    std::u16string m_name;
    std::u16string m_value;
    std::u16string m_namespace;
};

} // namespace KzXmlLib10
