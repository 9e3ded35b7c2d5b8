#pragma once

#include <KzXmlLib10/collections/CPrimitiveCol.h>
#include <KzXmlLib10/values/CBigInteger.h>
#include <KzXmlLib10/values/CDecimal.h>

namespace KzXmlLib10 {

// Collections of decimals and of integers of any size. The format of decimals is their number of places.

class QUILLON_EXPORT CdecimalCol : public CPrimitiveCol<CdecimalCol, CDecimal> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT CintegerCol : public CPrimitiveCol<CintegerCol, CBigInteger> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

extern template class CPrimitiveCol<CdecimalCol, CDecimal>;
extern template class CPrimitiveCol<CintegerCol, CBigInteger>;

} // namespace KzXmlLib10
