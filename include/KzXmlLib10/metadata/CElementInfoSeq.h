#pragma once

#include <KzXmlLib10/metadata/ElementKinds.h>

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

/// A primitive value that must be there.
QUILLON_LEAF(CElementInfoSeqPrimMnd, PrimKind, CElementInfoSeq);
/// A primitive value that may be absent.
QUILLON_LEAF(CElementInfoSeqPrimOpt, PrimKind, CElementInfoSeq);

/// Written out, since its fields stand in an order of their own.
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

/// An enumerator that may be absent.
QUILLON_LEAF(CElementInfoSeqEnumOpt, EnumKind, CElementInfoSeq);

/// A mandatory object. The generated class creates it in its constructor; reading only fills it.
class QUILLON_EXPORT CElementInfoSeqClsMnd : public ObjectKind<CElementInfoSeq> {
public:
    /// `consumeRequired`: a nested group that must take at least one child, since its content is not all
    /// optional.
    CElementInfoSeqClsMnd(const char16_t* name, const char16_t* namespaceUri, int propertyIndex,
                          XmlElementType elementType, ClassFactory factory, int classId, bool consumeRequired)
        : ObjectKind(name, namespaceUri, propertyIndex, elementType), m_consumeRequired(consumeRequired),
          m_factory(factory), m_classId(classId) {}
    QUILLON_ELEMENT_READING

private:
    bool ReadElement(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                     CXmlElement** current, XmlElementType ownerElementType);
    bool ReadGroup(const CXmlSerializationContext& context, CXmlGeneratedClass* object, CXmlElement* parent,
                   CXmlElement** current, XmlElementType ownerElementType);
    bool ReadRequiredGroup(const CXmlSerializationContext& context, CXmlGeneratedClass* object,
                           CXmlElement* parent, CXmlElement** current, XmlElementType ownerElementType);

    bool m_consumeRequired;
    [[maybe_unused]] ClassFactory m_factory;
    [[maybe_unused]] std::int32_t m_classId;
};

/// An object of one class that may be absent.
QUILLON_LEAF(CElementInfoSeqClsOpt, ClsKind, CElementInfoSeq);
/// An object, of a class that its element chooses, that must be there.
QUILLON_LEAF(CElementInfoSeqAbsClsMnd, AbsClsKind, CElementInfoSeq);
/// An object, of a class that its element chooses, that may be absent.
QUILLON_LEAF(CElementInfoSeqAbsClsOpt, AbsClsKind, CElementInfoSeq);

/// A mandatory generic element, which the generated class creates; reading only fills it.
QUILLON_LEAF(CElementInfoSeqUntpdMnd, UntpdKind, CElementInfoSeq);
/// A generic element that may be absent.
QUILLON_LEAF(CElementInfoSeqUntpdOpt, UntpdKind, CElementInfoSeq);

/// A repeated particle. The collection takes the whole run of matching elements by itself.
class QUILLON_EXPORT CElementInfoSeqCol : public CElementInfoSeq {
public:
    CElementInfoSeqCol(const char16_t* name, const char16_t* namespaceUri, int propertyIndex)
        : CElementInfoSeq(name, namespaceUri, propertyIndex) {}
    QUILLON_ELEMENT_OPERATIONS
};

/// Repeated objects of one class.
class QUILLON_EXPORT CElementInfoSeqClsCol : public ObjectsKind<CElementInfoSeqCol> {
public:
    using ObjectsKind::ObjectsKind;
};

/// Repeated objects of classes that their elements choose.
class QUILLON_EXPORT CElementInfoSeqAbsClsCol : public ObjectsKind<CElementInfoSeqCol> {
public:
    using ObjectsKind::ObjectsKind;
};

/// Repeated primitive values.
class QUILLON_EXPORT CElementInfoSeqPrimCol : public CElementInfoSeqCol {
public:
    using CElementInfoSeqCol::CElementInfoSeqCol;
};

/// Repeated enumerators.
class QUILLON_EXPORT CElementInfoSeqEnumCol : public CElementInfoSeqCol {
public:
    using CElementInfoSeqCol::CElementInfoSeqCol;
};

/// Repeated generic elements.
class QUILLON_EXPORT CElementInfoSeqUntpdCol : public CElementInfoSeqCol {
public:
    using CElementInfoSeqCol::CElementInfoSeqCol;
    QUILLON_ELEMENT_READING
};

} // namespace KzXmlLib10Data
