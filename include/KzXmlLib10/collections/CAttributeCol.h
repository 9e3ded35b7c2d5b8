#pragma once

#include <KzXmlLib10/collections/CAttribute.h>
#include <KzXmlLib10/collections/CKzIterator.h>
#include <KzXmlLib10/collections/CXmlCollection.h>
#include <KzXmlLib10/object/CInstanceMonitor.h>

namespace KzXmlLib10 {

/// The attributes under an attribute wildcard (xs:anyAttribute), of a generic element, or of a context.
///
///     CAttributeCol attributes(u"urn:a", u"##any", u"");
///     attributes.Add(u"lang", u"en");
///     for (CAttribute& attribute : attributes)
///         attribute.SetValue(u"");
///
/// The restriction has the forms of CXmlObjectBase::IsNamespaceValid. A namespace outside it throws
/// CKzInvalidNamespaceException, a null argument CKzInvalidParamException.
class QUILLON_EXPORT CAttributeCol : public CXmlCollection, public CInstanceMonitor {
public:
    /// `defaultNamespace` is that of attributes added without one. Where it is empty, it is the first
    /// namespace that a restriction to namespaces names.
    CAttributeCol(const char16_t* defaultNamespace, const char16_t* namespaceRestriction,
                  const char16_t* targetNamespace);
    /// Shares the attributes, in a list of its own.
    CAttributeCol(const CAttributeCol& other);
    CAttributeCol& operator=(const CAttributeCol& other);
    ~CAttributeCol() override;

    std::u16string GetNamespace() const override;

    /// Deliberate: the namespace of an attribute that exists already is not checked.
    CSmartPtr<CAttribute> Add(CAttribute* attribute);
    CSmartPtr<CAttribute> Add(const char16_t* name);
    CSmartPtr<CAttribute> Add(const char16_t* name, const char16_t* value);
    CSmartPtr<CAttribute> Add(const char16_t* name, const char16_t* value, const char16_t* namespaceUri);
    /// Deliberate: behind null is in front of all, in front of null is behind all.
    void AddAfter(const CAttribute* existing, CAttribute* attribute);
    void AddBefore(const CAttribute* existing, CAttribute* attribute);

    CSmartPtr<CAttribute> Item(int index) const;
    CKzIterator<CAttribute> begin() const;
    CKzIterator<CAttribute> end() const;

    /// A collection of copies of the attributes, without listeners.
    CSmartPtr<CAttributeCol> Clone() const;

protected:
    std::u16string GetTargetNamespace() const override;

    using CXmlObjectBase::FromXml_Int;
    using CXmlObjectBase::ToXml_Int;
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                   const CXmlSerializationContext& context, bool isOptional) const override;
    /// Takes all attributes of `element`; returns `current`.
    CXmlElement* FromXml_Int(CXmlElement* element, CXmlElement* current,
                             const CXmlSerializationContext& context, bool isOptional) override;

private:
    friend class KzXmlLib10Data::CAttributeInfo;
    friend class KzXmlLib10Data::CElementInfo;

    std::u16string m_namespaceRestriction;
    std::u16string m_targetNamespace;
};

} // namespace KzXmlLib10
