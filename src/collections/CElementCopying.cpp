/// How a generic element is cloned and checked with all below it.

#include <KzXmlLib10/collections/CElement.h>

#include "collections/DepthFirst.h"
#include "object/NamespaceRestriction.h"
#include "object/NotNull.h"

namespace KzXmlLib10 {

/// An element and the clone that its children are put into.
class CElement::Cloning {
public:
    Cloning(const CElement& source, CSmartPtr<CElement> clone, CElementCol* into)
        : m_source(&source), m_clone(std::move(clone)), m_into(into),
          m_next(source.m_childElements->begin()) {}

    const CElement* Node() const { return m_source; }

    std::optional<Cloning> EnterNextChild() {
        if (m_next == m_source->m_childElements->end())
            return std::nullopt;
        const CElement& child = *m_next++;
        return Cloning(child, child.MakeEmptyClone(), m_clone->m_childElements);
    }

    void Leave() {
        m_clone->m_text = m_source->m_text;
        if (m_into)
            m_into->Add(m_clone);
    }

private:
    const CElement* m_source;
    CSmartPtr<CElement> m_clone;
    CElementCol* m_into;
    CKzIterator<CElement> m_next;
};

/// Deliberate: the default namespace does not come along, so a clone is written as any other element.
CSmartPtr<CElement> CElement::MakeEmptyClone() const {
    CSmartPtr<CElement> clone = new CElement(m_name.c_str(), m_namespace.c_str(),
                                             m_namespaceRestriction.c_str(), m_targetNamespace.c_str());
    clone->m_attributes = m_attributes->Clone();
    clone->m_childElements = m_childElements->MakeEmptyClone();
    return clone;
}

CSmartPtr<CElement> CElement::Clone() const {
    CSmartPtr<CElement> clone = MakeEmptyClone();
    WalkDepthFirst(Cloning(*this, clone, nullptr));
    return clone;
}

/// An element whose own namespaces fit the restriction.
class CElement::Checking {
public:
    Checking(const CElement& element, const char16_t* restriction, const char16_t* targetNamespace)
        : m_element(&element), m_restriction(restriction), m_targetNamespace(targetNamespace),
          m_next(element.m_childElements->begin()) {
        try {
            KzXmlLib10::TestNamespace(element.m_namespace, restriction, targetNamespace);
        } catch (const CKzInvalidNamespaceException& failure) {
            // Deliberate: thrown as a pointer, and the name stands in the place of the namespace.
            const Message<std::u16string, std::u16string, const char16_t*> message =
                messages::NamespaceAgainstRestriction;
            throw new CKzInvalidNamespaceException(
                message.Format(element.m_name, element.m_namespace, restriction), failure);
        }
        for (const CAttribute& attribute : *element.m_attributes)
            KzXmlLib10::TestNamespace(attribute.GetNamespace(), restriction, targetNamespace);
    }

    const CElement* Node() const { return m_element; }

    std::optional<Checking> EnterNextChild() {
        if (m_next == m_element->m_childElements->end())
            return std::nullopt;
        return Checking(*m_next++, m_restriction, m_targetNamespace);
    }

    void Leave() {}

private:
    const CElement* m_element;
    const char16_t* m_restriction;
    const char16_t* m_targetNamespace;
    CKzIterator<CElement> m_next;
};

void CElement::SetNamespaceRestrictions(const char16_t* restriction, const char16_t* targetNamespace) {
    WalkDepthFirst(
        Checking(*this, NotNull(restriction, u"restriction"), NotNull(targetNamespace, u"targetNamespace")));
}

} // namespace KzXmlLib10
