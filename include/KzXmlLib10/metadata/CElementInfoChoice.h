#pragma once

#include <KzXmlLib10/metadata/CElementInfo.h>

namespace KzXmlLib10Data {

/// A member of an xs:choice. True from ElementFromXml means taken: a miss gives false, also of an optional
/// member. Nothing is skipped, and the context's flags play no part in the members; the walk of the choice
/// reads them.
class QUILLON_EXPORT CElementInfoChoice : public CElementInfo {
public:
    CElementInfoChoice(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfo(name, namespaceUri, propertyIndex) {}
    CElementInfoChoice(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool nillable)
        : CElementInfo(name, namespaceUri, propertyIndex, nillable) {}
    CElementInfoChoice(const char16_t* name, const char16_t* namespaceUri, int propertyIndex, bool nillable,
                       ItemType itemType, const char16_t* formatOverride,
                       CWhitespaceUtils::WhitespaceRule whitespaceRule,
                       const CPrimitiveRestrictions& restrictions)
        : CElementInfo(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride, whitespaceRule,
                       restrictions) {}

    /// Only all groups validate: throws CKzException.
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;
};

class QUILLON_EXPORT CElementInfoChoicePrimOpt : public CElementInfoChoice {
public:
    CElementInfoChoicePrimOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                              bool nillable, ItemType itemType, const char16_t* formatOverride,
                              CWhitespaceUtils::WhitespaceRule whitespaceRule,
                              const CPrimitiveRestrictions& restrictions)
        : CElementInfoChoice(name, namespaceUri, propertyIndex, nillable, itemType, formatOverride,
                             whitespaceRule, restrictions) {}
    QUILLON_ELEMENT_OPERATIONS
};

class QUILLON_EXPORT CElementInfoChoiceEnumOpt : public CElementInfoChoice {
public:
    CElementInfoChoiceEnumOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                              bool nillable, EnumToString enumToString, StringToEnum stringToEnum)
        : CElementInfoChoice(name, namespaceUri, propertyIndex, nillable), m_enumToString(enumToString),
          m_stringToEnum(stringToEnum) {}
    QUILLON_ELEMENT_OPERATIONS

private:
    EnumToString m_enumToString;
    StringToEnum m_stringToEnum;
};

/// Stored before it is read, so that whatever runs during the reading sees the choice.
class QUILLON_EXPORT CElementInfoChoiceClsOpt : public CElementInfoChoice {
public:
    CElementInfoChoiceClsOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                             XmlElementType elementType, ClassFactory factory, int classId)
        : CElementInfoChoice(name, namespaceUri, propertyIndex), m_elementType(elementType),
          m_factory(factory), m_classId(classId) {}
    QUILLON_ELEMENT_OPERATIONS
    QUILLON_PSEUDO_ATTRIBUTES

private:
    XmlElementType m_elementType;
    ClassFactory m_factory;
    std::int32_t m_classId;
};

class QUILLON_EXPORT CElementInfoChoiceAbsClsOpt : public CElementInfoChoice {
public:
    CElementInfoChoiceAbsClsOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                                XmlElementType elementType, SubstitutionFactory substitutionFactory)
        : CElementInfoChoice(name, namespaceUri, propertyIndex), m_elementType(elementType),
          m_substitutionFactory(substitutionFactory) {}
    QUILLON_ELEMENT_OPERATIONS
    QUILLON_PSEUDO_ATTRIBUTES

private:
    XmlElementType m_elementType;
    SubstitutionFactory m_substitutionFactory;
};

class QUILLON_EXPORT CElementInfoChoiceUntpdOpt : public CElementInfoChoice {
public:
    CElementInfoChoiceUntpdOpt(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                               const char16_t* namespaceConstraint, const char16_t* targetNamespace)
        : CElementInfoChoice(name, namespaceUri, propertyIndex), m_namespaceConstraint(namespaceConstraint),
          m_targetNamespace(targetNamespace) {}
    QUILLON_ELEMENT_OPERATIONS

private:
    std::u16string m_namespaceConstraint;
    std::u16string m_targetNamespace;
};

/// A repeated member. Its count is not looked at on writing.
class QUILLON_EXPORT CElementInfoChoiceCol : public CElementInfoChoice {
public:
    CElementInfoChoiceCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoChoice(name, namespaceUri, propertyIndex) {}
    QUILLON_ELEMENT_OPERATIONS

protected:
    /// Ends a read that came as far as `result`.
    static bool FinishRun(const CXmlSerializationContext& context, const CXmlCollectionBase& collection,
                          CXmlElement* result, CXmlElement** current, XmlElementType ownerElementType);
};

class QUILLON_EXPORT CElementInfoChoiceClsCol : public CElementInfoChoiceCol {
public:
    CElementInfoChoiceClsCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                             XmlElementType elementType)
        : CElementInfoChoiceCol(name, namespaceUri, propertyIndex), m_elementType(elementType) {}
    QUILLON_PSEUDO_ATTRIBUTES

private:
    XmlElementType m_elementType;
};

class QUILLON_EXPORT CElementInfoChoiceAbsClsCol : public CElementInfoChoiceCol {
public:
    CElementInfoChoiceAbsClsCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                                XmlElementType elementType)
        : CElementInfoChoiceCol(name, namespaceUri, propertyIndex), m_elementType(elementType) {}
    QUILLON_PSEUDO_ATTRIBUTES

private:
    XmlElementType m_elementType;
};

class QUILLON_EXPORT CElementInfoChoicePrimCol : public CElementInfoChoiceCol {
public:
    CElementInfoChoicePrimCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoChoiceCol(name, namespaceUri, propertyIndex) {}
};

class QUILLON_EXPORT CElementInfoChoiceEnumCol : public CElementInfoChoiceCol {
public:
    CElementInfoChoiceEnumCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoChoiceCol(name, namespaceUri, propertyIndex) {}
};

class QUILLON_EXPORT CElementInfoChoiceUntpdCol : public CElementInfoChoiceCol {
public:
    CElementInfoChoiceUntpdCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoChoiceCol(name, namespaceUri, propertyIndex) {}
    QUILLON_ELEMENT_READING
};

} // namespace KzXmlLib10Data
