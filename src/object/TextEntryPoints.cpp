/// The entry points of CXmlObjectBase that write and read text in memory, and the two steps all entry points
/// share.

#include <KzXmlLib10/object/CXmlObjectBase.h>

#include "object/GeneratorVersion.h"
#include "object/NotNull.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CTextStream.h>
#include <KzXmlLib10/xml/CXmlDocument.h>
#include <KzXmlLib10/xml/CXmlElement.h>
#include <KzXmlLib10/xml/CXmlTextWriter.h>

namespace KzXmlLib10 {

void CXmlObjectBase::WriteDocument(CTextStream& stream, bool includeDeclaration, bool formatted, EOLType eol,
                                   const CXmlSerializationContext& context) const {
    CXmlTextWriter writer(&stream);
    writer.SetFormatted(formatted);
    writer.SetEOLType(eol);
    if (includeDeclaration)
        writer.WriteDeclaration();
    const std::u16string targetNamespace = GetTargetNamespace();
    ToXml_Int(&writer, true, targetNamespace.c_str(), context, false);
    writer.Close();
}

void CXmlObjectBase::ReadDocument(const CXmlDocument& document, const CXmlSerializationContext& context) {
    CXmlElement* root = document.GetDocumentElement();
    if (!root)
        Throw<CKzException>(messages::InvalidOrEmptyDocument);
    FromXml_Int(root, root->GetFirstElement(), context, false);
}

std::u16string CXmlObjectBase::ToXml(bool includeDeclaration, bool formatted, EOLType eol,
                                     const CXmlSerializationContext& context) const {
    CheckGeneratorVersion();
    CTextStream stream(XmlEncoding_None);
    WriteDocument(stream, includeDeclaration, formatted, eol, context);
    const CStringBuffer& buffer = stream.GetBuffer();
    std::u16string text;
    text.reserve(buffer.GetLength());
    for (std::size_t i = 0; i < buffer.GetChunkCount(); ++i)
        text += buffer.GetChunk(i);
    return text;
}

void CXmlObjectBase::FromXml(const char16_t* xml, const CXmlSerializationContext& context) {
    CheckGeneratorVersion();
    CXmlDocument document(context);
    document.LoadXml(xml);
    ReadDocument(document, context);
}

void CXmlObjectBase::FromXml(const char* xml, const CXmlSerializationContext& context) {
    CheckGeneratorVersion();
    CXmlDocument document(context);
    document.LoadXml(xml);
    ReadDocument(document, context);
}

void CXmlObjectBase::FromXmlElement(const CXmlElement* element, const CXmlSerializationContext& context) {
    CheckGeneratorVersion();
    NotNull(element, u"element");
    // Reading never changes the tree.
    FromXml_Int(const_cast<CXmlElement*>(element), element->GetFirstElement(), context, false);
}

} // namespace KzXmlLib10
