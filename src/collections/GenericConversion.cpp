/// Objects as generic content, and generic content as objects: both ways go through text.

#include <KzXmlLib10/collections/CElement.h>

#include "object/GeneratorVersion.h"
#include "object/NotNull.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/xml/CXmlDocument.h>

namespace KzXmlLib10 {

CElement::CElement(CXmlObjectBase* object, const char16_t* defaultNamespace)
    : CElement(u"", u"", u"##any", u"") {
    CXmlSerializationContext context;
    if (defaultNamespace) {
        m_defaultNamespace = defaultNamespace;
        context.SetDefaultNamespaceURI(defaultNamespace);
    }
    // Not formatted: indentation would become text.
    const CBinaryData bytes =
        NotNull(object, u"object")
            ->ToXmlStream(false, false, XmlEncoding_UTF8, EOLType_LF, context, CompressionType_None);
    CXmlDocument document(context);
    document.LoadXmlStream(bytes.GetData(), bytes.GetLength());
    CopyXmlElement(document.GetDocumentElement());
}

void CXmlObjectBase::FromXmlElement(const CElement* element, const CXmlSerializationContext& context) {
    CheckGeneratorVersion();
    const std::u16string xml =
        NotNull(element, u"element")
            ->ToXml(false, false, EOLType_LF, CXmlSerializationContext::GetDefaultContext());
    FromXml(xml.c_str(), context);
}

} // namespace KzXmlLib10
