#pragma once

#include <KzXmlLib10/metadata/ElementKinds.h>

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

/// A primitive value as a member of a choice.
QUILLON_LEAF(CElementInfoChoicePrimOpt, PrimKind, CElementInfoChoice);
/// An enumerator as a member of a choice.
QUILLON_LEAF(CElementInfoChoiceEnumOpt, EnumKind, CElementInfoChoice);

/// Stored before it is read, so that whatever runs during the reading sees the choice.
class QUILLON_EXPORT CElementInfoChoiceClsOpt : public ClsKind<CElementInfoChoice> {
public:
    using ClsKind::ClsKind;
    QUILLON_ELEMENT_OPERATIONS
};

/// An object, of a class that its element chooses, as a member of a choice.
QUILLON_LEAF(CElementInfoChoiceAbsClsOpt, AbsClsKind, CElementInfoChoice);
/// A generic element as a member of a choice.
QUILLON_LEAF(CElementInfoChoiceUntpdOpt, UntpdKind, CElementInfoChoice);

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

/// Repeated objects of one class.
class QUILLON_EXPORT CElementInfoChoiceClsCol : public ObjectsKind<CElementInfoChoiceCol> {
public:
    using ObjectsKind::ObjectsKind;
};

/// Repeated objects of classes that their elements choose.
class QUILLON_EXPORT CElementInfoChoiceAbsClsCol : public ObjectsKind<CElementInfoChoiceCol> {
public:
    using ObjectsKind::ObjectsKind;
};

/// Repeated primitive values.
class QUILLON_EXPORT CElementInfoChoicePrimCol : public CElementInfoChoiceCol {
public:
    using CElementInfoChoiceCol::CElementInfoChoiceCol;
};

/// Repeated enumerators.
class QUILLON_EXPORT CElementInfoChoiceEnumCol : public CElementInfoChoiceCol {
public:
    using CElementInfoChoiceCol::CElementInfoChoiceCol;
};

/// Repeated generic elements.
class QUILLON_EXPORT CElementInfoChoiceUntpdCol : public CElementInfoChoiceCol {
public:
    using CElementInfoChoiceCol::CElementInfoChoiceCol;
    QUILLON_ELEMENT_READING
};

} // namespace KzXmlLib10Data
