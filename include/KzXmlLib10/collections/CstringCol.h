#pragma once

#include <KzXmlLib10/collections/CPrimitiveCol.h>

namespace KzXmlLib10 {

/// A collection of texts. The whitespace rule is for reading: what code adds is stored and checked as it
/// stands.
class QUILLON_EXPORT CstringCol : public CPrimitiveCol<CstringCol, std::u16string> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

extern template class CPrimitiveCol<CstringCol, std::u16string>;

} // namespace KzXmlLib10
