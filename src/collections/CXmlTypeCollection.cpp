#include <KzXmlLib10/collections/CXmlTypeCollection.h>

#include "object/NotNull.h"
#include "object/TextScan.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10 {

CXmlTypeCollection::CXmlTypeCollection(ItemType itemType, const char16_t* elementName,
                                       const char16_t* elementNamespace, int minOccurs, int maxOccurs,
                                       const char16_t* pattern, int minLength, int maxLength,
                                       const char16_t* minInclusive, const char16_t* maxInclusive,
                                       const char16_t* minExclusive, const char16_t* maxExclusive, int length,
                                       CWhitespaceUtils::WhitespaceRule whitespaceRule,
                                       const char16_t* formatOverride)
    : CXmlCollectionBase(elementName, elementNamespace, minOccurs, maxOccurs),
      m_restrictions(pattern, minLength, maxLength, minInclusive, maxInclusive, minExclusive, maxExclusive,
                     length),
      m_itemType(itemType), m_formatOverride(EmptyIfNull(formatOverride)), m_whitespaceRule(whitespaceRule) {}

CXmlTypeCollection::CXmlTypeCollection(const CXmlTypeCollection& other) = default;
CXmlTypeCollection& CXmlTypeCollection::operator=(const CXmlTypeCollection& other) = default;
CXmlTypeCollection::~CXmlTypeCollection() = default;

CXmlElement* CXmlTypeCollection::FromXml_Int(CXmlElement*, CXmlElement* current,
                                             const CXmlSerializationContext& context, bool) {
    const std::u16string name = GetElementName();
    const bool ignoresNamespaces = context.GetIgnoreNamespaces();
    while (current && SameText(current->GetLocalName(), name) &&
           (ignoresNamespaces || SameText(current->GetNamespaceURI(), m_elementNamespace))) {
        AddFromString(current->GetText());
        current = current->GetNextSiblingElement();
    }
    return current;
}

} // namespace KzXmlLib10
