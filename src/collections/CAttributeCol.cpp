#include <KzXmlLib10/collections/CAttributeCol.h>

#include "collections/Messages.h"
#include "object/NamespaceRestriction.h"
#include "object/NotNull.h"

#include <KzXmlLib10/xml/CXmlAttribute.h>
#include <KzXmlLib10/xml/CXmlElement.h>

#include <string_view>

namespace KzXmlLib10 {

namespace {

/// The first namespace of a restriction to namespaces; empty for a keyword.
std::u16string FirstNamespace(std::u16string_view restriction) {
    const std::u16string_view first = restriction.substr(0, restriction.find(u' '));
    if (first.size() < 2 || first[0] == u'#' || first[1] == u'#')
        return {};
    return std::u16string(first);
}

} // namespace

CAttributeCol::CAttributeCol(const char16_t* defaultNamespace, const char16_t* namespaceRestriction,
                             const char16_t* targetNamespace)
    : CXmlCollection(u"", defaultNamespace, 0, -1), CInstanceMonitor(u"CAttributeCol"),
      m_namespaceRestriction(NotNull(namespaceRestriction, u"namespaceRestriction")),
      m_targetNamespace(NotNull(targetNamespace, u"targetNamespace")) {
    if (m_elementNamespace.empty())
        m_elementNamespace = FirstNamespace(m_namespaceRestriction);
}

CAttributeCol::CAttributeCol(const CAttributeCol& other) = default;
CAttributeCol& CAttributeCol::operator=(const CAttributeCol& other) = default;
CAttributeCol::~CAttributeCol() = default;

std::u16string CAttributeCol::GetNamespace() const { return m_elementNamespace; }
std::u16string CAttributeCol::GetTargetNamespace() const { return m_elementNamespace; }

CSmartPtr<CAttribute> CAttributeCol::Add(CAttribute* attribute) {
    return static_cast<CAttribute*>(&*AppendHeld(attribute));
}

CSmartPtr<CAttribute> CAttributeCol::Add(const char16_t* name) { return Add(name, u""); }

CSmartPtr<CAttribute> CAttributeCol::Add(const char16_t* name, const char16_t* value) {
    return Add(name, value, m_elementNamespace.c_str());
}

CSmartPtr<CAttribute> CAttributeCol::Add(const char16_t* name, const char16_t* value,
                                         const char16_t* namespaceUri) {
    KzXmlLib10::TestNamespace(NotNull(namespaceUri, u"namespaceUri"), m_namespaceRestriction,
                              m_targetNamespace);
    const CSmartPtr<CAttribute> attribute = new CAttribute(name, value, namespaceUri);
    return Add(attribute);
}

void CAttributeCol::AddAfter(const CAttribute* existing, CAttribute* attribute) {
    AddAfterItem(existing, attribute);
}

void CAttributeCol::AddBefore(const CAttribute* existing, CAttribute* attribute) {
    AddBeforeItem(existing, attribute);
}

CSmartPtr<CAttribute> CAttributeCol::Item(int index) const {
    return static_cast<CAttribute*>(&*GetNodeAtIndex(index)->m_item);
}

CKzIterator<CAttribute> CAttributeCol::begin() const { return CKzIterator<CAttribute>(m_head); }
CKzIterator<CAttribute> CAttributeCol::end() const { return CKzIterator<CAttribute>(); }

CSmartPtr<CAttributeCol> CAttributeCol::Clone() const {
    CSmartPtr<CAttributeCol> clone = new CAttributeCol(
        m_elementNamespace.c_str(), m_namespaceRestriction.c_str(), m_targetNamespace.c_str());
    for (const CAttribute& attribute : *this)
        clone->Add(attribute.Clone());
    return clone;
}

void CAttributeCol::ToXml_Int(CXmlWriter* writer, bool, const char16_t* elementNamespace,
                              const CXmlSerializationContext& context, bool) const {
    for (const CNode* node = m_head; node; node = node->m_next)
        ToXml_Int(node->m_item->GetBase(), writer, false, elementNamespace, context, false);
}

CXmlElement* CAttributeCol::FromXml_Int(CXmlElement* element, CXmlElement* current,
                                        const CXmlSerializationContext&, bool) {
    for (const CXmlAttribute* attribute : element->GetAttributes()) {
        if (!KzXmlLib10::IsNamespaceValid(attribute->GetNamespaceURI(), m_namespaceRestriction,
                                          m_targetNamespace))
            Throw<CKzInvalidNamespaceException>(messages::InappropriateAttribute, attribute->GetLocalName());
        Add(attribute->GetLocalName().c_str(), attribute->GetValue().c_str(),
            attribute->GetNamespaceURI().c_str());
    }
    return current;
}

} // namespace KzXmlLib10
