#include "GeneratedObject.h"

#include <KzXmlLib10/object/FormatString.h>

namespace orders {

void CGeneratedObject::ClassTables::Build() {
    struct Lock {
        Lock() { m_csInit.Enter(); }
        ~Lock() { m_csInit.Leave(); }
    } const lock;
    if (m_isBuilt.load(std::memory_order_relaxed))
        return;
    m_tables = m_build();
    m_isBuilt.store(true, std::memory_order_release);
}

void CGeneratedObject::FailUnknownProperty(int propertyIndex) {
    throw CKzInvalidParamException(FormatString(u"The class has no property %d", propertyIndex));
}

} // namespace orders
