#include <KzXmlLib10/collections/ExactNumberCols.h>

#include "collections/PrimitiveCol.h"

namespace KzXmlLib10 {

template <>
inline constexpr PrimitiveColFacts primitiveColFacts<CdecimalCol> = {
    u"CdecimalCol", ItemType_decimal,
    [](const CDecimal& value, const std::u16string& format) {
        return CConversions::decimalToString(value, format);
    },
    CConversions::decimalFromString, CheckDecimal};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<CintegerCol> = {
    u"CintegerCol", ItemType_integer, CConversions::integerToString, CConversions::integerFromString,
    CheckInteger};

template class CPrimitiveCol<CdecimalCol, CDecimal>;
template class CPrimitiveCol<CintegerCol, CBigInteger>;

} // namespace KzXmlLib10
