#include "Document.h"

#include "Files.h"
#include "Tree.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/xml/CXmlAttribute.h>
#include <KzXmlLib10/xml/CXmlWriter.h>

namespace quillon {

using namespace KzXmlLib10;

namespace {

void WriteText(CXmlWriter& writer, const std::u16string& text) {
    // The writer passes on as it stands what looks like a CDATA section at its start.
    if (!text.starts_with(u"<![CDATA["))
        return writer.WriteText(text, ItemType_string);
    writer.WriteText(text.substr(0, 1), ItemType_string);
    writer.WriteText(text.substr(1), ItemType_string);
}

void WriteElement(CXmlWriter& writer, const CXmlElement& element) {
    writer.StartElement(element.GetLocalName(), element.GetNamespaceURI());
    for (const CXmlAttribute* attribute : element.GetAttributes())
        writer.WriteAttribute(attribute->GetLocalName(), attribute->GetNamespaceURI(), attribute->GetValue(),
                              ItemType_string);
    if (!SignificantText(element).empty())
        WriteText(writer, element.GetText());
}

/// The writer declares namespaces without escaping them.
void CheckDeclarable(const std::u16string& uri) {
    if (uri.find_first_of(u"&<\"") != std::u16string::npos)
        throw CKzInvalidValueException(u"The namespace [" + uri + u"] cannot be written as text");
}

} // namespace

Document::Document(const std::string& file) {
    CBinaryData bytes = ReadFile(file);
    m_size = bytes.GetLength();
    m_format = Recognize(bytes);
    m_document.LoadXmlStream(bytes.GetData(), bytes.GetLength());
    if (!m_document.GetDocumentElement())
        throw CKzException(u"Invalid or empty XML document");
    FromXmlElement(m_document.GetDocumentElement(), m_context);
    m_survey.emplace(*m_root);
    m_namespaces.emplace(m_document, *m_survey);
}

CXmlElement* Document::FromXml_Int(CXmlElement* element, CXmlElement*, const CXmlSerializationContext&,
                                   bool) {
    m_root = element;
    return nullptr;
}

void Document::ToXml_Int(CXmlWriter* writer, bool, const char16_t*, const CXmlSerializationContext&,
                         bool) const {
    writer->SetDefaultNamespace(m_namespaces->GetDefault());
    for (const auto& [uri, prefix] : m_namespaces->GetPrefixes())
        writer->AddNamespace(prefix, uri);
    WalkTree(
        *m_root, [=](const CXmlElement& element) { WriteElement(*writer, element); },
        [=](const CXmlElement&) { writer->EndElement(); });
}

CBinaryData Document::ToText(bool formatted, XmlEncoding encoding) const {
    CheckDeclarable(m_namespaces->GetDefault());
    for (const auto& [uri, prefix] : m_namespaces->GetPrefixes())
        CheckDeclarable(uri);
    const CBinaryData bytes =
        ToXmlStream(true, formatted, encoding, EOLType_LF, m_context, CompressionType_None);
    if (encoding == XmlEncoding_UTF8)
        return bytes;
    CBinaryData marked(u"\uFEFF");
    marked.Append(bytes);
    return marked;
}

CBinaryData Document::ToFastInfoset() const {
    return ToFastInfosetStream(FInfoDecl_None, m_context, CompressionType_None);
}

} // namespace quillon
