#pragma once

#include <KzXmlLib10/metadata/CElementInfo.h>

/// What the leaves of one kind have in common in every group: their constructor, fields and writing.
///
/// A leaf derives from its kind, which derives from its group, and adds how it reads:
///
///     class CElementInfoSeqPrimOpt : public PrimKind<CElementInfoSeq> { ... };
///     QUILLON_LEAF(CElementInfoSeqPrimOpt, PrimKind, CElementInfoSeq); // the same
namespace KzXmlLib10Data {

/// A primitive value.
template <class Group>
class QUILLON_EXPORT PrimKind : public Group {
public:
    PrimKind(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool nillable,
             ItemType itemType, const char16_t* formatOverride,
             CWhitespaceUtils::WhitespaceRule whitespaceRule, const CPrimitiveRestrictions& restrictions)
        : Group(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride, whitespaceRule,
                restrictions) {}

    bool ElementToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                      CXmlWriter* writer) const override {
        return this->ElementToXmlPrim(context, object, writer);
    }
};

/// An enumerator.
template <class Group>
class QUILLON_EXPORT EnumKind : public Group {
public:
    EnumKind(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool nillable,
             EnumToString enumToString, StringToEnum stringToEnum)
        : Group(name, namespaceUri, propertyIndex, nillable), m_enumToString(enumToString),
          m_stringToEnum(stringToEnum) {}

    bool ElementToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                      CXmlWriter* writer) const override {
        return this->ElementToXmlEnum(context, object, writer, m_enumToString);
    }

protected:
    EnumToString m_enumToString;
    StringToEnum m_stringToEnum;
};

/// An object, which may stand for a nested group.
template <class Group>
class QUILLON_EXPORT ObjectKind : public Group {
public:
    bool ElementToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                      CXmlWriter* writer) const override {
        return this->ElementToXmlCls(context, object, writer, false);
    }
    void PseudoChildAttributeToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                                   CXmlWriter* writer) const override {
        this->PseudoAttributesToXml(context, object, writer, m_elementType);
    }

protected:
    ObjectKind(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
               XmlElementType elementType)
        : Group(name, namespaceUri, propertyIndex), m_elementType(elementType) {}

    XmlElementType m_elementType;
};

/// An object of one class, created by its factory when its element is there.
template <class Group>
class QUILLON_EXPORT ClsKind : public ObjectKind<Group> {
public:
    ClsKind(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, XmlElementType elementType,
            ClassFactory factory, int classId)
        : ObjectKind<Group>(name, namespaceUri, propertyIndex, elementType), m_factory(factory),
          m_classId(classId) {}

protected:
    ClassFactory m_factory;
    std::int32_t m_classId;
};

/// An object of a class that its element chooses.
template <class Group>
class QUILLON_EXPORT AbsClsKind : public ObjectKind<Group> {
public:
    AbsClsKind(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
               XmlElementType elementType, SubstitutionFactory substitutionFactory)
        : ObjectKind<Group>(name, namespaceUri, propertyIndex, elementType),
          m_substitutionFactory(substitutionFactory) {}

protected:
    SubstitutionFactory m_substitutionFactory;
};

/// A generic element. The namespaces may not be null (CKzInvalidParamException).
template <class Group>
class QUILLON_EXPORT UntpdKind : public Group {
public:
    UntpdKind(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
              const char16_t* namespaceConstraint, const char16_t* targetNamespace)
        : Group(name, namespaceUri, propertyIndex),
          m_namespaceConstraint(Group::RequireText(namespaceConstraint, u"namespaceConstraint")),
          m_targetNamespace(Group::RequireText(targetNamespace, u"targetNamespace")) {}

    bool ElementToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                      CXmlWriter* writer) const override {
        return this->ElementToXmlCls(context, object, writer, false);
    }

protected:
    std::u16string m_namespaceConstraint;
    std::u16string m_targetNamespace;
};

/// A collection of objects, each of which may stand for a nested group.
template <class Collection>
class QUILLON_EXPORT ObjectsKind : public Collection {
public:
    ObjectsKind(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                XmlElementType elementType)
        : Collection(name, namespaceUri, propertyIndex), m_elementType(elementType) {}

    void PseudoChildAttributeToXml(const CXmlSerializationContext& context, const CXmlGeneratedClass* object,
                                   CXmlWriter* writer) const override {
        this->PseudoItemAttributesToXml(context, object, writer, m_elementType);
    }

protected:
    XmlElementType m_elementType;
};

/// Declares a leaf that adds nothing to its kind but how it reads.
#define QUILLON_LEAF(Leaf, Kind, Group)                                                                      \
    class QUILLON_EXPORT Leaf : public Kind<Group> {                                                         \
    public:                                                                                                  \
        using Kind<Group>::Kind;                                                                             \
        QUILLON_ELEMENT_READING                                                                              \
    }

} // namespace KzXmlLib10Data
