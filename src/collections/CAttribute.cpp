#include <KzXmlLib10/collections/CAttribute.h>

#include "collections/Messages.h"
#include "object/NotNull.h"

#include <KzXmlLib10/xml/CXmlWriter.h>

namespace KzXmlLib10 {

CAttribute::CAttribute(const char16_t* name, const char16_t* value, const char16_t* namespaceUri)
    : CInstanceMonitor(u"CAttribute"), m_name(NotNull(name, u"name")), m_value(NotNull(value, u"value")),
      m_namespace(NotNull(namespaceUri, u"namespaceUri")) {}

CAttribute::CAttribute(const CAttribute& other) = default;
CAttribute& CAttribute::operator=(const CAttribute& other) = default;
CAttribute::~CAttribute() = default;

CXmlObjectBase* CAttribute::GetBase() { return this; }
std::u16string CAttribute::GetNamespace() const { return m_namespace; }
std::u16string CAttribute::GetTargetNamespace() const { return m_namespace; }

std::u16string CAttribute::GetName() const { return m_name; }
void CAttribute::SetName(const char16_t* name) { m_name = NotNull(name, u"name"); }
std::u16string CAttribute::GetValue() const { return m_value; }
void CAttribute::SetValue(const char16_t* value) { m_value = NotNull(value, u"value"); }
void CAttribute::SetNamespace(const char16_t* namespaceUri) {
    m_namespace = NotNull(namespaceUri, u"namespaceUri");
}

CSmartPtr<CAttribute> CAttribute::Clone() const {
    return new CAttribute(m_name.c_str(), m_value.c_str(), m_namespace.c_str());
}

void CAttribute::ToXml_Int(CXmlWriter* writer, bool, const char16_t*, const CXmlSerializationContext&,
                           bool) const {
    writer->WriteAttribute(m_name, m_namespace, m_value, ItemType_string);
}

CXmlElement* CAttribute::FromXml_Int(CXmlElement*, CXmlElement*, const CXmlSerializationContext&, bool) {
    Throw<CKzException>(messages::ReadByTheCollection);
}

void CAttribute::FireOnChangeName() {}
void CAttribute::FireOnChangeNamespace() {}

} // namespace KzXmlLib10
