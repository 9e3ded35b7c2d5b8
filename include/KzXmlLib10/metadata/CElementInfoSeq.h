#pragma once

#include <KzXmlLib10/metadata/CElementInfo.h>

namespace KzXmlLib10Data {

/// A particle of an xs:sequence. True from ElementFromXml means satisfied: an optional member that is absent
/// is.
class QUILLON_EXPORT CElementInfoSeq : public CElementInfo {
public:
    CElementInfoSeq(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfo(name, namespaceUri, propertyIndex) {}
    CElementInfoSeq(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool nillable)
        : CElementInfo(name, namespaceUri, propertyIndex, nillable) {}
    CElementInfoSeq(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool nillable,
                    ItemType itemType, const char16_t* formatOverride,
                    CWhitespaceUtils::WhitespaceRule whitespaceRule,
                    const CPrimitiveRestrictions& restrictions)
        : CElementInfo(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride, whitespaceRule,
                       restrictions) {}

    /// Only all groups validate: throws CKzException.
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;
};

/// A base without leaves.
class QUILLON_EXPORT CElementInfoSeqNonCol : public CElementInfoSeq {
public:
    CElementInfoSeqNonCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoSeq(name, namespaceUri, propertyIndex) {}
};

class QUILLON_EXPORT CElementInfoSeqPrimMnd : public CElementInfoSeq {
public:
    CElementInfoSeqPrimMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                           bool nillable, ItemType itemType, const char16_t* formatOverride,
                           CWhitespaceUtils::WhitespaceRule whitespaceRule,
                           const CPrimitiveRestrictions& restrictions)
        : CElementInfoSeq(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride,
                          whitespaceRule, restrictions) {}
    QUILLON_ELEMENT_OPERATIONS
};

class QUILLON_EXPORT CElementInfoSeqPrimOpt : public CElementInfoSeq {
public:
    CElementInfoSeqPrimOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                           bool nillable, ItemType itemType, const char16_t* formatOverride,
                           CWhitespaceUtils::WhitespaceRule whitespaceRule,
                           const CPrimitiveRestrictions& restrictions)
        : CElementInfoSeq(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride,
                          whitespaceRule, restrictions) {}
    QUILLON_ELEMENT_OPERATIONS
};

class QUILLON_EXPORT CElementInfoSeqEnumMnd : public CElementInfoSeq {
public:
    CElementInfoSeqEnumMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                           bool nillable, EnumToString enumToString, StringToEnum stringToEnum)
        : CElementInfoSeq(name, namespaceUri, propertyIndex, nillable), m_stringToEnum(stringToEnum),
          m_enumToString(enumToString) {}
    QUILLON_ELEMENT_OPERATIONS

private:
    StringToEnum m_stringToEnum;
    EnumToString m_enumToString;
};

class QUILLON_EXPORT CElementInfoSeqEnumOpt : public CElementInfoSeq {
public:
    CElementInfoSeqEnumOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                           bool nillable, EnumToString enumToString, StringToEnum stringToEnum)
        : CElementInfoSeq(name, namespaceUri, propertyIndex, nillable), m_enumToString(enumToString),
          m_stringToEnum(stringToEnum) {}
    QUILLON_ELEMENT_OPERATIONS

private:
    EnumToString m_enumToString;
    StringToEnum m_stringToEnum;
};

/// A mandatory object. The generated class creates it in its constructor; reading only fills it.
class QUILLON_EXPORT CElementInfoSeqClsMnd : public CElementInfoSeq {
public:
    /// `consumeRequired`: a nested group that must take at least one child, since its content is not all
    /// optional.
    CElementInfoSeqClsMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                          XmlElementType elementType, ClassFactory factory, int classId, bool consumeRequired)
        : CElementInfoSeq(name, namespaceUri, propertyIndex), m_elementType(elementType),
          m_consumeRequired(consumeRequired), m_factory(factory), m_classId(classId) {}
    QUILLON_ELEMENT_OPERATIONS
    QUILLON_PSEUDO_ATTRIBUTES

private:
    bool ReadElement(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                     CXmlElement** current, XmlElementType ownerElementType);
    bool ReadGroup(const CXmlSerializationContext& context, CXmlGeneratedClass* object, CXmlElement* parent,
                   CXmlElement** current, XmlElementType ownerElementType);
    bool ReadRequiredGroup(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                           CXmlElement* parent, CXmlElement** current, XmlElementType ownerElementType);

    XmlElementType m_elementType;
    bool m_consumeRequired;
    [[maybe_unused]] ClassFactory m_factory;
    [[maybe_unused]] std::int32_t m_classId;
};

