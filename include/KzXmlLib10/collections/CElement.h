#pragma once

#include <KzXmlLib10/collections/CAttributeCol.h>
#include <KzXmlLib10/collections/CElementCol.h>
#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>

namespace KzXmlLib10 {

/// An element that no generated class stands for: a name, a namespace, a text, attributes and children, to
/// any depth.
///
///     CSmartPtr<CElement> note = new CElement(u"note", u"urn:n");
///     note->GetAttributes()->Add(u"lang", u"en", u"");
///     note->GetChildElements()->Add(u"line", u"urn:n")->SetText(u"fragile");
///     order->GetExtensions()->Add(note);
///
/// Holds copies of all that it was read from. Reading, writing, cloning and destroying need no stack for the
/// depth; an element that was put inside itself throws CKzInvalidStateException instead of being written for
/// ever.
///
/// Deliberate: text goes out behind the children, so mixed content loses its order. An element with a default
/// namespace of its own goes out without its attributes, and to a text writer only; its clone, which has no
/// such default, goes out with them.
class QUILLON_EXPORT CElement : public CXmlObjectBase, public CInstanceMonitor {
public:
    /// In no namespace; of any namespace when read.
    explicit CElement(const char16_t* name);
    /// The namespace is also the restriction when read. Throws CKzInvalidNamespaceException for a keyword.
    CElement(const char16_t* name, const char16_t* namespaceUri);
    /// Throws CKzInvalidNamespaceException for a null name, restriction or target namespace, and for a
    /// namespace outside the restriction; see CXmlObjectBase::IsNamespaceValid.
    CElement(const char16_t* name, const char16_t* namespaceUri, const char16_t* namespaceRestriction,
             const char16_t* targetNamespace);
    /// A generic copy of any object, by way of its XML. `defaultNamespace` is the one that the object and
    /// this element are written under; null for none.
    CElement(CXmlObjectBase* object, const char16_t* defaultNamespace);
    /// Shares attributes and children with the source.
    CElement(const CElement& other);
    CElement& operator=(const CElement& other);
    ~CElement() override;

    using CXmlObjectBase::GetBase;
    CXmlObjectBase* GetBase() override;
    std::u16string GetNamespace() const override;

    // The setters take any text that is not null (CKzInvalidParamException).

    std::u16string GetName() const;
    void SetName(const char16_t* name);
    std::u16string GetText() const;
    void SetText(const char16_t* text);
    void SetNamespace(const char16_t* namespaceUri);

    /// Never null.
    CSmartPtr<CAttributeCol> GetAttributes() const;
    CSmartPtr<CElementCol> GetChildElements() const;

    /// A deep copy. Throws CKzInvalidNamespaceException if a namespace was set that is outside the
    /// restriction.
    CSmartPtr<CElement> Clone() const;

    using CXmlObjectBase::FromXml;
    /// Reads the root of a document under the default context. A root outside the restriction is not taken.
    ///
    /// Deliberate: what the element held before stays; attributes and children are added to it.
    void FromXml(const char16_t* xml);

    /// Checks that the namespaces of this element and all below it fit a restriction.
    ///
    /// Deliberate: nothing is stored. An element that does not fit throws a pointer to a new
    /// CKzInvalidNamespaceException, which the catcher deletes; an attribute that does not fit throws that
    /// exception by value.
    void SetNamespaceRestrictions(const char16_t* restriction, const char16_t* targetNamespace);

protected:
    void Init(const char16_t* name, const char16_t* namespaceUri, const char16_t* namespaceRestriction,
              const char16_t* targetNamespace);
    /// Becomes a copy of an element of a document.
    void CopyXmlElement(CXmlElement* element);

    std::u16string GetTargetNamespace() const override;

    using CXmlObjectBase::FromXml_Int;
    using CXmlObjectBase::ToXml_Int;
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                   const CXmlSerializationContext& context, bool isOptional) const override;
    /// Reads `current` itself. Returns its next sibling, or `current` if it is null or its namespace is not
    /// admitted.
    CXmlElement* FromXml_Int(CXmlElement* element, CXmlElement* current,
                             const CXmlSerializationContext& context, bool isOptional) override;

    /// Hooks that nothing calls.
    void FireOnChangeName();
    void FireOnChangeNamespace();
    void FireOnChangeText();

private:
    friend class CElementCol;
    friend class KzXmlLib10Data::CAttributeInfo;
    friend class KzXmlLib10Data::CElementInfo;

    class Checking;
    class Cloning;
    class Copying;
    class Reading;
    class Writing;

    bool IsPlain() const;
    void WriteUnderDefaultNamespace(CXmlWriter* writer, bool isOptional) const;
    CSmartPtr<CElement> MakeEmptyClone() const;

    std::u16string m_name;
    std::u16string m_text;
    std::u16string m_namespace;
    std::u16string m_namespaceRestriction;
    std::u16string m_targetNamespace;
    CSmartPtr<CAttributeCol> m_attributes;
    CSmartPtr<CElementCol> m_childElements;
    std::u16string m_defaultNamespace;
};

} // namespace KzXmlLib10
