#pragma once

#include <KzXmlLib10/collections/CPrimitiveCol.h>

namespace KzXmlLib10 {

/// A collection of booleans, in a packed vector. Facets have no effect.
class QUILLON_EXPORT CbooleanCol : public CPrimitiveCol<CbooleanCol, bool> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

extern template class CPrimitiveCol<CbooleanCol, bool>;

} // namespace KzXmlLib10
