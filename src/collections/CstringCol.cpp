#include <KzXmlLib10/collections/CstringCol.h>

#include "collections/PrimitiveCol.h"

namespace KzXmlLib10 {

template <>
inline constexpr PrimitiveColFacts primitiveColFacts<CstringCol> = {
    u"CstringCol", ItemType_string, CConversions::stringToString, CConversions::stringFromString,
    CheckString};

template class CPrimitiveCol<CstringCol, std::u16string>;

} // namespace KzXmlLib10
