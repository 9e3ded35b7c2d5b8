#pragma once

#include <KzXmlLib10/metadata/XmlElementType.h>
#include <KzXmlLib10/object/CKZCriticalSection.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>

#include <cstddef>
#include <string>

namespace KzXmlLib10 {

/// The base of every class that a generator makes from a schema type.
///
///     class COrder : public CXmlGeneratedClass {
///         void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
///         KzXmlLib10Data::CParentElementInfo* GetClassInfo() const override;
///         ...
///     };
///
/// A class says what it is through three tables, built once under m_csInit by the first getter that is
/// called, and gives access to its members through AccessProperty. The library does the rest. The tables
/// belong to the class, are shared by its objects, and never change; an empty table holds just its null
/// entry. The getters are called several times an element, so they must be cheap.
///
/// A nillable class inherits INillable beside this class. Reading and writing different objects is safe from
/// several threads at once.
class QUILLON_EXPORT CXmlGeneratedClass : public CXmlObjectBase {
public:
    CXmlGeneratedClass();
    CXmlGeneratedClass(const CXmlGeneratedClass& other);
    CXmlGeneratedClass& operator=(const CXmlGeneratedClass& other);
    ~CXmlGeneratedClass() override;

protected:
    using CXmlObjectBase::AttributesToXml_Int;
    using CXmlObjectBase::FromXml_Int;
    using CXmlObjectBase::ToXml_Int;

    void AttributesToXml_Int(CXmlWriter* writer, const CXmlSerializationContext& context) const override;
    /// Throws CKzValidationException around any failure, so that the chain reads as the path of elements.
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                   const CXmlSerializationContext& context, bool isOptional) const override;
    CXmlElement* FromXml_Int(CXmlElement* element, CXmlElement* current,
                             const CXmlSerializationContext& context, bool isOptional) override;

public:
    /// Fills `value` from the property if `read`, stores it in the property otherwise.
    virtual void AccessProperty(int propertyIndex, bool read, KzVariant& value) = 0;
    virtual KzXmlLib10Data::CParentElementInfo* GetClassInfo() const = 0;
    /// The descriptors of the children, in schema order, null at the end.
    virtual KzXmlLib10Data::CElementInfo** GetClassElementInfo() const = 0;
    /// The descriptors of the attributes, null at the end.
    virtual KzXmlLib10Data::CAttributeInfo** GetClassAttributeInfo() const = 0;
    /// Brings the object into its initial state: collections empty, optional members unset.
    virtual void Init() = 0;

protected:
    /// Whether a descriptor of this class names the element.
    bool IsElementInList(const CXmlSerializationContext& context, CXmlElement* element) const;
    void ReadProperty(int propertyIndex, KzVariant& value) const {
        // Reading a property changes nothing, but one operation both reads and stores.
        const_cast<CXmlGeneratedClass*>(this)->AccessProperty(propertyIndex, true, value);
    }
    /// Whether an empty choice is acceptable: a member is optional, or a repeated one may be absent.
    bool DoesElementContainOptionalElements() const;
    void ProcessAttributesFromXml(const CXmlSerializationContext& context, CXmlElement* element,
                                  bool failIfUnknown);

    /// Deletes the tables of a class, and sets the pointers to null; each may be null already.
    static void CleanMetaData(KzXmlLib10Data::CParentElementInfo*& info,
                              KzXmlLib10Data::CElementInfo**& elements,
                              KzXmlLib10Data::CAttributeInfo**& attributes);

    /// Guards the building of tables in generated code. The library itself never takes it.
    static CKZCriticalSection m_csInit;

private:
    friend class KzXmlLib10Data::CAttributeInfo;
    friend class KzXmlLib10Data::CElementInfo;

    void WriteObject(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                     const CXmlSerializationContext& context, bool isOptional) const;
    void StartElement(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                      const CXmlSerializationContext& context, bool isOptional) const;
    void WriteContent(CXmlWriter* writer, const CXmlSerializationContext& context, bool isOptional) const;
    void WritePrimitiveValue(CXmlWriter* writer) const;
    void ProcessAttributesToXml(const CXmlSerializationContext& context,
                                KzXmlLib10Data::CElementInfo** elements,
                                KzXmlLib10Data::CAttributeInfo** attributes, CXmlWriter* writer) const;
    void ProcessElementSeqToXml(const CXmlSerializationContext& context,
                                KzXmlLib10Data::CElementInfo** elements, CXmlWriter* writer) const;
    void ProcessElementAllToXml(const CXmlSerializationContext& context,
                                KzXmlLib10Data::CElementInfo** elements, CXmlWriter* writer) const;

    void ProcessElementChoiceToXml(const CXmlSerializationContext& context,
                                   KzXmlLib10Data::CElementInfo** elements, CXmlWriter* writer,
                                   bool isOptional) const;

    CXmlElement* ReadObject(CXmlElement* element, CXmlElement* current,
                            const CXmlSerializationContext& context, bool isOptional);
    const INillable* AsNillable(const KzXmlLib10Data::CParentElementInfo& info) const;
    CXmlElement* ReadChildren(const KzXmlLib10Data::CParentElementInfo& info, CXmlElement* element,
                              CXmlElement* current, const CXmlSerializationContext& context, bool isOptional);
    void ReadPrimitiveValue(const KzXmlLib10Data::CParentElementInfo& info, const CXmlElement& element);
    void ReadNilAttribute(const CXmlElement& element, const CXmlAttribute& attribute);
    bool OfferAttribute(const CXmlSerializationContext& context, KzXmlLib10Data::CAttributeInfo** table,
                        CXmlAttribute* attribute, std::string& found);
    bool OfferElement(const CXmlSerializationContext& context, std::size_t index, CXmlElement* element,
                      CXmlElement*& current, KzXmlLib10Data::XmlElementType type);
    CXmlElement* ProcessElementSeqFromXml(const CXmlSerializationContext& context, CXmlElement* element,
                                          CXmlElement* current, KzXmlLib10Data::XmlElementType type);

    CXmlElement* ProcessElementChoiceFromXml(const CXmlSerializationContext& context, CXmlElement* element,
                                             CXmlElement* current, KzXmlLib10Data::XmlElementType type,
                                             bool isOptional);
    bool FindChoice(const CXmlSerializationContext& context, CXmlElement* element, CXmlElement*& current,
                    KzXmlLib10Data::XmlElementType type);
    CXmlElement* ProcessElementAllFromXml(const CXmlSerializationContext& context, CXmlElement* element,
                                          CXmlElement* current, KzXmlLib10Data::XmlElementType type);
    [[noreturn]] static void FailUnprocessed(const CXmlElement& element, const CXmlElement& left);

    int GetClassElementInfoCount() const;
};

} // namespace KzXmlLib10
