#pragma once

#include <KzXmlLib10/collections/CPrimitiveCol.h>

#include <cstdint>

namespace KzXmlLib10 {

// Collections of years, months and days, which are plain numbers.

class QUILLON_EXPORT CyearCol : public CPrimitiveCol<CyearCol, std::uint16_t> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT CmonthCol : public CPrimitiveCol<CmonthCol, std::uint8_t> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT CdayCol : public CPrimitiveCol<CdayCol, std::uint8_t> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

extern template class CPrimitiveCol<CyearCol, std::uint16_t>;
extern template class CPrimitiveCol<CmonthCol, std::uint8_t>;
extern template class CPrimitiveCol<CdayCol, std::uint8_t>;

} // namespace KzXmlLib10
