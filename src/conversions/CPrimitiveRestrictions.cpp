#include <KzXmlLib10/conversions/CPrimitiveRestrictions.h>

#include "conversions/Messages.h"
#include "object/Throw.h"

namespace KzXmlLib10 {

namespace {

const char16_t* NotNull(const char16_t* text) {
    if (!text)
        Throw<CKzInvalidParamException>(messages::NullRestriction);
    return text;
}

} // namespace

CPrimitiveRestrictions::CPrimitiveRestrictions(const char16_t* pattern, int minLength, int maxLength,
                                               const char16_t* minInclusive, const char16_t* maxInclusive,
                                               const char16_t* minExclusive, const char16_t* maxExclusive,
                                               int length)
    : m_pattern(NotNull(pattern)), m_minLength(minLength), m_maxLength(maxLength),
      m_minInclusive(NotNull(minInclusive)), m_maxInclusive(NotNull(maxInclusive)),
      m_minExclusive(NotNull(minExclusive)), m_maxExclusive(NotNull(maxExclusive)), m_length(length) {}

CPrimitiveRestrictions::~CPrimitiveRestrictions() = default;

} // namespace KzXmlLib10
