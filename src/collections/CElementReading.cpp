/// How a generic element is made from an element of a document.

#include <KzXmlLib10/collections/CElement.h>

#include "collections/DepthFirst.h"
#include "object/NamespaceRestriction.h"
#include "object/NotNull.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlAttribute.h>
#include <KzXmlLib10/xml/CXmlDocument.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10 {

/// An element that is being read under a wildcard. An inner one is added to its parent when it is whole, so
/// that listeners see it so.
class CElement::Reading {
public:
    /// The outermost element, which belongs to the caller and may stand on the stack.
    Reading(CElement& element, const CXmlElement& source, const CXmlSerializationContext& context)
        : m_element(&element), m_source(&source), m_next(source.GetFirstElement()), m_context(&context) {
        FromXml_Int(element.m_attributes, const_cast<CXmlElement*>(&source), nullptr, context);
    }

    const CXmlElement* Node() const { return m_source; }

    std::optional<Reading> EnterNextChild() {
        if (!m_next)
            return std::nullopt;
        CElementCol& children = *m_element->m_childElements;
        if (!children.Admits(*m_next))
            Throw<CKzValidationException>(messages::InvalidElementFound, m_element->m_name,
                                          m_source->GetLocalName());
        const CSmartPtr<CElement> child =
            children.MakeElement(*m_next, children.m_namespaceRestriction.c_str());
        Reading reading(*child, *m_next, *m_context);
        reading.m_owned = child;
        reading.m_into = &children;
        m_next = m_next->GetNextSiblingElement();
        return reading;
    }

    void Leave() {
        m_element->m_text = m_source->GetText();
        m_element->m_name = m_source->GetLocalName();
        m_element->m_namespace = m_source->GetNamespaceURI();
        if (m_into)
            m_into->Add(m_element);
    }

private:
    CElement* m_element;
    CSmartPtr<CElement> m_owned;
    CElementCol* m_into = nullptr;
    const CXmlElement* m_source;
    const CXmlElement* m_next;
    const CXmlSerializationContext* m_context;
};

CXmlElement* CElement::FromXml_Int(CXmlElement*, CXmlElement* current,
                                   const CXmlSerializationContext& context, bool) {
    if (!current ||
        !KzXmlLib10::IsNamespaceValid(current->GetNamespaceURI(), m_namespaceRestriction, m_targetNamespace))
        return current;
    WalkDepthFirst(Reading(*this, *current, context));
    return current->GetNextSiblingElement();
}

void CElement::FromXml(const char16_t* xml) {
    const CXmlSerializationContext& context = CXmlSerializationContext::GetDefaultContext();
    CXmlDocument document(context);
    document.LoadXml(xml);
    CXmlElement* root = document.GetDocumentElement();
    FromXml_Int(root, root, context, false);
}

/// An element that becomes a copy.
class CElement::Copying {
public:
    Copying(CElement& element, const CXmlElement& source)
        : m_element(&element), m_source(&source), m_next(source.GetFirstElement()) {
        element.m_name = source.GetLocalName();
        element.m_namespace = source.GetNamespaceURI();
        element.m_text = source.GetText();
        element.m_attributes->Clear();
        element.m_childElements->Clear();
        for (const CXmlAttribute* attribute : source.GetAttributes()) {
            element.m_attributes->Add(attribute->GetLocalName().c_str(), attribute->GetValue().c_str(),
                                      attribute->GetNamespaceURI().c_str());
            if (attribute->GetLocalName() == u"xmlns")
                element.m_defaultNamespace = attribute->GetValue();
        }
    }

    const CXmlElement* Node() const { return m_source; }

    std::optional<Copying> EnterNextChild() {
        if (!m_next)
            return std::nullopt;
        const CSmartPtr<CElement> child = new CElement(m_next->GetLocalName().c_str());
        Copying copying(*child, *m_next);
        copying.m_owned = child;
        copying.m_into = m_element->m_childElements;
        m_next = m_next->GetNextSiblingElement();
        return copying;
    }

    void Leave() {
        if (m_into)
            m_into->Add(m_element);
    }

private:
    CElement* m_element;
    CSmartPtr<CElement> m_owned;
    CElementCol* m_into = nullptr;
    const CXmlElement* m_source;
    const CXmlElement* m_next;
};

void CElement::CopyXmlElement(CXmlElement* element) {
    WalkDepthFirst(Copying(*this, *NotNull(element, u"element")));
}

} // namespace KzXmlLib10
