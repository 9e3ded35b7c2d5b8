#pragma once

#include "xml/OpenElement.h"
#include "xml/TreeMemory.h"

#include <KzXmlLib10/xml/CXmlDocument.h>

/// The steps that a reader takes for each element, inline where they are taken.
namespace KzXmlLib10 {

inline CXmlElement::CXmlElement(const CXmlDocument* document, const SharedName& name) noexcept
    : CInstanceMonitor(u"CXmlElement"), m_document(document), m_name(&name) {}

inline CXmlElement* CXmlElement::Create(const CXmlDocument* document, const SharedName& name) {
    return ::new (document->m_memory->elements.Take()) CXmlElement(document, name);
}

inline CXmlElement* CXmlElement::CreateNewChildElement(const SharedName& name) {
    CXmlElement* child = Create(m_document, name);
    (m_lastChild ? m_lastChild->m_nextSibling : m_firstChild) = child;
    m_lastChild = child;
    return child;
}

inline CXmlElement* CXmlDocument::AddChildElement(const SharedName& name) {
    CXmlElement* parent = m_elementStack.back();
    if (m_elementCallback)
        m_openElements.push_back({parent->m_lastChild, m_memory->texts.GetMark()});
    CXmlElement* child = parent->CreateNewChildElement(name);
    m_elementStack.push_back(child);
    return child;
}

inline void CXmlDocument::EndElement() {
    CXmlElement* element = m_elementStack.back();
    m_elementStack.pop_back();
    if (m_elementCallback)
        OfferElement(element);
}

} // namespace KzXmlLib10
