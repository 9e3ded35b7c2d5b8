#pragma once

#include <KzXmlLib10/object/Export.h>

#include <string>

namespace KzXmlLib10 {

/// The facets of one attribute or element, as they stand in the schema.
///
///     const CPrimitiveRestrictions percent(u"", -1, -1, u"0", u"100", u"", u"", -1);
///
/// Bounds of values are texts, read by the conversion of the value's own kind when a value is checked, so
/// that one record serves all kinds. Generated code builds a record once and shares it read-only.
class QUILLON_EXPORT CPrimitiveRestrictions {
public:
    /// No facet at all.
    CPrimitiveRestrictions() = default;
    /// An empty text and a length of -1 mean that the facet is absent. Throws CKzInvalidParamException if a
    /// text is null.
    CPrimitiveRestrictions(const char16_t* pattern, int minLength, int maxLength,
                           const char16_t* minInclusive, const char16_t* maxInclusive,
                           const char16_t* minExclusive, const char16_t* maxExclusive, int length);
    CPrimitiveRestrictions(const CPrimitiveRestrictions&) = default;
    CPrimitiveRestrictions& operator=(const CPrimitiveRestrictions&) = default;
    virtual ~CPrimitiveRestrictions();

    std::u16string m_pattern; ///< an XML Schema regular expression
    int m_minLength = -1;     ///< in 16-bit code units or, for binary kinds, bytes
    int m_maxLength = -1;
    std::u16string m_minInclusive;
    std::u16string m_maxInclusive;
    std::u16string m_minExclusive;
    std::u16string m_maxExclusive;
    int m_length = -1;
};

} // namespace KzXmlLib10
