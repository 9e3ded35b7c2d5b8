#include <KzXmlLib10/collections/CdurationCol.h>

#include "collections/PrimitiveCol.h"

namespace KzXmlLib10 {

template <>
inline constexpr PrimitiveColFacts primitiveColFacts<CdurationCol> = {
    u"CdurationCol", ItemType_duration, CConversions::durationToString, CConversions::durationFromString,
    CheckDuration};

template class CPrimitiveCol<CdurationCol, CDateTimeSpan>;

} // namespace KzXmlLib10
