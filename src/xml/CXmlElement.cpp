#include <KzXmlLib10/xml/CXmlElement.h>

#include "object/TextScan.h"
#include "xml/FindAttribute.h"
#include "xml/TreeBuilding.h"

#include <utility>

namespace KzXmlLib10 {

CXmlElement::~CXmlElement() {
    if (m_firstChild)
        DestroyChain(m_firstChild);
    if (m_attributes)
        DestroyAttributes();
}

void CXmlElement::DestroyAttributes() noexcept {
    TreeMemory& memory = *m_document->m_memory;
    for (CXmlAttribute* attribute : *m_attributes) {
        attribute->~CXmlAttribute();
        memory.attributes.GiveBack(attribute);
    }
    memory.attributeLists.GiveBack(m_attributes);
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

std::u16string CXmlElement::GetText() const {
    if (m_text && m_text->IsAlone())
        return std::u16string(m_text->View());
    std::u16string text;
    ViewText(text);
    return text;
}

std::u16string_view CXmlElement::ViewText(std::u16string& room) const {
    if (!m_text)
        return u"";
    if (m_text->IsAlone())
        return m_text->View();
    room.clear();
    for (TextPiece* piece = m_text->next;; piece = piece->next) {
        for (unsigned left = piece->times; left > 0; --left)
            room += piece->View();
        if (piece == m_text)
            return room;
    }
}

const std::vector<CXmlAttribute*>& CXmlElement::GetAttributes() const {
    static const std::vector<CXmlAttribute*> noAttributes;
    return m_attributes ? *m_attributes : noAttributes;
}

const std::u16string& CXmlElement::GetAttribute(const std::u16string& localName,
                                                const std::u16string& namespaceUri) const {
    return FindAttribute(*this, localName, namespaceUri);
}

void CXmlElement::ReserveAttributes(std::size_t count) {
    if (!m_attributes)
        m_attributes = m_document->m_memory->attributeLists.Take();
    m_attributes->reserve(count);
}

void CXmlElement::AddAttribute(const SharedName& name, std::u16string&& value) {
    constexpr std::size_t first = 3; // which a block of the heap has room for at least
    if (!m_attributes || m_attributes->size() == m_attributes->capacity())
        ReserveAttributes(m_attributes ? 2 * m_attributes->size() : first);
    // Nothing fails from here on, once there is room.
    void* room = m_document->m_memory->attributes.Take();
    m_attributes->push_back(::new (room) CXmlAttribute(name, std::move(value)));
}

void CXmlElement::AppendText(std::u16string_view text) { m_document->m_memory->texts.Append(m_text, text); }

void CXmlElement::ClearText() { TextArena::Clear(m_text); }

void CXmlElement::RemoveLastChildElement(CXmlElement* previous) {
    delete m_lastChild;
    m_lastChild = previous;
    (previous ? previous->m_nextSibling : m_firstChild) = nullptr;
}

} // namespace KzXmlLib10
