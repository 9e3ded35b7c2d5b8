#pragma once

#include "support/Basics.h"

namespace KzXmlLib10::support {

/// The arguments of a typed collection, as a generator would give them for a field without facets.
struct ColArguments {
    int minOccurs = 0;
    int maxOccurs = -1;
    const char16_t* pattern = u"";
    int minLength = -1;
    const char16_t* minInclusive = u"";
    const char16_t* maxInclusive = u"";
    const char16_t* format = nullptr;
    const char16_t* elementNamespace = u"";
};

/// A collection of elements <i>.
template <class Collection>
Collection Make(const ColArguments& with = {}) {
    return Collection(u"i", with.elementNamespace, with.minOccurs, with.maxOccurs, with.pattern,
                      with.minLength, -1, with.minInclusive, with.maxInclusive, u"", u"", -1,
                      CWhitespaceUtils::WhitespaceRule_Collapse, with.format);
}

} // namespace KzXmlLib10::support
