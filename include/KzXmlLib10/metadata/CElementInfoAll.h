#pragma once

#include <KzXmlLib10/metadata/ElementKinds.h>

namespace KzXmlLib10Data {

/// A particle of an xs:all group. True from ElementFromXml means that the current element was taken; whether
/// a miss is acceptable is asked through Validate once all children were offered.
class QUILLON_EXPORT CElementInfoAll : public CElementInfo {
protected:
    using CElementInfo::CElementInfo;

    /// What Validate of a mandatory member answers. Throws CKzValidationException for a miss in a class with
    /// a tag of its own.
    bool RequireFound(bool found, bool isElement) const;
};

/// The group of the leaves that must be found.
class QUILLON_EXPORT CElementInfoAllMandatory : public CElementInfoAll {
public:
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;

protected:
    using CElementInfoAll::CElementInfoAll;
};

/// The group of the leaves that may be missing.
class QUILLON_EXPORT CElementInfoAllOptional : public CElementInfoAll {
public:
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;

protected:
    using CElementInfoAll::CElementInfoAll;
};

/// A base without leaves.
class QUILLON_EXPORT CElementInfoAllNonCol : public CElementInfoAll {
public:
    CElementInfoAllNonCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoAll(name, namespaceUri, propertyIndex) {}
};

/// A primitive value that must be there.
QUILLON_LEAF(CElementInfoAllPrimMnd, PrimKind, CElementInfoAllMandatory);
/// A primitive value that may be absent.
QUILLON_LEAF(CElementInfoAllPrimOpt, PrimKind, CElementInfoAllOptional);
/// An enumerator that must be there.
QUILLON_LEAF(CElementInfoAllEnumMnd, EnumKind, CElementInfoAllMandatory);
/// An enumerator that may be absent.
QUILLON_LEAF(CElementInfoAllEnumOpt, EnumKind, CElementInfoAllOptional);

/// A mandatory object, which the generated class creates; reading only fills it.
class QUILLON_EXPORT CElementInfoAllClsMnd : public ObjectKind<CElementInfoAll> {
public:
    CElementInfoAllClsMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                          XmlElementType elementType, ClassFactory factory, int classId, bool consumeRequired)
        : ObjectKind(name, namespaceUri, propertyIndex, elementType), m_factory(factory), m_classId(classId),
          m_consumeRequired(consumeRequired) {}
    QUILLON_ELEMENT_READING
    bool Validate(const CXmlSerializationContext& context, const CXmlGeneratedClass* object, bool found,
                  bool isElement) const override;

private:
    [[maybe_unused]] ClassFactory m_factory;
    [[maybe_unused]] std::int32_t m_classId;
    bool m_consumeRequired;
};

/// An object of one class that may be absent.
QUILLON_LEAF(CElementInfoAllClsOpt, ClsKind, CElementInfoAllOptional);

/// Deliberate: can be written, but not read; ElementFromXml always throws CKzException.
class QUILLON_EXPORT CElementInfoAllAbsClsMnd : public AbsClsKind<CElementInfoAllMandatory> {
public:
    CElementInfoAllAbsClsMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                             XmlElementType elementType, SubstitutionFactory substitutionFactory, int classId)
        : AbsClsKind(name, namespaceUri, propertyIndex, elementType, substitutionFactory),
          m_classId(classId) {}
    QUILLON_ELEMENT_READING

private:
    [[maybe_unused]] std::int32_t m_classId;
};

/// Deliberate: can be written, but not read; ElementFromXml always throws CKzException.
QUILLON_LEAF(CElementInfoAllAbsClsOpt, AbsClsKind, CElementInfoAllOptional);
/// A generic element that must be there.
QUILLON_LEAF(CElementInfoAllUntpdMnd, UntpdKind, CElementInfoAllMandatory);
/// A generic element that may be absent.
QUILLON_LEAF(CElementInfoAllUntpdOpt, UntpdKind, CElementInfoAllOptional);

/// A repeated particle, which an all group does not support: Validate stays abstract, here and below.
class QUILLON_EXPORT CElementInfoAllCol : public CElementInfoAll {
public:
    CElementInfoAllCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoAll(name, namespaceUri, propertyIndex) {}
    QUILLON_ELEMENT_OPERATIONS
};

/// Repeated objects of one class.
class QUILLON_EXPORT CElementInfoAllClsCol : public ObjectsKind<CElementInfoAllCol> {
public:
    using ObjectsKind::ObjectsKind;
};

/// Repeated objects of classes that their elements choose.
class QUILLON_EXPORT CElementInfoAllAbsClsCol : public ObjectsKind<CElementInfoAllCol> {
public:
    using ObjectsKind::ObjectsKind;
};

/// Repeated primitive values.
class QUILLON_EXPORT CElementInfoAllPrimCol : public CElementInfoAllCol {
public:
    using CElementInfoAllCol::CElementInfoAllCol;
};

/// Repeated generic elements.
class QUILLON_EXPORT CElementInfoAllUntpdCol : public CElementInfoAllCol {
public:
    using CElementInfoAllCol::CElementInfoAllCol;
};

/// Deliberate: not under CElementInfoAllCol, and wholly abstract.
class QUILLON_EXPORT CElementInfoAllEnumCol : public CElementInfoAll {
public:
    CElementInfoAllEnumCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoAll(name, namespaceUri, propertyIndex) {}
};

} // namespace KzXmlLib10Data
