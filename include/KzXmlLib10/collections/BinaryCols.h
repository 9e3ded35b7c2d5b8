#pragma once

#include <KzXmlLib10/collections/CPrimitiveCol.h>
#include <KzXmlLib10/values/CBinaryData.h>

namespace KzXmlLib10 {

// Collections of binary data, in two text forms. Lengths in facets are in bytes.

class QUILLON_EXPORT ChexBinaryCol : public CPrimitiveCol<ChexBinaryCol, CBinaryData> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT Cbase64BinaryCol : public CPrimitiveCol<Cbase64BinaryCol, CBinaryData> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

extern template class CPrimitiveCol<ChexBinaryCol, CBinaryData>;
extern template class CPrimitiveCol<Cbase64BinaryCol, CBinaryData>;

} // namespace KzXmlLib10
