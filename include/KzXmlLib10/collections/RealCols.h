#pragma once

#include <KzXmlLib10/collections/CPrimitiveCol.h>

namespace KzXmlLib10 {

// Collections of floating-point numbers. The format is that of CConversions::r4ToString.

class QUILLON_EXPORT Cr4Col : public CPrimitiveCol<Cr4Col, float> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT Cr8Col : public CPrimitiveCol<Cr8Col, double> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

extern template class CPrimitiveCol<Cr4Col, float>;
extern template class CPrimitiveCol<Cr8Col, double>;

} // namespace KzXmlLib10
