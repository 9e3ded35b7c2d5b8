#include <KzXmlLib10/collections/CalendarCols.h>

#include "collections/PrimitiveCol.h"

namespace KzXmlLib10 {

template <>
inline constexpr PrimitiveColFacts primitiveColFacts<CyearCol> = {
    u"CyearCol", ItemType_year, CConversions::yearToString, CConversions::yearFromString, CheckYear};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<CmonthCol> = {
    u"CmonthCol", ItemType_month, CConversions::monthToString, CConversions::monthFromString, CheckMonth};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<CdayCol> = {
    u"CdayCol", ItemType_day, CConversions::dayToString, CConversions::dayFromString, CheckDay};

template class CPrimitiveCol<CyearCol, std::uint16_t>;
template class CPrimitiveCol<CmonthCol, std::uint8_t>;
template class CPrimitiveCol<CdayCol, std::uint8_t>;

} // namespace KzXmlLib10
