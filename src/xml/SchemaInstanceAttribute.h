#pragma once

#include "object/TextScan.h"
#include "xml/XmlNamespaces.h"

#include <KzXmlLib10/xml/CXmlElement.h>

#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// The value of an attribute of the schema-instance namespace, or an empty text.
inline const std::u16string& SchemaInstanceAttribute(const CXmlElement& element,
                                                     std::u16string_view localName) {
    static const std::u16string none;
    for (const CXmlAttribute* attribute : element.GetAttributes())
        if (SameText(attribute->GetLocalName(), localName) &&
            SameText(attribute->GetNamespaceURI(), schemaInstanceNamespace))
            return attribute->GetValue();
    return none;
}

} // namespace KzXmlLib10
