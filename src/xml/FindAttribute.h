#pragma once

#include "object/TextScan.h"
#include "xml/XmlNamespaces.h"

#include <KzXmlLib10/xml/CXmlElement.h>

#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// The value of an attribute, or an empty text.
inline const std::u16string& FindAttribute(const CXmlElement& element, std::u16string_view localName,
                                           std::u16string_view namespaceUri) {
    for (const CXmlAttribute* attribute : element.GetAttributes())
        if (SameText(attribute->GetLocalName(), localName) &&
            SameText(attribute->GetNamespaceURI(), namespaceUri))
            return attribute->GetValue();
    static const std::u16string none;
    return none;
}

/// The same of the schema-instance namespace.
inline const std::u16string& FindSchemaInstanceAttribute(const CXmlElement& element,
                                                         std::u16string_view localName) {
    return FindAttribute(element, localName, schemaInstanceNamespace);
}

} // namespace KzXmlLib10
