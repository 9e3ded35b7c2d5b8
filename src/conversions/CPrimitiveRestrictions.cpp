#include <KzXmlLib10/conversions/CPrimitiveRestrictions.h>

#include "object/NotNull.h"

namespace KzXmlLib10 {

CPrimitiveRestrictions::CPrimitiveRestrictions(const char16_t* pattern, int minLength, int maxLength,
                                               const char16_t* minInclusive, const char16_t* maxInclusive,
                                               const char16_t* minExclusive, const char16_t* maxExclusive,
                                               int length)
    : m_pattern(NotNull(pattern, u"pattern")), m_minLength(minLength), m_maxLength(maxLength),
      m_minInclusive(NotNull(minInclusive, u"minInclusive")),
      m_maxInclusive(NotNull(maxInclusive, u"maxInclusive")),
      m_minExclusive(NotNull(minExclusive, u"minExclusive")),
      m_maxExclusive(NotNull(maxExclusive, u"maxExclusive")), m_length(length) {}

CPrimitiveRestrictions::~CPrimitiveRestrictions() = default;

} // namespace KzXmlLib10
