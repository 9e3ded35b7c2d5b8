#include <KzXmlLib10/xml/CXmlAttribute.h>

#include "object/TextScan.h"
#include "xml/SharedName.h"
#include "xml/XmlNamespaces.h"

#include <string_view>
#include <utility>

namespace KzXmlLib10 {

namespace {

/// The schema-instance or the xmlns namespace.
bool IsReservedNamespace(std::u16string_view uri) {
    constexpr std::u16string_view schemaInstance = schemaInstanceNamespace, xmlns = xmlnsNamespace;
    return SameText(uri, schemaInstance) || SameText(uri, xmlns);
}

} // namespace

CXmlAttribute::CXmlAttribute(const SharedName& name, std::u16string value) noexcept
    : CInstanceMonitor(u"CXmlAttribute"), m_localName(name.localName), m_value(std::move(value)),
      m_namespaceUri(name.namespaceUri) {}

CXmlAttribute::~CXmlAttribute() = default;

bool CXmlAttribute::IsNamespaceAttribute() const {
    return IsReservedNamespace(*m_namespaceUri) &&
           (*m_localName == u"xmlns" || *m_localName == u"type" || *m_localName == u"schemaLocation" ||
            *m_localName == u"noNamespaceSchemaLocation");
}

bool CXmlAttribute::IsNilAttribute() const {
    return *m_localName == u"nil" && IsReservedNamespace(*m_namespaceUri);
}

} // namespace KzXmlLib10
