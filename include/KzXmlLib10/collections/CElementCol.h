#pragma once

#include <KzXmlLib10/collections/CKzIterator.h>
#include <KzXmlLib10/collections/CXmlCollection.h>
#include <KzXmlLib10/object/CInstanceMonitor.h>

namespace KzXmlLib10 {

/// The elements under a wildcard (xs:any), or the children of a generic element.
///
///     CSmartPtr<CElement> note = order->GetExtensions()->Add(u"note", u"urn:n");
///     note->SetText(u"fragile");
///
/// A namespace that its check refuses throws CKzInvalidNamespaceException, a null argument
/// CKzInvalidParamException.
///
/// Deliberate: the restriction given at construction is only held against the default namespace given with
/// it. Afterwards a collection takes elements of any namespace, and any number of them.
class QUILLON_EXPORT CElementCol : public CXmlCollection, public CInstanceMonitor {
public:
    /// `defaultNamespace` is that of elements added without one.
    ///
    /// Deliberate: where it is empty and the restriction is a keyword, the keyword becomes that namespace.
    /// The two numbers are not heeded.
    CElementCol(const char16_t* defaultNamespace, const char16_t* namespaceRestriction,
                const char16_t* targetNamespace, int minOccurs, int maxOccurs);
    /// Shares the elements, in a list of its own.
    CElementCol(const CElementCol& other);
    CElementCol& operator=(const CElementCol& other);
    ~CElementCol() override;

    /// The target namespace.
    std::u16string GetNamespace() const override;

    CSmartPtr<CElement> Add(CElement* element);
    /// Throws CKzInvalidStateException if there is no default namespace.
    CSmartPtr<CElement> Add(const char16_t* name);
    CSmartPtr<CElement> Add(const char16_t* name, const char16_t* namespaceUri);
    /// Deliberate: behind null is in front of all, in front of null is behind all. The namespace is not
    /// checked.
    void AddAfter(const CElement* existing, CElement* element);
    void AddBefore(const CElement* existing, CElement* element);

    CSmartPtr<CElement> Item(int index) const;
    CKzIterator<CElement> begin() const;
    CKzIterator<CElement> end() const;

    /// A collection of clones of the elements, without listeners.
    CSmartPtr<CElementCol> Clone() const;

protected:
    std::u16string GetTargetNamespace() const override;

    using CXmlObjectBase::FromXml_Int;
    using CXmlObjectBase::ToXml_Int;
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                   const CXmlSerializationContext& context, bool isOptional) const override;
    /// Takes the run of admitted elements that starts at `current`. Returns the first other one, or null.
    CXmlElement* FromXml_Int(CXmlElement* element, CXmlElement* current,
                             const CXmlSerializationContext& context, bool isOptional) override;

    /// Takes the run of elements of exactly this name and namespace that starts at `current`, for an element
    /// of no declared type. Returns the first other one, or null.
    ///
    /// Deliberate: the context is not asked whether namespaces count.
    virtual CXmlElement* FromXmlLockElementName_Int(std::u16string name, std::u16string namespaceUri,
                                                    CXmlElement* parent, CXmlElement* current,
                                                    const CXmlSerializationContext& context);

private:
    friend class CElement;
    friend class KzXmlLib10Data::CAttributeInfo;
    friend class KzXmlLib10Data::CElementInfo;

    bool Admits(const CXmlElement& element) const;
    CSmartPtr<CElement> MakeElement(const CXmlElement& source, const char16_t* restriction) const;
    CSmartPtr<CElementCol> MakeEmptyClone() const;
    CXmlElement* TakeElement(CSmartPtr<CElement> element, CXmlElement* parent, CXmlElement* current,
                             const CXmlSerializationContext& context);

    std::u16string m_namespaceRestriction;
    std::u16string m_defaultNamespace;
    std::u16string m_targetNamespace;
};

} // namespace KzXmlLib10
