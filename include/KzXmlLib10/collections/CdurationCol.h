#pragma once

#include <KzXmlLib10/collections/CPrimitiveCol.h>
#include <KzXmlLib10/values/CDateTimeSpan.h>

namespace KzXmlLib10 {

/// A collection of durations.
class QUILLON_EXPORT CdurationCol : public CPrimitiveCol<CdurationCol, CDateTimeSpan> {
public:
    using CPrimitiveCol::CPrimitiveCol;
};

extern template class CPrimitiveCol<CdurationCol, CDateTimeSpan>;

} // namespace KzXmlLib10
