#pragma once

#include <KzXmlLib10/collections/CXmlCollectionBase.h>

namespace KzXmlLib10 {

/// One cell of the list of a CXmlCollection.
struct CNode {
    CSmartPtr<CXmlObjectBase> m_item;
    CNode* m_next = nullptr;
    CNode* m_previous = nullptr;
};

template <class T>
class CKzIterator;

/// The base of collections of objects, held in a doubly linked list.
///
///     class COrderCol : public CXmlCollection { // as a generator writes it
///     public:
///         void Add(COrder* order) { AppendItem(order); }
///         CSmartPtr<COrder> Item(int index) const {
///             return static_cast<COrder*>(&*GetNodeAtIndex(index)->m_item);
///         }
///         CKzIterator<COrder> begin() const { return CKzIterator<COrder>(m_head); }
///         CKzIterator<COrder> end() const { return CKzIterator<COrder>(); }
///         ...
///     };
///
/// The list holds one reference of each item; an item may be held elsewhere too, and more than once here.
/// Access by index walks from the head; CKzIterator does not.
///
/// Deliberate: removals tell no index, so listeners of these collections always receive null with them.
class QUILLON_EXPORT CXmlCollection : public CXmlCollectionBase {
public:
    /// Shares the items, in a list of its own. Without events.
    CXmlCollection(const CXmlCollection& other);
    CXmlCollection& operator=(const CXmlCollection& other);
    /// Removes all items as Clear does; what listeners throw is swallowed, and what they add goes without
    /// events.
    ~CXmlCollection() override;

    int GetCount() const override;
    void Clear() override;
    void Remove(int index) override;

    /// The items as what all have in common, for collections that have no iterators of their own. Takes the
    /// header of CKzIterator.
    inline CKzIterator<CXmlObjectBase> begin() const;
    inline CKzIterator<CXmlObjectBase> end() const;

protected:
    CXmlCollection();
    CXmlCollection(const char16_t* elementName, const char16_t* elementNamespace, int minOccurs,
                   int maxOccurs);

    using CXmlObjectBase::AttributesToXml_Int;
    /// Writes the attributes of all items onto the open start tag, for repeated groups.
    void AttributesToXml_Int(CXmlWriter* writer, const CXmlSerializationContext& context) const override;

    // Adding tells the listeners first, and nothing is added if one throws. The item is counted after that,
    // so a listener may not count a fresh one meanwhile. An item that is null throws
    // CKzInvalidParamException.

    void AppendItem(CXmlObjectBase* item);
    /// The same. A listener may have removed the item again, which is then held by the caller alone.
    CSmartPtr<CXmlObjectBase> AppendHeld(CXmlObjectBase* item);
    void PrependItem(CXmlObjectBase* item);
    /// Throws CKzInvalidParamException if `existing` is not in the list.
    ///
    /// Deliberate: behind null is in front of all.
    void AddAfterItem(const CXmlObjectBase* existing, CXmlObjectBase* item);
    /// Throws CKzInvalidParamException if `existing` is not in the list.
    ///
    /// Deliberate: in front of null is behind all.
    void AddBeforeItem(const CXmlObjectBase* existing, CXmlObjectBase* item);
    /// Adds in front of the item at the index; an index equal to the count appends. Any other index throws
    /// CKzInvalidParamException before the listeners hear of it.
    void AddItemAt(int index, CXmlObjectBase* item);
    /// Removes a cell of this list, and the reference that it holds.
    void RemoveNode(CNode* node);
    /// Throws CKzInvalidParamException if there is none.
    CNode* GetNodeAtIndex(int index) const;
    /// The first cell of the item, by identity. Throws CKzInvalidParamException if there is none.
    CNode* GetNodeForItem(const CXmlObjectBase* item) const;

    CNode* m_head = nullptr;
    CNode* m_tail = nullptr;
    std::int32_t m_count = 0;

private:
    friend class KzXmlLib10Data::CAttributeInfo;
    friend class KzXmlLib10Data::CElementInfo;

    template <class FindNext>
    CSmartPtr<CXmlObjectBase> AddItem(CXmlObjectBase* item, FindNext findNext);
    void ShareItemsOf(const CXmlCollection& other);
    void LinkInFrontOf(CNode* next, CXmlObjectBase* item);
    void RequireNode(const CNode* node) const;
    void DropNode(CNode* node);
    void DropFirst(std::int32_t count);
};

} // namespace KzXmlLib10
