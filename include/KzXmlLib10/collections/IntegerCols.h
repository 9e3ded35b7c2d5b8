#pragma once

#include <KzXmlLib10/collections/CPrimitiveCol.h>

#include <cstdint>

namespace KzXmlLib10 {

// Collections of integers.

class QUILLON_EXPORT Ci1Col : public CPrimitiveCol<Ci1Col, std::int8_t> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT Ci2Col : public CPrimitiveCol<Ci2Col, std::int16_t> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT Ci4Col : public CPrimitiveCol<Ci4Col, std::int32_t> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT Ci8Col : public CPrimitiveCol<Ci8Col, long long> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT Cui1Col : public CPrimitiveCol<Cui1Col, std::uint8_t> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT Cui2Col : public CPrimitiveCol<Cui2Col, std::uint16_t> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT Cui4Col : public CPrimitiveCol<Cui4Col, std::uint32_t> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

class QUILLON_EXPORT Cui8Col : public CPrimitiveCol<Cui8Col, unsigned long long> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

extern template class CPrimitiveCol<Ci1Col, std::int8_t>;
extern template class CPrimitiveCol<Ci2Col, std::int16_t>;
extern template class CPrimitiveCol<Ci4Col, std::int32_t>;
extern template class CPrimitiveCol<Ci8Col, long long>;
extern template class CPrimitiveCol<Cui1Col, std::uint8_t>;
extern template class CPrimitiveCol<Cui2Col, std::uint16_t>;
extern template class CPrimitiveCol<Cui4Col, std::uint32_t>;
extern template class CPrimitiveCol<Cui8Col, unsigned long long>;

} // namespace KzXmlLib10
