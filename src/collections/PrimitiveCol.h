#pragma once

#include <KzXmlLib10/collections/CPrimitiveCol.h>
#include <KzXmlLib10/conversions/CConversions.h>
#include <KzXmlLib10/conversions/FacetChecks.h>
#include <KzXmlLib10/xml/CXmlWriter.h>

#include "collections/ItemIndex.h"
#include "conversions/WorkingText.h"
#include "xml/Leaf.h"

#include <type_traits>
#include <utility>

/// The operations of CPrimitiveCol. The source of a family gives the facts of each of its classes and
/// instantiates the template for it.
namespace KzXmlLib10 {

/// All that tells one class from the others, besides the type of its values.
template <class ToText, class FromText, class Check>
struct PrimitiveColFacts {
    const char16_t* className;
    ItemType itemType;
    ToText toText;     ///< of a value, or of a value and the format
    FromText fromText; ///< of a text and the whitespace rule
    Check check;       ///< of the facets; null for none
};

template <class ToText, class FromText, class Check>
PrimitiveColFacts(const char16_t*, ItemType, ToText, FromText, Check)
    -> PrimitiveColFacts<ToText, FromText, Check>;

/// The row of facts of a class.
template <class Collection>
inline constexpr auto primitiveColFacts = nullptr;

template <class Collection, class T>
CPrimitiveCol<Collection, T>::CPrimitiveCol(const char16_t* elementName, const char16_t* elementNamespace,
                                            int minOccurs, int maxOccurs, const char16_t* pattern,
                                            int minLength, int maxLength, const char16_t* minInclusive,
                                            const char16_t* maxInclusive, const char16_t* minExclusive,
                                            const char16_t* maxExclusive, int length,
                                            CWhitespaceUtils::WhitespaceRule whitespaceRule,
                                            const char16_t* formatOverride)
    : CXmlTypeCollection(primitiveColFacts<Collection>.itemType, elementName, elementNamespace, minOccurs,
                         maxOccurs, pattern, minLength, maxLength, minInclusive, maxInclusive, minExclusive,
                         maxExclusive, length, whitespaceRule, formatOverride),
      CInstanceMonitor(primitiveColFacts<Collection>.className) {}

template <class Collection, class T>
CPrimitiveCol<Collection, T>::CPrimitiveCol(const CPrimitiveCol& other) = default;
template <class Collection, class T>
CPrimitiveCol<Collection, T>& CPrimitiveCol<Collection, T>::operator=(const CPrimitiveCol& other) = default;
template <class Collection, class T>
CPrimitiveCol<Collection, T>::~CPrimitiveCol() = default;

template <class Collection, class T>
void CPrimitiveCol<Collection, T>::Add(T value) {
    AddAt(GetCount(), std::move(value));
}

template <class Collection, class T>
void CPrimitiveCol<Collection, T>::AddAt(int index, T value) {
    FireOnCollectionAdd(&value); // Deliberate: also for an index that is refused below.
    RequireInsertIndex(index, GetCount());
    if constexpr (!std::is_null_pointer_v<decltype(primitiveColFacts<Collection>.check)>)
        primitiveColFacts<Collection>.check(ElementName().c_str(), value, m_restrictions);
    // Listeners still see the value afterwards; without any it is moved.
    m_items.Insert(index, HasEventListeners() ? value : std::move(value));
    FireOnCollectionAddComplete(&value);
    FireOnCollectionChange();
}

template <class Collection, class T>
T CPrimitiveCol<Collection, T>::Item(int index) const {
    RequireItemIndex(index, GetCount());
    return m_items.Item(index);
}

template <class Collection, class T>
int CPrimitiveCol<Collection, T>::GetCount() const {
    return m_items.GetCount();
}

template <class Collection, class T>
void CPrimitiveCol<Collection, T>::Clear() {
    RemoveAll(*this);
}

template <class Collection, class T>
void CPrimitiveCol<Collection, T>::Remove(int index) {
    FireOnCollectionRemove(index); // Deliberate: also for an index that is refused below.
    RequireItemIndex(index, GetCount());
    m_items.Remove(index);
    FireOnCollectionRemoveComplete(0); // Deliberate: 0 whatever the index.
    FireOnCollectionChange();
}

template <class Collection, class T>
void CPrimitiveCol<Collection, T>::AddFromString(std::u16string text) {
    if constexpr (std::is_same_v<T, std::u16string>)
        Add(IsLeftAlone(text, m_whitespaceRule) ? std::move(text)
                                                : CWhitespaceUtils::ApplyRule(m_whitespaceRule, text));
    else
        Add(primitiveColFacts<Collection>.fromText(text, m_whitespaceRule));
}

template <class Collection, class T>
void CPrimitiveCol<Collection, T>::ToXml_Int(CXmlWriter* writer, bool, const char16_t*,
                                             const CXmlSerializationContext& context, bool) const {
    constexpr auto toText = primitiveColFacts<Collection>.toText;
    ValidateCount(context);
    for (auto&& item : m_items) {
        if constexpr (std::is_same_v<T, std::u16string>)
            writer->WriteLeaf({ElementName(), m_elementNamespace}, item, m_itemType);
        else
            WriteLeafOf(*writer, {ElementName(), m_elementNamespace}, m_itemType, [&] {
                if constexpr (std::is_invocable_v<decltype(toText), const T&, const std::u16string&>)
                    return toText(item, m_formatOverride);
                else
                    return toText(item);
            });
    }
}

} // namespace KzXmlLib10
