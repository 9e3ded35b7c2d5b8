#include <KzXmlLib10/xml/CXmlElement.h>

#include <algorithm>
#include <memory>

namespace KzXmlLib10 {

CXmlElement::CXmlElement(const CXmlDocument* document)
    : CInstanceMonitor(u"CXmlElement"), m_document(document) {}

CXmlElement::~CXmlElement() {
    DestroyChain(m_firstChild);
    for (CXmlAttribute* attribute : m_attributes)
        delete attribute;
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
    static const std::u16string none;
    for (const CXmlAttribute* attribute : m_attributes) {
        if (attribute->GetLocalName() == localName && attribute->GetNamespaceURI() == namespaceUri)
            return attribute->GetValue();
    }
    return none;
}

void CXmlElement::AddAttribute(std::u16string_view localName, std::u16string_view value,
                               std::u16string_view namespaceUri) {
    std::unique_ptr<CXmlAttribute> attribute(new CXmlAttribute(localName, value, namespaceUri));
    m_attributes.push_back(attribute.get());
    attribute.release();
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
    CXmlElement* child = new CXmlElement(m_document);
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
