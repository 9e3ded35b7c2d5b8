#include <KzXmlLib10/collections/IntegerCols.h>

#include "collections/PrimitiveCol.h"

namespace KzXmlLib10 {

template <>
inline constexpr PrimitiveColFacts primitiveColFacts<Ci1Col> = {
    u"Ci1Col", ItemType_i1, CConversions::i1ToString, CConversions::i1FromString, CheckI1};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<Ci2Col> = {
    u"Ci2Col", ItemType_i2, CConversions::i2ToString, CConversions::i2FromString, CheckI2};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<Ci4Col> = {
    u"Ci4Col", ItemType_i4, CConversions::i4ToString, CConversions::i4FromString, CheckI4};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<Ci8Col> = {
    u"Ci8Col", ItemType_i8, CConversions::i8ToString, CConversions::i8FromString, CheckI8};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<Cui1Col> = {
    u"Cui1Col", ItemType_ui1, CConversions::ui1ToString, CConversions::ui1FromString, CheckUI1};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<Cui2Col> = {
    u"Cui2Col", ItemType_ui2, CConversions::ui2ToString, CConversions::ui2FromString, CheckUI2};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<Cui4Col> = {
    u"Cui4Col", ItemType_ui4, CConversions::ui4ToString, CConversions::ui4FromString, CheckUI4};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<Cui8Col> = {
    u"Cui8Col", ItemType_ui8, CConversions::ui8ToString, CConversions::ui8FromString, CheckUI8};

template class CPrimitiveCol<Ci1Col, std::int8_t>;
template class CPrimitiveCol<Ci2Col, std::int16_t>;
template class CPrimitiveCol<Ci4Col, std::int32_t>;
template class CPrimitiveCol<Ci8Col, long long>;
template class CPrimitiveCol<Cui1Col, std::uint8_t>;
template class CPrimitiveCol<Cui2Col, std::uint16_t>;
template class CPrimitiveCol<Cui4Col, std::uint32_t>;
template class CPrimitiveCol<Cui8Col, unsigned long long>;

} // namespace KzXmlLib10
