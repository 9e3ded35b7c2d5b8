#include "GeneratedObject.h"

#include <KzXmlLib10/object/FormatString.h>

#include <algorithm>

namespace orders {

namespace {

template <class Info>
Info** MakeTable(std::initializer_list<Info*> entries) {
    Info** table = new Info*[entries.size() + 1];
    *std::copy(entries.begin(), entries.end(), table) = nullptr;
    return table;
}

} // namespace

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

CElementInfo** CGeneratedObject::ElementTable(std::initializer_list<CElementInfo*> elements) {
    return MakeTable(elements);
}

CAttributeInfo** CGeneratedObject::AttributeTable(std::initializer_list<CAttributeInfo*> attributes) {
    return MakeTable(attributes);
}

void CGeneratedObject::FailUnknownProperty(int propertyIndex) {
    throw CKzInvalidParamException(FormatString(u"The class has no property %d", propertyIndex));
}

void CGeneratedObject::FailDateKind(const CDateTime& value, CDateTime::DTType kind) {
    throw CKzInvalidParamException(FormatString(u"A value of the kind %s cannot be a %s",
                                                value.GetTypeAsString().c_str(),
                                                CDateTime(kind).GetTypeAsString().c_str()));
}

void CGeneratedObject::AccessCollection(bool read, KzVariant& value, CXmlCollectionBase* member) {
    if (!read)
        throw CKzInvalidStateException(u"A collection cannot be exchanged, only its items");
    value.SetXmlCollection(member);
}

} // namespace orders
