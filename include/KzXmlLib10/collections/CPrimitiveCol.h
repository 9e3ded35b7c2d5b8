#pragma once

#include <KzXmlLib10/collections/CItemVector.h>
#include <KzXmlLib10/collections/CXmlTypeCollection.h>
#include <KzXmlLib10/object/CInstanceMonitor.h>

#include <string>

namespace KzXmlLib10 {

/// What the collections of primitive values do: Ci4Col and its like hold the values of a repeated element.
///
///     Ci4Col scores(u"score", u"urn:s", 0, -1, u"", -1, -1, u"0", u"100", u"", u"", -1,
///                   CWhitespaceUtils::WhitespaceRule_Collapse, u"");
///     scores.Add(7);
///     for (const int score : scores) ...
///     // written as <score>7</score>
///
/// `Collection` is the class itself, `T` the type of its values. The values stand in a vector: access is
/// constant time, removal and insertion move what is behind, except that clearing is linear. They are checked
/// against the facets when they are added, from a document as from code, and not again when they are written.
///
/// Deliberate: listeners hear of an addition or removal before its index is looked at, and the end of every
/// removal tells them the index 0. Formats are heeded by Cr4Col, Cr8Col and CdecimalCol alone.
template <class Collection, class T>
class QUILLON_EXPORT CPrimitiveCol : public CXmlTypeCollection, public CInstanceMonitor {
public:
    /// Names, bounds on the count, the facets of CPrimitiveRestrictions, the rule for reading and a format
    /// for writing. Only the format may be null (CKzInvalidParamException).
    CPrimitiveCol(const char16_t* elementName, const char16_t* elementNamespace, int minOccurs, int maxOccurs,
                  const char16_t* pattern, int minLength, int maxLength, const char16_t* minInclusive,
                  const char16_t* maxInclusive, const char16_t* minExclusive, const char16_t* maxExclusive,
                  int length, CWhitespaceUtils::WhitespaceRule whitespaceRule,
                  const char16_t* formatOverride);
    CPrimitiveCol(const CPrimitiveCol& other);
    CPrimitiveCol& operator=(const CPrimitiveCol& other);
    /// Without events.
    ~CPrimitiveCol() override;

    /// Appends a value. Throws as the facet check of its kind does.
    void Add(T value);
    /// Inserts a value in front of the one at the index; an index equal to the count appends. Any other index
    /// throws CKzInvalidParamException. Listeners receive a pointer to a T.
    void AddAt(int index, T value);
    /// Throws CKzInvalidParamException for an index below 0 or not below the count.
    T Item(int index) const;

    int GetCount() const override;
    void Clear() override;
    void Remove(int index) override;

    /// The iterators of the vector. What is changed through them is not checked, and has no events.
    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

protected:
    void AddFromString(std::u16string text) override;

    using CXmlTypeCollection::ToXml_Int;
    /// Writes one element for each value. Throws CKzValidationException first if the count is out of bounds.
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                   const CXmlSerializationContext& context, bool isOptional) const override;

    CItemVector<T> m_items;
};

} // namespace KzXmlLib10
