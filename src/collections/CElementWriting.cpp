/// How a generic element is written with all below it.

#include <KzXmlLib10/collections/CElement.h>

#include "collections/DepthFirst.h"
#include "object/RecursionLevel.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CTextStream.h>
#include <KzXmlLib10/xml/CXmlTextWriter.h>

#include <typeinfo>

namespace KzXmlLib10 {

namespace {

/// What all elements of one walk are written with.
struct Output {
    CXmlWriter* writer;
    const char16_t* elementNamespace;
    const CXmlSerializationContext& context;
};

} // namespace

/// Whether the element is written by the common steps, with nothing of its own.
bool CElement::IsPlain() const { return m_defaultNamespace.empty() && typeid(*this) == typeid(CElement); }

/// An element whose start tag is open.
class CElement::Writing {
public:
    Writing(const CElement& element, const Output& output)
        : m_element(&element), m_output(&output), m_next(element.m_childElements->begin()) {
        output.writer->StartElement(element.m_name, element.m_namespace);
        WriteObject(element.m_attributes);
    }

    const CElement* Node() const { return m_element; }

    std::optional<Writing> EnterNextChild() {
        while (m_next != m_element->m_childElements->end()) {
            CElement& child = *m_next++;
            if (child.IsPlain())
                return Writing(child, *m_output);
            WriteObject(&child);
        }
        return std::nullopt;
    }

    // Deliberate: the text stands behind the children.
    void Leave() {
        m_output->writer->WriteText(m_element->m_text, ItemType_string);
        m_output->writer->EndElement();
    }

private:
    void WriteObject(CXmlObjectBase* object) const {
        ToXml_Int(object->GetBase(), m_output->writer, false, m_output->elementNamespace, m_output->context,
                  false);
    }

    const CElement* m_element;
    const Output* m_output;
    CKzIterator<CElement> m_next;
};

void CElement::ToXml_Int(CXmlWriter* writer, bool, const char16_t* elementNamespace,
                         const CXmlSerializationContext& context, bool isOptional) const {
    const RecursionLevel level; // derived classes and default namespaces inside each other come here again
    if (!m_defaultNamespace.empty())
        return WriteUnderDefaultNamespace(writer, isOptional);
    const Output output{writer, elementNamespace, context};
    WalkDepthFirst(Writing(*this, output));
}

/// Writes the element with a writer of its own, whose default namespace ends with the element.
///
/// Deliberate: the attributes are left out.
void CElement::WriteUnderDefaultNamespace(CXmlWriter* writer, bool isOptional) const {
    auto* textWriter = dynamic_cast<CXmlTextWriter*>(writer);
    if (!textWriter)
        Throw<CKzException>(messages::DefaultNamespaceNeedsTextWriter, m_name);

    CTextStream stream(XmlEncoding_None);
    CXmlTextWriter scratch(&stream);
    scratch.SetEOLType(textWriter->GetEOLType());
    scratch.SetFormatted(textWriter->GetFormatted());
    scratch.SetDefaultNamespace(m_defaultNamespace);

    CXmlSerializationContext context;
    context.SetDefaultNamespaceURI(m_defaultNamespace.c_str());
    scratch.StartElement(m_name, m_namespace);
    ToXml_Int(m_childElements->GetBase(), &scratch, false, m_namespace.c_str(), context, isOptional);
    scratch.WriteText(m_text, ItemType_string);
    scratch.EndElement();

    textWriter->CloseStartTag();
    CStringBuffer& target = textWriter->GetStream()->GetBuffer();
    target.Append(stream.GetBuffer().GetString());
    if (textWriter->GetFormatted())
        target.Append(textWriter->GetEOL());
}

} // namespace KzXmlLib10
