#pragma once

#include <KzXmlLib10/collections/CItemVector.h>
#include <KzXmlLib10/collections/CXmlTypeCollection.h>
#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/values/CDateTime.h>

#include <string>

namespace KzXmlLib10 {

/// What the collections of dates and times have in common.
///
///     void AddToday(CdatetimeBaseCol& days) { days.Add(CDateTime(2001, 5, 12)); }
///
/// Each takes values of one DTType alone. The values stand in a vector: access is constant time, removal and
/// insertion move what is behind, except that clearing is linear. They are checked against the facets when
/// they are added, and not again when they are written.
///
/// Deliberate: unlike in the collections of numbers, kind and facets are checked before listeners hear of an
/// addition; its index is checked behind that. Listeners hear of a removal before its index is looked at, and
/// its end tells them the index 0. Formats have no effect.
class QUILLON_EXPORT CdatetimeBaseCol : public CXmlTypeCollection {
public:
    CdatetimeBaseCol(const CdatetimeBaseCol& other);
    CdatetimeBaseCol& operator=(const CdatetimeBaseCol& other);
    /// Without events.
    ~CdatetimeBaseCol() override;

    int GetCount() const override;
    void Clear() override;
    void Remove(int index) override;

    /// The iterators of the vector. What is changed through them is not checked, and has no events.
    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

    /// Appends a value. Throws CKzInvalidParamException for a value of another DTType, and as the facet check
    /// of the kind does.
    virtual void Add(const CDateTime& value);
    /// Inserts a value in front of the one at the index; an index equal to the count appends. Any other index
    /// throws CKzInvalidParamException. Listeners receive a pointer to a CDateTime.
    virtual void AddAt(int index, const CDateTime& value) = 0;
    /// Throws CKzInvalidParamException for an index below 0 or not below the count.
    virtual CDateTime Item(int index) const;

protected:
    virtual std::u16string ItemToString(const CDateTime& value) const = 0;

    /// See CXmlTypeCollection.
    CdatetimeBaseCol(ItemType itemType, const char16_t* elementName, const char16_t* elementNamespace,
                     int minOccurs, int maxOccurs, const char16_t* pattern, int minLength, int maxLength,
                     const char16_t* minInclusive, const char16_t* maxInclusive, const char16_t* minExclusive,
                     const char16_t* maxExclusive, int length,
                     CWhitespaceUtils::WhitespaceRule whitespaceRule, const char16_t* formatOverride);

    /// Inserts a value that has passed its checks.
    void BaseAddAt(int index, const CDateTime& value);

    using CXmlTypeCollection::ToXml_Int;
    /// Writes one element for each value. Throws CKzValidationException first if the count is out of bounds.
    ///
    /// Deliberate: the writer is told the type datetime by all five classes.
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                   const CXmlSerializationContext& context, bool isOptional) const override;

    CItemVector<CDateTime> m_items;
};

/// What tells the five classes apart, written once. `Collection` is the class itself.
template <class Collection>
class QUILLON_EXPORT CDateTimeKindCol : public CdatetimeBaseCol, public CInstanceMonitor {
public:
    /// Names, bounds on the count, the facets of CPrimitiveRestrictions, the rule for reading and a format
    /// without effect. Only the format may be null (CKzInvalidParamException).
    CDateTimeKindCol(const char16_t* elementName, const char16_t* elementNamespace, int minOccurs,
                     int maxOccurs, const char16_t* pattern, int minLength, int maxLength,
                     const char16_t* minInclusive, const char16_t* maxInclusive, const char16_t* minExclusive,
                     const char16_t* maxExclusive, int length,
                     CWhitespaceUtils::WhitespaceRule whitespaceRule, const char16_t* formatOverride);
    CDateTimeKindCol(const CDateTimeKindCol& other);
    CDateTimeKindCol& operator=(const CDateTimeKindCol& other);
    ~CDateTimeKindCol() override;

    void AddAt(int index, const CDateTime& value) override;

protected:
    /// Deliberate: the form of the text decides on the DTType, which may be one that is refused.
    void AddFromString(std::u16string text) override;
    std::u16string ItemToString(const CDateTime& value) const override;
};

class QUILLON_EXPORT CdatetimeCol : public CDateTimeKindCol<CdatetimeCol> {
public:
    using CDateTimeKindCol::CDateTimeKindCol;
};

class QUILLON_EXPORT CdateCol : public CDateTimeKindCol<CdateCol> {
public:
    using CDateTimeKindCol::CDateTimeKindCol;
};

class QUILLON_EXPORT CtimeCol : public CDateTimeKindCol<CtimeCol> {
public:
    using CDateTimeKindCol::CDateTimeKindCol;
};

class QUILLON_EXPORT CyearMonthCol : public CDateTimeKindCol<CyearMonthCol> {
public:
    using CDateTimeKindCol::CDateTimeKindCol;
};

class QUILLON_EXPORT CmonthDayCol : public CDateTimeKindCol<CmonthDayCol> {
public:
    using CDateTimeKindCol::CDateTimeKindCol;
};

extern template class CDateTimeKindCol<CdatetimeCol>;
extern template class CDateTimeKindCol<CdateCol>;
extern template class CDateTimeKindCol<CtimeCol>;
extern template class CDateTimeKindCol<CyearMonthCol>;
extern template class CDateTimeKindCol<CmonthDayCol>;

} // namespace KzXmlLib10
