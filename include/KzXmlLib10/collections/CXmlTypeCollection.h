#pragma once

#include <KzXmlLib10/collections/CXmlCollectionBase.h>
#include <KzXmlLib10/conversions/CPrimitiveRestrictions.h>
#include <KzXmlLib10/conversions/CWhitespaceUtils.h>
#include <KzXmlLib10/object/ItemType.h>

namespace KzXmlLib10 {

/// The base of collections of primitive values, such as Ci4Col: what the values have in common, and reading.
///
/// Every value read goes through AddFromString, and so through the same events and facet checks as one added
/// by code.
class QUILLON_EXPORT CXmlTypeCollection : public CXmlCollectionBase {
public:
    CXmlTypeCollection(const CXmlTypeCollection& other);
    CXmlTypeCollection& operator=(const CXmlTypeCollection& other);
    ~CXmlTypeCollection() override;

protected:
    /// The facets from `pattern` to `length` are those of CPrimitiveRestrictions. `formatOverride` is a
    /// printf format for writing an item; null and empty mean the usual text.
    CXmlTypeCollection(ItemType itemType, const char16_t* elementName, const char16_t* elementNamespace,
                       int minOccurs, int maxOccurs, const char16_t* pattern, int minLength, int maxLength,
                       const char16_t* minInclusive, const char16_t* maxInclusive,
                       const char16_t* minExclusive, const char16_t* maxExclusive, int length,
                       CWhitespaceUtils::WhitespaceRule whitespaceRule, const char16_t* formatOverride);

    using CXmlObjectBase::FromXml_Int;
    /// Takes the run of elements that starts at `current` and bears the name of the items. Returns the first
    /// other one, or null.
    ///
    /// Deliberate: a nil attribute is not looked at; the text is converted as it stands.
    CXmlElement* FromXml_Int(CXmlElement* element, CXmlElement* current,
                             const CXmlSerializationContext& context, bool isOptional) override;

    /// Converts a text under the white-space rule, checks the facets and adds the value.
    virtual void AddFromString(std::u16string text) = 0;

    CPrimitiveRestrictions m_restrictions;
    ItemType m_itemType;
    std::u16string m_formatOverride;
    CWhitespaceUtils::WhitespaceRule m_whitespaceRule;

private:
    friend class KzXmlLib10Data::CAttributeInfo;
    friend class KzXmlLib10Data::CElementInfo;
};

} // namespace KzXmlLib10
