#pragma once

#include <KzXmlLib10/metadata/CElementInfo.h>

namespace KzXmlLib10Data {

/// A particle of an xs:all group. True from ElementFromXml means that the current element was taken; whether
/// a miss is acceptable is asked through Validate once all children were offered.
class QUILLON_EXPORT CElementInfoAll : public CElementInfo {
protected:
    CElementInfoAll(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfo(name, namespaceUri, propertyIndex) {}
    CElementInfoAll(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool nillable)
        : CElementInfo(name, namespaceUri, propertyIndex, nillable) {}
    CElementInfoAll(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool nillable,
                    ItemType itemType, const char16_t* formatOverride,
                    CWhitespaceUtils::WhitespaceRule whitespaceRule,
                    const CPrimitiveRestrictions& restrictions)
        : CElementInfo(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride, whitespaceRule,
                       restrictions) {}

    /// What Validate of a mandatory member answers. Throws CKzValidationException for a miss in a class with
    /// a tag of its own.
    bool RequireFound(bool found, bool isElement) const;
};

/// A base without leaves.
class QUILLON_EXPORT CElementInfoAllNonCol : public CElementInfoAll {
public:
    CElementInfoAllNonCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoAll(name, namespaceUri, propertyIndex) {}
};

class QUILLON_EXPORT CElementInfoAllPrimMnd : public CElementInfoAll {
public:
    CElementInfoAllPrimMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                           bool nillable, ItemType itemType, const char16_t* formatOverride,
                           CWhitespaceUtils::WhitespaceRule whitespaceRule,
                           const CPrimitiveRestrictions& restrictions)
        : CElementInfoAll(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride,
                          whitespaceRule, restrictions) {}
    QUILLON_ELEMENT_OPERATIONS
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;
};

class QUILLON_EXPORT CElementInfoAllPrimOpt : public CElementInfoAll {
public:
    CElementInfoAllPrimOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                           bool nillable, ItemType itemType, const char16_t* formatOverride,
                           CWhitespaceUtils::WhitespaceRule whitespaceRule,
                           const CPrimitiveRestrictions& restrictions)
        : CElementInfoAll(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride,
                          whitespaceRule, restrictions) {}
    QUILLON_ELEMENT_OPERATIONS
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;
};

class QUILLON_EXPORT CElementInfoAllEnumMnd : public CElementInfoAll {
public:
    CElementInfoAllEnumMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                           bool nillable, EnumToString enumToString, StringToEnum stringToEnum)
        : CElementInfoAll(name, namespaceUri, propertyIndex, nillable), m_enumToString(enumToString),
          m_stringToEnum(stringToEnum) {}
    QUILLON_ELEMENT_OPERATIONS
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;

private:
    EnumToString m_enumToString;
    StringToEnum m_stringToEnum;
};

class QUILLON_EXPORT CElementInfoAllEnumOpt : public CElementInfoAll {
public:
    CElementInfoAllEnumOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                           bool nillable, EnumToString enumToString, StringToEnum stringToEnum)
        : CElementInfoAll(name, namespaceUri, propertyIndex, nillable), m_enumToString(enumToString),
          m_stringToEnum(stringToEnum) {}
    QUILLON_ELEMENT_OPERATIONS
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;

private:
    EnumToString m_enumToString;
    StringToEnum m_stringToEnum;
};

/// A mandatory object, which the generated class creates; reading only fills it.
class QUILLON_EXPORT CElementInfoAllClsMnd : public CElementInfoAll {
public:
    CElementInfoAllClsMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                          XmlElementType elementType, ClassFactory factory, int classId, bool consumeRequired)
        : CElementInfoAll(name, namespaceUri, propertyIndex), m_elementType(elementType), m_factory(factory),
          m_classId(classId), m_consumeRequired(consumeRequired) {}
    QUILLON_ELEMENT_OPERATIONS
    QUILLON_PSEUDO_ATTRIBUTES
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;

private:
    XmlElementType m_elementType;
    [[maybe_unused]] ClassFactory m_factory;
    [[maybe_unused]] std::int32_t m_classId;
    bool m_consumeRequired;
};

class QUILLON_EXPORT CElementInfoAllClsOpt : public CElementInfoAll {
public:
    CElementInfoAllClsOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                          XmlElementType elementType, ClassFactory factory, int classId)
        : CElementInfoAll(name, namespaceUri, propertyIndex), m_elementType(elementType), m_factory(factory),
          m_classId(classId) {}
    QUILLON_ELEMENT_OPERATIONS
    QUILLON_PSEUDO_ATTRIBUTES
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;

