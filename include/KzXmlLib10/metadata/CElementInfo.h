#pragma once

#include <KzXmlLib10/metadata/Names.h>
#include <KzXmlLib10/metadata/XmlElementType.h>
#include <KzXmlLib10/object/UniqueNumber.h>

#include <cstdint>
#include <string>

namespace KzXmlLib10Data {

/// Binds one particle of a schema type (a child element, a nested group, a repeated element, a wildcard) to
/// one property of a generated class.
///
/// Generated code builds a null-terminated table of them for each class, in schema order; the engine of
/// CXmlGeneratedClass walks it. The leaves of the family are named CElementInfo + group + kind + cardinality:
///
///     group        Seq xs:sequence    Choice xs:choice    All xs:all
///     kind         Cls object of one class     AbsCls object of a class that the element chooses
///                  Prim primitive value        Enum enumerator        Untpd generic element
///     cardinality  Mnd exactly one    Opt zero or one     Col repeated
///
/// Descriptors are read-only once built, so threads may share them; they hold no state of a read or write.
class QUILLON_EXPORT CElementInfo {
public:
    CElementInfo(const CElementInfo&) = default;
    CElementInfo& operator=(const CElementInfo&) = default;
    virtual ~CElementInfo();

    /// Writes the property. True if something was written.
    virtual bool ElementToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                              CXmlWriter* writer) const = 0;
    /// Reads the property from the children of `parent` that are left. `*current` is the next of them, or
    /// null; it moves past whatever is taken. True if the descriptor is satisfied. With an owner that has no
    /// tag of its own a miss is told by false instead of a failure.
    virtual bool ElementFromXml(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                                CXmlElement* parent, CXmlElement** current, const char16_t* ownerNamespace,
                                XmlElementType ownerElementType) = 0;
    /// Asked by the walk of an all group whether a miss is acceptable.
    virtual bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                          bool found, bool isElement) const = 0;
    /// Writes the attributes of a nested group onto the open start tag. Does nothing here.
    virtual void PseudoChildAttributeToXml(const CXmlSerializationContext& context,
                                           const CXmlGeneratedClass* object, CXmlWriter* writer) const;

    std::u16string GetElementName() const;
    std::u16string GetElementNamespace() const;
    int GetPropertyIndex() const;

    /// Tests a value against the facets; generated setters call it. Throws as CheckPrimitiveRestrictions
    /// does, or CKzException on a descriptor that has no primitive value.
    void CheckRestriction(const KzVariant& value) const;

    /// Whether an element of a document has this descriptor's name; without namespaces where the context
    /// ignores them.
    bool IsThisElement(const CXmlSerializationContext& context, const CXmlElement* element) const;

    /// The namespace that a new generic element takes by default under a wildcard.
    static std::u16string GetAnyDefaultNamespace(const char16_t* namespaceConstraint,
                                                 const char16_t* ownerNamespace,
                                                 const char16_t* targetNamespace);

