#include <KzXmlLib10/collections/CElementCol.h>

#include "collections/Messages.h"
#include "object/NamespaceRestriction.h"
#include "object/NotNull.h"

#include <KzXmlLib10/collections/CElement.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10 {

CElementCol::CElementCol(const char16_t* defaultNamespace, const char16_t* namespaceRestriction,
                         const char16_t* targetNamespace, int, int)
    : CInstanceMonitor(u"CElementCol"), m_namespaceRestriction(u"##any"),
      m_defaultNamespace(NotNull(defaultNamespace, u"defaultNamespace")),
      m_targetNamespace(NotNull(targetNamespace, u"targetNamespace")) {
    const std::u16string_view restriction = NotNull(namespaceRestriction, u"namespaceRestriction");
    KzXmlLib10::TestNamespace(m_defaultNamespace, restriction, m_targetNamespace);
    if (m_defaultNamespace.empty() && restriction.starts_with(u"##"))
        m_defaultNamespace = restriction; // Deliberate: a keyword may come to stand as a namespace.
}

CElementCol::CElementCol(const CElementCol& other) = default;
CElementCol& CElementCol::operator=(const CElementCol& other) {
    m_namespaceRestriction = other.m_namespaceRestriction;
    m_defaultNamespace = other.m_defaultNamespace;
    m_targetNamespace = other.m_targetNamespace;
    CXmlCollection::operator=(other); // last, since the items may be what keeps `other` alive
    return *this;
}
CElementCol::~CElementCol() = default;

std::u16string CElementCol::GetNamespace() const { return m_targetNamespace; }
std::u16string CElementCol::GetTargetNamespace() const { return m_targetNamespace; }

CSmartPtr<CElement> CElementCol::Add(CElement* element) {
    KzXmlLib10::TestNamespace(NotNull(element, u"element")->m_namespace, m_namespaceRestriction,
                              m_targetNamespace);
    return static_cast<CElement*>(&*AppendHeld(element));
}

CSmartPtr<CElement> CElementCol::Add(const char16_t* name) {
    if (m_defaultNamespace.empty())
        Throw<CKzInvalidStateException>(messages::NoDefaultNamespace);
    return Add(name, m_defaultNamespace.c_str());
}

CSmartPtr<CElement> CElementCol::Add(const char16_t* name, const char16_t* namespaceUri) {
    const CSmartPtr<CElement> element =
        new CElement(name, namespaceUri, m_namespaceRestriction.c_str(), m_targetNamespace.c_str());
    return Add(element);
}

void CElementCol::AddAfter(const CElement* existing, CElement* element) { AddAfterItem(existing, element); }

void CElementCol::AddBefore(const CElement* existing, CElement* element) { AddBeforeItem(existing, element); }

CSmartPtr<CElement> CElementCol::Item(int index) const {
    return static_cast<CElement*>(&*GetNodeAtIndex(index)->m_item);
}

CKzIterator<CElement> CElementCol::begin() const { return CKzIterator<CElement>(m_head); }
CKzIterator<CElement> CElementCol::end() const { return CKzIterator<CElement>(); }

CSmartPtr<CElementCol> CElementCol::Clone() const {
    CSmartPtr<CElementCol> clone = MakeEmptyClone();
    for (const CElement& element : *this)
        clone->Add(element.Clone());
    return clone;
}

CSmartPtr<CElementCol> CElementCol::MakeEmptyClone() const {
    return new CElementCol(m_defaultNamespace.c_str(), m_namespaceRestriction.c_str(),
                           m_targetNamespace.c_str(), GetMinOccurs(), GetMaxOccurs());
}

void CElementCol::ToXml_Int(CXmlWriter* writer, bool, const char16_t* elementNamespace,
                            const CXmlSerializationContext& context, bool) const {
    ValidateCount(context);
    for (const CNode* node = m_head; node; node = node->m_next)
        ToXml_Int(node->m_item->GetBase(), writer, false, elementNamespace, context, false);
}

bool CElementCol::Admits(const CXmlElement& element) const {
    return KzXmlLib10::IsNamespaceValid(element.GetNamespaceURI(), m_namespaceRestriction, m_targetNamespace);
}

CSmartPtr<CElement> CElementCol::MakeElement(const CXmlElement& source, const char16_t* restriction) const {
    return new CElement(source.GetLocalName().c_str(), source.GetNamespaceURI().c_str(), restriction,
                        m_targetNamespace.c_str());
}

/// Reads `current` into the new element and adds that. Returns the position behind it, or `current` itself if
/// the element did not take it.
CXmlElement* CElementCol::TakeElement(CSmartPtr<CElement> element, CXmlElement* parent, CXmlElement* current,
                                      const CXmlSerializationContext& context) {
    CXmlElement* next = FromXml_Int(element, parent, current, context);
    if (next != current)
        Add(element);
    return next;
}

CXmlElement* CElementCol::FromXml_Int(CXmlElement* element, CXmlElement* current,
                                      const CXmlSerializationContext& context, bool) {
    while (current && Admits(*current)) {
        CXmlElement* next =
            TakeElement(MakeElement(*current, m_namespaceRestriction.c_str()), element, current, context);
        if (next == current)
            break;
        current = next;
    }
    return current;
}

CXmlElement* CElementCol::FromXmlLockElementName_Int(std::u16string name, std::u16string namespaceUri,
                                                     CXmlElement* parent, CXmlElement* current,
                                                     const CXmlSerializationContext& context) {
    while (current && current->GetLocalName() == name && current->GetNamespaceURI() == namespaceUri) {
        CXmlElement* next = TakeElement(MakeElement(*current, u"##any"), parent, current, context);
        if (next == current)
            break;
        current = next;
    }
    return current;
}

} // namespace KzXmlLib10
