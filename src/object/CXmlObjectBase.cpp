#include <KzXmlLib10/object/CXmlObjectBase.h>

#include "object/Deletion.h"
#include "object/GeneratorVersion.h"
#include "object/NotNull.h"
#include "object/TextScan.h"

namespace KzXmlLib10 {

CXmlObjectBase::CXmlObjectBase() { ShowVersionMismatchOnce(); }

CXmlObjectBase::CXmlObjectBase(const CXmlObjectBase& other)
    : IEventSink(other), m_elementName(other.m_elementName), m_refCount(other.m_refCount.load()) {}

CXmlObjectBase& CXmlObjectBase::operator=(const CXmlObjectBase& other) {
    m_elementName = other.m_elementName;
    m_refCount.store(other.m_refCount.load());
    return *this;
}

CXmlObjectBase::~CXmlObjectBase() = default;

void CXmlObjectBase::OnEvent(CXmlObjectBase*, MsgType, void*) {}

const CXmlObjectBase* CXmlObjectBase::GetBase() const { return const_cast<CXmlObjectBase*>(this)->GetBase(); }

long CXmlObjectBase::AddRef() { return m_refCount.fetch_add(1) + 1; }

long CXmlObjectBase::Release() {
    const std::int32_t before = m_refCount.fetch_sub(1);
    if (before == 1)
        DeleteReleased(this);
    return before - 1;
}

std::u16string CXmlObjectBase::GetElementName() const { return m_elementName; }

void CXmlObjectBase::SetElementName(const char16_t* name) { m_elementName = NotNull(name, u"name"); }

void CXmlObjectBase::TakeElementName(const std::u16string& name) {
    if (!SameText(m_elementName, name))
        m_elementName = name;
}

void CXmlObjectBase::SetElementName(CXmlObjectBase* object, const char16_t* name) {
    NotNull(object, u"object")->SetElementName(name);
}

void CXmlObjectBase::AttributesToXml_Int(CXmlWriter*, const CXmlSerializationContext&) const {}

void CXmlObjectBase::ToXml_Int(const CXmlObjectBase* object, CXmlWriter* writer, bool isRoot,
                               const char16_t* elementNamespace, const CXmlSerializationContext& context,
                               bool isOptional) {
    object->ToXml_Int(writer, isRoot, elementNamespace, context, isOptional);
}

void CXmlObjectBase::AttributesToXml_Int(const CXmlObjectBase* object, CXmlWriter* writer,
                                         const CXmlSerializationContext& context) {
    object->AttributesToXml_Int(writer, context);
}

CXmlElement* CXmlObjectBase::FromXml_Int(CXmlObjectBase* object, CXmlElement* element, CXmlElement* current,
                                         const CXmlSerializationContext& context) {
    return object->FromXml_Int(element, current, context, false);
}

} // namespace KzXmlLib10