private:
    XmlElementType m_elementType;
    ClassFactory m_factory;
    std::int32_t m_classId;
};

/// Deliberate: can be written, but not read; ElementFromXml always throws CKzException.
class QUILLON_EXPORT CElementInfoAllAbsClsMnd : public CElementInfoAll {
public:
    CElementInfoAllAbsClsMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                             XmlElementType elementType, SubstitutionFactory substitutionFactory, int classId)
        : CElementInfoAll(name, namespaceUri, propertyIndex), m_elementType(elementType),
          m_substitutionFactory(substitutionFactory), m_classId(classId) {}
    QUILLON_ELEMENT_OPERATIONS
    QUILLON_PSEUDO_ATTRIBUTES
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;

private:
    XmlElementType m_elementType;
    [[maybe_unused]] SubstitutionFactory m_substitutionFactory;
    [[maybe_unused]] std::int32_t m_classId;
};

/// Deliberate: can be written, but not read; ElementFromXml always throws CKzException.
class QUILLON_EXPORT CElementInfoAllAbsClsOpt : public CElementInfoAll {
public:
    CElementInfoAllAbsClsOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                             XmlElementType elementType, SubstitutionFactory substitutionFactory)
        : CElementInfoAll(name, namespaceUri, propertyIndex), m_elementType(elementType),
          m_substitutionFactory(substitutionFactory) {}
    QUILLON_ELEMENT_OPERATIONS
    QUILLON_PSEUDO_ATTRIBUTES
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;

private:
    XmlElementType m_elementType;
    [[maybe_unused]] SubstitutionFactory m_substitutionFactory;
};

class QUILLON_EXPORT CElementInfoAllUntpdMnd : public CElementInfoAll {
public:
    CElementInfoAllUntpdMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                            const char16_t* namespaceConstraint, const char16_t* targetNamespace)
        : CElementInfoAll(name, namespaceUri, propertyIndex), m_namespaceConstraint(namespaceConstraint),
          m_targetNamespace(targetNamespace) {}
    QUILLON_ELEMENT_OPERATIONS
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;

private:
    [[maybe_unused]] std::u16string m_namespaceConstraint;
    [[maybe_unused]] std::u16string m_targetNamespace;
};

class QUILLON_EXPORT CElementInfoAllUntpdOpt : public CElementInfoAll {
public:
    CElementInfoAllUntpdOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                            const char16_t* namespaceConstraint, const char16_t* targetNamespace)
        : CElementInfoAll(name, namespaceUri, propertyIndex), m_namespaceConstraint(namespaceConstraint),
          m_targetNamespace(targetNamespace) {}
    QUILLON_ELEMENT_OPERATIONS
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;

private:
    std::u16string m_namespaceConstraint;
    std::u16string m_targetNamespace;
};

/// A repeated particle, which an all group does not support: Validate stays abstract, here and below.
class QUILLON_EXPORT CElementInfoAllCol : public CElementInfoAll {
public:
    CElementInfoAllCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoAll(name, namespaceUri, propertyIndex) {}
    QUILLON_ELEMENT_OPERATIONS
};

class QUILLON_EXPORT CElementInfoAllClsCol : public CElementInfoAllCol {
public:
    CElementInfoAllClsCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                          XmlElementType elementType)
        : CElementInfoAllCol(name, namespaceUri, propertyIndex), m_elementType(elementType) {}
    QUILLON_PSEUDO_ATTRIBUTES

private:
    XmlElementType m_elementType;
};

class QUILLON_EXPORT CElementInfoAllAbsClsCol : public CElementInfoAllCol {
public:
    CElementInfoAllAbsClsCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                             XmlElementType elementType)
        : CElementInfoAllCol(name, namespaceUri, propertyIndex), m_elementType(elementType) {}
    QUILLON_PSEUDO_ATTRIBUTES

private:
    XmlElementType m_elementType;
};

class QUILLON_EXPORT CElementInfoAllPrimCol : public CElementInfoAllCol {
public:
    CElementInfoAllPrimCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoAllCol(name, namespaceUri, propertyIndex) {}
};

class QUILLON_EXPORT CElementInfoAllUntpdCol : public CElementInfoAllCol {
public:
    CElementInfoAllUntpdCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoAllCol(name, namespaceUri, propertyIndex) {}
};

/// Deliberate: not under CElementInfoAllCol, and wholly abstract.
class QUILLON_EXPORT CElementInfoAllEnumCol : public CElementInfoAll {
public:
    CElementInfoAllEnumCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoAll(name, namespaceUri, propertyIndex) {}
};

} // namespace KzXmlLib10Data
