#pragma once

#include <KzXmlLib10/object/Export.h>

namespace KzXmlLib10 {

/// What a generated class adds whose element may be nil.
///
/// The library finds it by a cast from CXmlGeneratedClass, so it is inherited publicly beside that class.
class QUILLON_EXPORT INillable {
public:
    virtual bool IsNil() const = 0;
    virtual void SetNil(bool nil) = 0;

protected:
    ~INillable() = default;
};

} // namespace KzXmlLib10