/// An optional object, created by the factory when its element is there.
class QUILLON_EXPORT CElementInfoSeqClsOpt : public CElementInfoSeq {
public:
    CElementInfoSeqClsOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                          XmlElementType elementType, ClassFactory factory, int classId)
        : CElementInfoSeq(name, namespaceUri, propertyIndex), m_elementType(elementType), m_factory(factory),
          m_classId(classId) {}
    QUILLON_ELEMENT_OPERATIONS
    QUILLON_PSEUDO_ATTRIBUTES

private:
    XmlElementType m_elementType;
    ClassFactory m_factory;
    std::int32_t m_classId;
};

class QUILLON_EXPORT CElementInfoSeqAbsClsMnd : public CElementInfoSeq {
public:
    CElementInfoSeqAbsClsMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                             XmlElementType elementType, SubstitutionFactory substitutionFactory)
        : CElementInfoSeq(name, namespaceUri, propertyIndex), m_elementType(elementType),
          m_substitutionFactory(substitutionFactory) {}
    QUILLON_ELEMENT_OPERATIONS
    QUILLON_PSEUDO_ATTRIBUTES

private:
    XmlElementType m_elementType;
    SubstitutionFactory m_substitutionFactory;
};

class QUILLON_EXPORT CElementInfoSeqAbsClsOpt : public CElementInfoSeq {
public:
    CElementInfoSeqAbsClsOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                             XmlElementType elementType, SubstitutionFactory substitutionFactory)
        : CElementInfoSeq(name, namespaceUri, propertyIndex), m_elementType(elementType),
          m_substitutionFactory(substitutionFactory) {}
    QUILLON_ELEMENT_OPERATIONS
    QUILLON_PSEUDO_ATTRIBUTES

private:
    XmlElementType m_elementType;
    SubstitutionFactory m_substitutionFactory;
};

/// A repeated particle. The collection takes the whole run of matching elements by itself.
class QUILLON_EXPORT CElementInfoSeqCol : public CElementInfoSeq {
public:
    CElementInfoSeqCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoSeq(name, namespaceUri, propertyIndex) {}
    QUILLON_ELEMENT_OPERATIONS
};

class QUILLON_EXPORT CElementInfoSeqClsCol : public CElementInfoSeqCol {
public:
    CElementInfoSeqClsCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                          XmlElementType elementType)
        : CElementInfoSeqCol(name, namespaceUri, propertyIndex), m_elementType(elementType) {}
    QUILLON_PSEUDO_ATTRIBUTES

private:
    XmlElementType m_elementType;
};

class QUILLON_EXPORT CElementInfoSeqAbsClsCol : public CElementInfoSeqCol {
public:
    CElementInfoSeqAbsClsCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                             XmlElementType elementType)
        : CElementInfoSeqCol(name, namespaceUri, propertyIndex), m_elementType(elementType) {}
    QUILLON_PSEUDO_ATTRIBUTES

private:
    XmlElementType m_elementType;
};

class QUILLON_EXPORT CElementInfoSeqPrimCol : public CElementInfoSeqCol {
public:
    CElementInfoSeqPrimCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoSeqCol(name, namespaceUri, propertyIndex) {}
};

class QUILLON_EXPORT CElementInfoSeqEnumCol : public CElementInfoSeqCol {
public:
    CElementInfoSeqEnumCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoSeqCol(name, namespaceUri, propertyIndex) {}
};

class QUILLON_EXPORT CElementInfoSeqUntpdCol : public CElementInfoSeqCol {
public:
    CElementInfoSeqUntpdCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoSeqCol(name, namespaceUri, propertyIndex) {}
    QUILLON_ELEMENT_READING
};

/// A mandatory generic element, which the generated class creates; reading only fills it.
class QUILLON_EXPORT CElementInfoSeqUntpdMnd : public CElementInfoSeq {
public:
    CElementInfoSeqUntpdMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                            const char16_t* namespaceConstraint, const char16_t* targetNamespace)
        : CElementInfoSeq(name, namespaceUri, propertyIndex), m_namespaceConstraint(namespaceConstraint),
          m_targetNamespace(targetNamespace) {}
    QUILLON_ELEMENT_OPERATIONS

private:
    [[maybe_unused]] std::u16string m_namespaceConstraint;
    [[maybe_unused]] std::u16string m_targetNamespace;
};

class QUILLON_EXPORT CElementInfoSeqUntpdOpt : public CElementInfoSeq {
public:
    CElementInfoSeqUntpdOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                            const char16_t* namespaceConstraint, const char16_t* targetNamespace)
        : CElementInfoSeq(name, namespaceUri, propertyIndex), m_namespaceConstraint(namespaceConstraint),
          m_targetNamespace(targetNamespace) {}
    QUILLON_ELEMENT_OPERATIONS

private:
    std::u16string m_namespaceConstraint;
    std::u16string m_targetNamespace;
};

} // namespace KzXmlLib10Data
