// In the form that a generator emits: the part that the collections of all repeated objects share.
#pragma once

#include <KzXmlLib10/collections/CKzIterator.h>
#include <KzXmlLib10/collections/CXmlCollection.h>
#include <KzXmlLib10/xml/CXmlElement.h>

#include <string>

namespace orders {

using namespace KzXmlLib10;

/// A repeated element whose items are objects of one generated class.
template <class ItemClass>
class CObjectCollection : public CXmlCollection {
public:
    CObjectCollection(const char16_t* elementName, const char16_t* elementNamespace, int minOccurs,
                      int maxOccurs)
        : CXmlCollection(elementName, elementNamespace, minOccurs, maxOccurs) {}

    /// Appends a new item.
    CSmartPtr<ItemClass> Add() {
        const CSmartPtr<ItemClass> item = new ItemClass(GetElementName().c_str());
        AppendItem(item);
        return item;
    }
    /// Appends an item, which must have the element name of the collection. An item of another name and null
    /// throw CKzInvalidParamException.
    void Add(ItemClass* item) {
        Throw_IfElementNameDiffers(item, GetElementName().c_str());
        AppendItem(item);
    }
    /// As Add, in front of the item at the index.
    void AddAt(int index, ItemClass* item) {
        Throw_IfElementNameDiffers(item, GetElementName().c_str());
        AddItemAt(index, item);
    }
    /// Throws CKzInvalidParamException if there is none. Walks from the head; the iterators do not.
    CSmartPtr<ItemClass> Item(int index) const {
        return static_cast<ItemClass*>(&*GetNodeAtIndex(index)->m_item);
    }

    CKzIterator<ItemClass> begin() const { return CKzIterator<ItemClass>(m_head); }
    CKzIterator<ItemClass> end() const { return CKzIterator<ItemClass>(); }

protected:
    using CXmlObjectBase::FromXml_Int;
    using CXmlObjectBase::ToXml_Int;

    void ToXml_Int(CXmlWriter* writer, bool, const char16_t*, const CXmlSerializationContext& context,
                   bool) const override {
        for (const CNode* node = m_head; node; node = node->m_next)
            CXmlObjectBase::ToXml_Int(node->m_item, writer, false, m_elementNamespace.c_str(), context,
                                      false);
    }

    /// Takes the whole run of elements that bear the name of the items.
    CXmlElement* FromXml_Int(CXmlElement*, CXmlElement* current, const CXmlSerializationContext& context,
                             bool) override {
        const std::u16string name = GetElementName();
        for (; current && DoesElementNameMatch(context, current, name.c_str(), m_elementNamespace.c_str());
             current = current->GetNextSiblingElement()) {
            const CSmartPtr<ItemClass> item = new ItemClass(name.c_str());
            CXmlObjectBase::FromXml_Int(item, current, current->GetFirstElement(), context);
            AppendItem(item);
        }
        return current;
    }
};

} // namespace orders
