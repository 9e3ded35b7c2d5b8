#include <KzXmlLib10/collections/CbooleanCol.h>

#include "collections/PrimitiveCol.h"

namespace KzXmlLib10 {

template <>
inline constexpr PrimitiveColFacts primitiveColFacts<CbooleanCol> = {
    u"CbooleanCol", ItemType_boolean, CConversions::booleanToString, CConversions::booleanFromString,
    nullptr};

template class CPrimitiveCol<CbooleanCol, bool>;

} // namespace KzXmlLib10
