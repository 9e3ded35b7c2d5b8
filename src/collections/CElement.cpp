#include <KzXmlLib10/collections/CElement.h>

#include "collections/Messages.h"
#include "object/NamespaceRestriction.h"
#include "object/NotNull.h"

namespace KzXmlLib10 {

namespace {

const char16_t* NotKeyword(const char16_t* namespaceUri) {
    const std::u16string_view text = NotNull(namespaceUri, u"namespaceUri");
    for (const std::u16string_view keyword : {u"##any", u"##other", u"##local", u"##targetNamespace"}) {
        if (text == keyword)
            Throw<CKzInvalidNamespaceException>(messages::KeywordAsNamespace, namespaceUri);
    }
    return namespaceUri;
}

} // namespace

CElement::CElement(const char16_t* name) : CElement(name, u"", u"##any", u"") {}

CElement::CElement(const char16_t* name, const char16_t* namespaceUri)
    : CElement(name, NotKeyword(namespaceUri), namespaceUri, u"") {}

CElement::CElement(const char16_t* name, const char16_t* namespaceUri, const char16_t* namespaceRestriction,
                   const char16_t* targetNamespace)
    : CInstanceMonitor(u"CElement") {
    Init(name, namespaceUri, namespaceRestriction, targetNamespace);
}

CElement::CElement(const CElement& other) = default;
CElement& CElement::operator=(const CElement& other) {
    const CSmartPtr<CElementCol> held = m_childElements; // which may be what keeps `other` alive
    CXmlObjectBase::operator=(other);
    m_name = other.m_name;
    m_text = other.m_text;
    m_namespace = other.m_namespace;
    m_namespaceRestriction = other.m_namespaceRestriction;
    m_targetNamespace = other.m_targetNamespace;
    m_attributes = other.m_attributes;
    m_childElements = other.m_childElements;
    m_defaultNamespace = other.m_defaultNamespace;
    return *this;
}
CElement::~CElement() = default;

void CElement::Init(const char16_t* name, const char16_t* namespaceUri, const char16_t* namespaceRestriction,
                    const char16_t* targetNamespace) {
    if (!name)
        Throw<CKzInvalidNamespaceException>(messages::ElementNameIsNull);
    if (!namespaceRestriction)
        Throw<CKzInvalidNamespaceException>(messages::NamespaceRestrictionIsNull);
    if (!targetNamespace)
        Throw<CKzInvalidNamespaceException>(messages::TargetNamespaceIsNull);
    TestNamespace(namespaceUri, namespaceRestriction, targetNamespace);
    m_name = name;
    m_namespace = namespaceUri;
    m_namespaceRestriction = namespaceRestriction;
    m_targetNamespace = targetNamespace;
    m_attributes = new CAttributeCol(namespaceUri, u"##any", targetNamespace);
    m_childElements = new CElementCol(namespaceUri, u"##any", targetNamespace, 0, -1);
}

CXmlObjectBase* CElement::GetBase() { return this; }
std::u16string CElement::GetNamespace() const { return m_namespace; }
std::u16string CElement::GetTargetNamespace() const { return m_namespace; }

std::u16string CElement::GetName() const { return m_name; }
void CElement::SetName(const char16_t* name) { m_name = NotNull(name, u"name"); }
std::u16string CElement::GetText() const { return m_text; }
void CElement::SetText(const char16_t* text) { m_text = NotNull(text, u"text"); }
void CElement::SetNamespace(const char16_t* namespaceUri) {
    m_namespace = NotNull(namespaceUri, u"namespaceUri");
}

CSmartPtr<CAttributeCol> CElement::GetAttributes() const { return m_attributes; }
CSmartPtr<CElementCol> CElement::GetChildElements() const { return m_childElements; }

void CElement::FireOnChangeName() {}
void CElement::FireOnChangeNamespace() {}
void CElement::FireOnChangeText() {}

} // namespace KzXmlLib10
