#include <KzXmlLib10/collections/RealCols.h>

#include "collections/PrimitiveCol.h"

namespace KzXmlLib10 {

template <>
inline constexpr PrimitiveColFacts primitiveColFacts<Cr4Col> = {
    u"Cr4Col", ItemType_r4,
    [](float value, const std::u16string& format) { return CConversions::r4ToString(value, format); },
    CConversions::r4FromString, CheckR4};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<Cr8Col> = {
    u"Cr8Col", ItemType_r8,
    [](double value, const std::u16string& format) { return CConversions::r8ToString(value, format); },
    CConversions::r8FromString, CheckR8};

template class CPrimitiveCol<Cr4Col, float>;
template class CPrimitiveCol<Cr8Col, double>;

} // namespace KzXmlLib10
