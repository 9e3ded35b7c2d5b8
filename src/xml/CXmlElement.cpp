#include <KzXmlLib10/xml/CXmlElement.h>

#include "object/TextScan.h"
#include "xml/TreeMemory.h"

#include <KzXmlLib10/xml/CXmlDocument.h>

#include <algorithm>
#include <utility>

namespace KzXmlLib10 {

namespace {

const std::u16string none;

} // namespace

CXmlElement::CXmlElement(const CXmlDocument* document) noexcept
    : CInstanceMonitor(u"CXmlElement"), m_document(document), m_localName(&none), m_namespaceUri(&none) {}

CXmlElement* CXmlElement::Create(const CXmlDocument* document) {
    return ::new (document->m_memory->elements.Take()) CXmlElement(document);
}

CXmlElement::~CXmlElement() {
    DestroyChain(m_firstChild);
    for (CXmlAttribute* attribute : m_attributes) {
        attribute->~CXmlAttribute();
        m_document->m_memory->attributes.GiveBack(attribute);
    }
}

void CXmlElement::operator delete(CXmlElement* element, std::destroying_delete_t) {
    TreeMemory& memory = *element->m_document->m_memory;
    element->~CXmlElement();
    memory.elements.GiveBack(element);
}

/// Destroys a chain of siblings and all below them. The children of an element move in front of what is left
/// of the chain before the element goes, so its own destructor finds none and the stack does not grow.
void CXmlElement::DestroyChain(CXmlElement* list) noexcept {
    while (list) {
        CXmlElement* current = list;
        list = current->m_nextSibling;
        if (current->m_firstChild) {
            current->m_lastChild->m_nextSibling = list;
            list = current->m_firstChild;
            current->m_firstChild = nullptr;
        }
        delete current;
    }
}

const std::u16string& CXmlElement::GetAttribute(const std::u16string& localName,
                                                const std::u16string& namespaceUri) const {
    for (const CXmlAttribute* attribute : m_attributes) {
        if (SameText(attribute->GetLocalName(), localName) &&
            SameText(attribute->GetNamespaceURI(), namespaceUri))
            return attribute->GetValue();
    }
    return none;
}

void CXmlElement::AddAttribute(std::u16string_view localName, std::u16string_view value,
                               std::u16string_view namespaceUri) {
    TreeMemory& memory = *m_document->m_memory;
    const std::u16string& sharedName = memory.localNames.Share(localName);
    const std::u16string& sharedNamespace = memory.namespaces.Share(namespaceUri);
    std::u16string ownValue(value);
    if (m_attributes.size() == m_attributes.capacity())
        m_attributes.reserve(2 * m_attributes.size() + 1);
    // Nothing fails from here on, once there is room.
    void* room = memory.attributes.Take();
    m_attributes.push_back(::new (room) CXmlAttribute(sharedName, std::move(ownValue), sharedNamespace));
}

void CXmlElement::SetElementName(std::u16string_view localName) {
    m_localName = &m_document->m_memory->localNames.Share(localName);
}

void CXmlElement::SetNamespace(std::u16string_view namespaceUri) {
    m_namespaceUri = &m_document->m_memory->namespaces.Share(namespaceUri);
}

void CXmlElement::AppendText(const char16_t* text) {
    AppendText(text, std::char_traits<char16_t>::length(text));
}

void CXmlElement::AppendText(const char16_t* text, std::size_t count) {
    const std::size_t length = m_text.size() + count;
    if (!m_text.empty() && length > m_text.capacity())
        m_text.reserve(std::max(length, 2 * m_text.capacity()));
    m_text.append(text, count);
}

CXmlElement* CXmlElement::CreateNewChildElement() {
    CXmlElement* child = Create(m_document);
    (m_lastChild ? m_lastChild->m_nextSibling : m_firstChild) = child;
    m_lastChild = child;
    return child;
}

void CXmlElement::RemoveLastChildElement(CXmlElement* previous) {
    delete m_lastChild;
    m_lastChild = previous;
    (previous ? previous->m_nextSibling : m_firstChild) = nullptr;
}

} // namespace KzXmlLib10
