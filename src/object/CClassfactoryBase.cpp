#include <KzXmlLib10/object/CClassfactoryBase.h>

#include "object/NotNull.h"
#include "xml/FindAttribute.h"

#include <KzXmlLib10/xml/CXmlDocument.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10 {

CClassfactoryBase::~CClassfactoryBase() = default;

std::u16string CClassfactoryBase::GetElementType(CXmlElement* element) {
    const std::u16string& type = FindSchemaInstanceAttribute(*NotNull(element, u"element"), u"type");
    const std::size_t colon = type.find(u':');
    return colon == type.npos ? type : type.substr(colon + 1);
}

std::u16string CClassfactoryBase::GetElementTypeNamespaceUri(CXmlElement* element) {
    const std::u16string& type = FindSchemaInstanceAttribute(*NotNull(element, u"element"), u"type");
    const std::size_t colon = type.find(u':');
    if (colon == type.npos)
        return element->GetNamespaceURI();
    const std::u16string prefix = type.substr(0, colon);
    const std::u16string uri = element->GetDocument()->LookupNamespaceFromAlias(prefix.c_str());
    return uri.empty() ? element->GetNamespaceURI() : uri;
}

} // namespace KzXmlLib10