protected:
    /// For objects and collections. Names may not be null (CKzInvalidParamException).
    CElementInfo(const char16_t* name, const char16_t* namespaceUri, int propertyIndex);
    /// For enumerations.
    CElementInfo(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool nillable);
    /// For primitive values; a null format override is the empty one.
    CElementInfo(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool nillable,
                 ItemType itemType, const char16_t* formatOverride,
                 CWhitespaceUtils::WhitespaceRule whitespaceRule, const CPrimitiveRestrictions& restrictions);

    void AccessProperty(CXmlGeneratedClass* object, bool read, KzVariant& value);
    void ReadProperty(const CXmlGeneratedClass* object, KzVariant& value) const;

    /// Forwarders to the protected operations of objects.
    static CXmlElement* FromXml_Int(CXmlObjectBase* object, CXmlElement* element, CXmlElement* current,
                                    const CXmlSerializationContext& context, bool isOptional);
    static void AttributesToXml_Int(const CXmlObjectBase* object, CXmlWriter* writer,
                                    const CXmlSerializationContext& context);

    // Writing: one operation for each kind.
    bool ElementToXmlPrim(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                          CXmlWriter* writer) const;
    bool ElementToXmlEnum(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                          CXmlWriter* writer, EnumToString enumToString) const;
    bool ElementToXmlCls(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                         CXmlWriter* writer, bool isOptional) const;
    bool ElementToXmlCol(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                         CXmlWriter* writer) const;
    /// ElementToXmlCol behind a check of the count, which throws as CXmlCollectionBase::ValidateCount does.
    bool CheckedElementToXmlCol(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                                CXmlWriter* writer) const;
    /// Writes the attributes of the held object if the group has attributes on the parent's start tag.
    void PseudoAttributesToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                               CXmlWriter* writer, XmlElementType elementType) const;
    /// The same for each item of the held collection.
    void PseudoItemAttributesToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                                   CXmlWriter* writer, XmlElementType elementType) const;

    // Reading: the steps that leaves are composed of.
    /// Looks for the element from `*current` on, past unknown elements where the context ignores them. False
    /// if a missing one is let pass; otherwise throws CKzValidationException if there is none.
    bool SeekElement(const CXmlSerializationContext& context, CXmlElement** current) const;
    /// Converts and stores the value of the current element, nil included, and moves on. Always true.
    bool TakePrimitive(CXmlGeneratedClass* object, CXmlElement** current);
    bool TakeEnum(CXmlGeneratedClass* object, CXmlElement** current, StringToEnum stringToEnum);
    /// Reads the current element into the child and moves on.
    static void TakeObject(const CXmlSerializationContext& context, CXmlObjectBase* child,
                           CXmlElement** current, bool isOptional);
    /// Reads the current element into the child, stores it, and moves on.
    void ReadAndStoreObject(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                            CXmlObjectBase* child, CXmlElement** current);
    /// The object that the factory creates. Throws CKzInvalidStateException if it gives none.
    CSmartPtr<CXmlObjectBase> CreateObject(ClassFactory factory, int classId) const;
    /// Puts an object, or null, into the property.
    void StoreObject(CXmlGeneratedClass* object, CXmlObjectBase* child);
    /// Reads the property into the variant, which holds what is returned: the object, or null.
    CXmlObjectBase* ReadObject(const CXmlGeneratedClass* object, KzVariant& value) const;
    /// The same for a collection that the generated class created. Throws as HeldCollection does.
    CXmlCollectionBase& ReadCollection(const CXmlGeneratedClass* object, KzVariant& value) const;
    /// The object that the generated class created for a mandatory member. Throws CKzInvalidStateException if
    /// it created none.
    CSmartPtr<CXmlObjectBase> HeldObject(const CXmlGeneratedClass* object) const;
    /// The same, but null where the property has none.
    CSmartPtr<CXmlObjectBase> HeldObjectOrNull(const CXmlGeneratedClass* object) const;
    /// The collection that the generated class created. Throws CKzInvalidStateException if it is none.
    CSmartPtr<CXmlCollectionBase> HeldCollection(const CXmlGeneratedClass* object) const;
    /// Lets the collection read from `current` on; returns the first element that it did not take.
    CXmlElement* ReadRun(const CXmlSerializationContext& context, CXmlCollectionBase* collection,
                         CXmlElement* parent, CXmlElement* current) const;
    /// The same for generic elements: any, or a run under one name, the element name of the descriptor.
    CXmlElement* ReadUntypedRun(const CXmlSerializationContext& context, CXmlCollectionBase* collection,
                                CXmlElement* parent, CXmlElement* current) const;
    /// Whether the count of the collection is within its bounds. An owner with a tag of its own makes it a
    /// failure if not.
    static bool HasValidCount(const CXmlSerializationContext& context, const CXmlCollectionBase& collection,
                              XmlElementType ownerElementType);
    /// A new generic element under a wildcard.
    CSmartPtr<CXmlObjectBase> CreateUntyped(const std::u16string& namespaceConstraint,
                                            const std::u16string& targetNamespace,
                                            const char16_t* ownerNamespace) const;
    /// Lets a generic element read the current one, if the names agree; returns `current` if it took nothing.
    CXmlElement* ReadUntyped(const CXmlSerializationContext& context, CXmlObjectBase* untyped,
                             CXmlElement* parent, CXmlElement* current) const;
    /// Whether the descriptor takes generic elements of any name.
    bool IsAnyElement() const;
    /// The text itself, or CKzInvalidParamException with the name of the argument if it is null.
    static const char16_t* RequireText(const char16_t* text, const char16_t* argument);
    [[noreturn]] void FailRequired() const;

    std::u16string m_elementName;
    std::u16string m_elementNamespace;
    std::int32_t m_propertyIndex;
    CPrimitiveRestrictions m_restrictions;
    ItemType m_itemType;
    std::u16string m_formatOverride;
    CWhitespaceUtils::WhitespaceRule m_whitespaceRule;
    bool m_nillable;
    bool m_isPrimitive;

private:
    KzXmlLib10::UniqueNumber m_nameNumber; ///< by which writers and documents know the name again

    bool IsKnown(const CXmlElement& element) const;
    bool HasNameOf(const CXmlElement& element, const CXmlSerializationContext& context) const;
    bool IsNil(const CXmlElement& element) const;
    bool HasNilAttribute(const CXmlElement& element) const;
    CWhitespaceUtils::WhitespaceRule RuleForElements() const;
    bool StoreAndAdvance(CXmlGeneratedClass* object, KzVariant& value, CXmlElement** current);
};

/// Declares the operation by which a leaf reads.
#define QUILLON_ELEMENT_READING                                                                              \
    bool ElementFromXml(const CXmlSerializationContext& context, CXmlGeneratedClass* object,                 \
                        CXmlElement* parent, CXmlElement** current, const char16_t* ownerNamespace,          \
                        XmlElementType ownerElementType) override;

/// Declares the operations that every complete leaf overrides.
#define QUILLON_ELEMENT_OPERATIONS                                                                           \
    bool ElementToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,             \
                      CXmlWriter* writer) const override;                                                    \
    QUILLON_ELEMENT_READING

} // namespace KzXmlLib10Data
