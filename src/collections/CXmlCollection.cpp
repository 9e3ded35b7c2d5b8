#include <KzXmlLib10/collections/CXmlCollection.h>

#include "collections/ItemIndex.h"
#include "object/NotNull.h"

namespace KzXmlLib10 {

namespace {

/// The index that removals tell: the list has none at hand.
constexpr int noIndex = -1;

template <class Action>
void Swallow(Action action) noexcept {
    try {
        action();
    } catch (...) {
    }
}

} // namespace

CXmlCollection::CXmlCollection() = default;

CXmlCollection::CXmlCollection(const char16_t* elementName, const char16_t* elementNamespace, int minOccurs,
                               int maxOccurs)
    : CXmlCollectionBase(elementName, elementNamespace, minOccurs, maxOccurs) {}

CXmlCollection::CXmlCollection(const CXmlCollection& other) : CXmlCollectionBase(other) {
    try {
        ShareItemsOf(other);
    } catch (...) {
        DropFirst(m_count);
        throw;
    }
}

CXmlCollection& CXmlCollection::operator=(const CXmlCollection& other) {
    if (this == &other)
        return *this;
    CXmlCollectionBase::operator=(other);
    const std::int32_t old = m_count;
    ShareItemsOf(other);
    DropFirst(old); // last, since the items may be what keeps `other` alive
    return *this;
}

CXmlCollection::~CXmlCollection() {
    const bool observed = HasEventListeners();
    if (observed)
        AddRef(); // a listener may hold the sender while it listens
    // As many as there are, since a listener may add an item again.
    for (std::int32_t left = m_count; observed && left > 0 && m_head; --left) {
        Swallow([&] { FireOnCollectionRemove(noIndex); });
        if (m_head)
            DropNode(m_head);
        Swallow([&] { FireOnCollectionRemoveComplete(noIndex); });
        Swallow([&] { FireOnCollectionChange(); });
    }
    while (m_head)
        DropNode(m_head);
}

int CXmlCollection::GetCount() const { return m_count; }

void CXmlCollection::Clear() { RemoveAll(*this); }

void CXmlCollection::Remove(int index) { RemoveNode(GetNodeAtIndex(index)); }

void CXmlCollection::AttributesToXml_Int(CXmlWriter* writer, const CXmlSerializationContext& context) const {
    for (const CNode* node = m_head; node; node = node->m_next)
        AttributesToXml_Int(node->m_item->GetBase(), writer, context);
}

/// `findNext` finds the cell in front of which the item goes, or null for the end. It is asked behind the add
/// event, which may change the list.
template <class FindNext>
CSmartPtr<CXmlObjectBase> CXmlCollection::AddItem(CXmlObjectBase* item, FindNext findNext) {
    FireOnCollectionAdd(NotNull(item, u"item"));
    LinkInFrontOf(findNext(), item);
    CSmartPtr<CXmlObjectBase> held = item; // a listener may remove it before the others have heard
    FireOnCollectionAddComplete(item);
    FireOnCollectionChange();
    return held;
}

CSmartPtr<CXmlObjectBase> CXmlCollection::AppendHeld(CXmlObjectBase* item) {
    return AddItem(item, [] { return nullptr; });
}

void CXmlCollection::AppendItem(CXmlObjectBase* item) { AppendHeld(item); }

void CXmlCollection::PrependItem(CXmlObjectBase* item) {
    AddItem(item, [this] { return m_head; });
}

void CXmlCollection::AddAfterItem(const CXmlObjectBase* existing, CXmlObjectBase* item) {
    if (!existing)
        return PrependItem(item); // Deliberate: no anchor means the far end.
    AddItem(item, [&] { return GetNodeForItem(existing)->m_next; });
}

void CXmlCollection::AddBeforeItem(const CXmlObjectBase* existing, CXmlObjectBase* item) {
    if (!existing)
        return AppendItem(item); // Deliberate: no anchor means the far end.
    AddItem(item, [&] { return GetNodeForItem(existing); });
}

void CXmlCollection::AddItemAt(int index, CXmlObjectBase* item) {
    if (index < 0 || index > m_count)
        Throw<CKzInvalidParamException>(messages::InsertIndexOutOfRange);
    if (index == m_count)
        return AppendItem(item);
    AddItem(item, [&] { return GetNodeAtIndex(index); });
}

void CXmlCollection::RemoveNode(CNode* node) {
    NotNull(node, u"node");
    const bool observed = HasEventListeners();
    FireOnCollectionRemove(noIndex);
    if (observed)
        RequireNode(node); // a listener may have removed it
    DropNode(node);
    FireOnCollectionRemoveComplete(noIndex);
    FireOnCollectionChange();
}

CNode* CXmlCollection::GetNodeAtIndex(int index) const {
    if (index < 0 || index > m_count - 1)
        // Deliberate: the second number is one above the highest valid index.
        Throw<CKzInvalidParamException>(messages::ItemIndexOutOfRange, index, m_count);
    CNode* node = m_head;
    while (index-- > 0)
        node = node->m_next;
    return node;
}

CNode* CXmlCollection::GetNodeForItem(const CXmlObjectBase* item) const {
    const CXmlObjectBase* wanted = NotNull(item, u"item")->GetBase();
    for (CNode* node = m_head; node; node = node->m_next) {
        if (node->m_item->GetBase() == wanted)
            return node;
    }
    Throw<CKzInvalidParamException>(messages::ItemNotFound);
}

void CXmlCollection::RequireNode(const CNode* node) const {
    for (const CNode* other = m_head; other; other = other->m_next) {
        if (other == node)
            return;
    }
    Throw<CKzInvalidParamException>(messages::ItemNotFound);
}

void CXmlCollection::ShareItemsOf(const CXmlCollection& other) {
    for (const CNode* node = other.m_head; node; node = node->m_next)
        LinkInFrontOf(nullptr, node->m_item);
}

void CXmlCollection::LinkInFrontOf(CNode* next, CXmlObjectBase* item) {
    CNode* previous = next ? next->m_previous : m_tail;
    auto* node = new CNode{item, next, previous};
    (previous ? previous->m_next : m_head) = node;
    (next ? next->m_previous : m_tail) = node;
    ++m_count;
}

/// The list is whole again before the item goes, whose destructor may look at it.
void CXmlCollection::DropNode(CNode* node) {
    (node->m_previous ? node->m_previous->m_next : m_head) = node->m_next;
    (node->m_next ? node->m_next->m_previous : m_tail) = node->m_previous;
    --m_count;
    delete node;
}

void CXmlCollection::DropFirst(std::int32_t count) {
    while (count-- > 0)
        DropNode(m_head);
}

} // namespace KzXmlLib10
