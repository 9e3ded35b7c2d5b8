#include <KzXmlLib10/xml/CXmlAttribute.h>

#include "object/TextScan.h"
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

CXmlAttribute::CXmlAttribute(const SharedName& name, std::u16string&& value) noexcept
    : CInstanceMonitor(u"CXmlAttribute"), m_name(&name), m_value(std::move(value)) {}

CXmlAttribute::~CXmlAttribute() = default;

bool CXmlAttribute::IsNamespaceAttribute() const {
    return IsReservedNamespace(GetNamespaceURI()) &&
           (GetLocalName() == u"xmlns" || GetLocalName() == u"type" || GetLocalName() == u"schemaLocation" ||
            GetLocalName() == u"noNamespaceSchemaLocation");
}

bool CXmlAttribute::IsNilAttribute() const {
    return GetLocalName() == u"nil" && IsReservedNamespace(GetNamespaceURI());
}

} // namespace KzXmlLib10
