#include "support/Test.h"

namespace {

using enum IEventSink::MsgType;

struct CItem : ScriptedObject {
    explicit CItem(char16_t letter) : ScriptedObject(""), name(1, static_cast<char>(letter)) { ++living; }
    ~CItem() override { --living; }
    static std::string NameOf(void* item) {
        return static_cast<CItem*>(static_cast<CXmlObjectBase*>(item))->name;
    }
    std::string name;
    CSmartPtr<CItem> next;
    static inline int living = 0;
};

/// As a generator writes it, but with all protected operations in the open.
struct CItemCol : kit::CModelCol {
    CItemCol() : CModelCol(kit::NewModel(u"item"), u"item", u"urn:i", 1, 2) {}

    using CXmlCollection::AddAfterItem;
    using CXmlCollection::AddBeforeItem;
    using CXmlCollection::AddItemAt;
    using CXmlCollection::AppendItem;
    using CXmlCollection::GetNodeAtIndex;
    using CXmlCollection::GetNodeForItem;
    using CXmlCollection::PrependItem;
    using CXmlCollection::RemoveNode;
    using CXmlCollectionBase::GetTargetNamespace;

    CKzIterator<CItem> begin() const { return CKzIterator<CItem>(m_head); }
    CKzIterator<CItem> end() const { return CKzIterator<CItem>(); }
    void Remove(int index) override {
        ++removals;
        CXmlCollection::Remove(index);
    }

    void Fill(std::u16string_view names) {
        for (const char16_t name : names)
            AppendItem(new CItem(name));
    }
    /// The names of the items, which are the same backwards.
    std::string Names() const {
        std::string forwards, backwards;
        for (const CItem& item : *this)
            forwards += item.name;
        for (const CNode* node = m_tail; node; node = node->m_previous)
            backwards.insert(0, static_cast<const CItem&>(*node->m_item).name);
        EXPECT_EQ(std::tuple(forwards, forwards.size()), std::tuple(backwards, GetCount()));
        return forwards;
    }

    int removals = 0;
};

static_assert(std::forward_iterator<CKzIterator<CItem>>);

struct Log : EventLog {
    Log() : EventLog(CItem::NameOf) {}
};

struct Refusal {};
const std::string removal = "remove(null) removed(null) change ";

TEST(CXmlCollection, AddsAndRemovesWithTheirEvents) {
    Log log;
    CSmartPtr<CItemCol> items = new CItemCol;
    log.Watch(*items);
    CSmartPtr<CItem> b = new CItem(u'b');
    EXPECT_EQ(log.Of([&] { items->AppendItem(b); }), "add(b) added(b) change ");
    items->PrependItem(new CItem(u'a'));
    items->AddItemAt(2, new CItem(u'e'));
    items->AddItemAt(2, new CItem(u'd'));
    items->AddBeforeItem(items->GetNodeAtIndex(2)->m_item, new CItem(u'c'));
    items->AddAfterItem(b, new CItem(u'+'));
    EXPECT_EQ(items->Names(), "ab+cde");
    items->AppendItem(b); // identity decides, and the first node is found
    EXPECT_EQ(items->GetNodeForItem(b), items->GetNodeAtIndex(1));
    items->Remove(1);
    EXPECT_EQ(items->GetNodeForItem(b), items->GetNodeAtIndex(5));
    items->Remove(5);
    items->AddItemAt(1, b);

    for (const int index : {1, 4, 0})
        EXPECT_EQ(log.Of([&] { items->Remove(index); }), removal);
    EXPECT_EQ(items->Names(), "+cd");
    EXPECT_EQ(CItem::living, 4); // b is held elsewhere
    EXPECT_EQ(log.Of([&] { items->Clear(); }), removal + removal + removal);
    // No anchor means the far end.
    items->Fill(u"yz");
    items->AddAfterItem(nullptr, new CItem(u'x'));
    items->AddBeforeItem(nullptr, b);
    EXPECT_EQ(items->Names(), "xyzb");
    items = nullptr;
    EXPECT_EQ(CItem::living, 1);
}

TEST(CXmlCollection, RefusesBadIndexesAnchorsAndNull) {
    Log log;
    CItemCol items;
    log.Watch(items);
    const CSmartPtr<CItem> stranger = new CItem(u'x');
    for (const int index : {-1, 1})
        EXPECT_EQ(log.Of([&] { items.AddItemAt(index, stranger); }), "Index out of range");
    EXPECT_EQ(log.Of([&] { items.Remove(0); }), "Index 0 is out of range, use 0 - 0");
    EXPECT_EQ(log.Of([&] { items.AppendItem(nullptr); }), "The argument item may not be null");
    EXPECT_EQ(log.Of([&] { items.RemoveNode(nullptr); }), "The argument node may not be null");
    items.Fill(u"ab");
    EXPECT_EQ(log.Of([&] { items.GetNodeAtIndex(-1); }), "Index -1 is out of range, use 0 - 2");
    EXPECT_EQ(log.Of([&] { items.GetNodeAtIndex(2); }), "Index 2 is out of range, use 0 - 2");
    EXPECT_EQ(log.Of([&] { items.AddAfterItem(stranger, stranger); }),
              "add(x) The object was not found in the collection");
    EXPECT_EQ(items.Names(), "ab");
    EXPECT_EQ(Failure([&] { items.GetTargetNamespace(); }),
              "CXmlCollectionBase::GetTargetNamespace Should not be used from within a Collection (program "
              "logic error)");
}

TEST(CXmlCollection, ThrowingListenersStopTheChange) {
    Log log;
    IEventSink::MsgType refused{};
    auto items = std::make_unique<CItemCol>();
    items->Fill(u"a");
    log.Watch(*items);
    log.during = [&](IEventSink::MsgType type) {
        if (type == refused)
            throw Refusal();
    };
    const CSmartPtr<CItem> b = new CItem(u'b');
    const auto change = [&](bool add, IEventSink::MsgType type) {
        refused = type;
        EXPECT_THROW(add ? items->AppendItem(b) : items->Remove(0), Refusal);
        return log.Take() + items->Names();
    };
    EXPECT_EQ(change(true, MsgType_CollectionAdd), "add(b) a");
    EXPECT_EQ(change(true, MsgType_CollectionAddComplete), "add(b) added(b) ab");
    EXPECT_EQ(change(true, MsgType_CollectionChange), "add(b) added(b) change abb");
    EXPECT_EQ(change(false, MsgType_CollectionRemove), "remove(null) abb");
    EXPECT_EQ(change(false, MsgType_CollectionRemoveComplete), "remove(null) removed(null) bb");

    log.during = [](IEventSink::MsgType) { throw Refusal(); };
    items.reset(); // tells of each item all the same
    EXPECT_EQ(log.Take(), removal + removal);
    EXPECT_EQ(CItem::living, 1);
}

TEST(CXmlCollection, ListenersMayComeAndGoDuringAnEvent) {
    Log first, second, third, late;
    CItemCol items;
    for (Log* log : {&first, &second, &third})
        log->Watch(items);
    first.during = [&](IEventSink::MsgType type) {
        if (type != MsgType_CollectionAdd)
            return;
        items.RemoveEventListener(&first);
        items.RemoveEventListener(&second);
        late.Watch(items);
    };
    items.Fill(u"a");
    EXPECT_EQ(first.Take() + "|" + second.Take() + "|" + third.Take() + "|" + late.Take(),
              "add(a) ||add(a) added(a) change |added(a) change ");

    items.AddEventListener(&late);
    items.RemoveEventListener(&late); // both registrations
    items.Fill(u"a");
    EXPECT_EQ(late.Take(), "");
}

TEST(CXmlCollection, ListenersMayRemoveTheItem) {
    Log log, second;
    bool busy = false;
    IEventSink::MsgType trigger = MsgType_CollectionAddComplete;
    CItemCol items;
    log.Watch(items);
    log.during = [&](IEventSink::MsgType type) {
        if (type == trigger && !std::exchange(busy, true)) {
            items.Remove(0);
            busy = false;
        }
    };
    second.Watch(items);
    items.Fill(u"a");
    EXPECT_EQ(second.Take(), "add(a) " + removal + "added(a) change ");
    EXPECT_EQ(CItem::living, 0);

    trigger = MsgType_CollectionRemove;
    items.Fill(u"ab");
    EXPECT_EQ(InvalidParam([&] { items.Remove(0); }), "The object was not found in the collection");
    EXPECT_EQ(items.Names(), "b");
    log.during = nullptr; // the destructor fires events too
}

TEST(CXmlCollection, ListenersMayHoldADyingCollection) {
    Log log;
    const CSmartPtr<CItem> item = new CItem(u'a');
    {
        CItemCol items;
        items.AppendItem(item);
        log.Watch(items);
        log.during = [&](IEventSink::MsgType type) {
            const CSmartPtr<CItemCol> sender = &items;
            if (type == MsgType_CollectionRemoveComplete)
                items.AppendItem(item);
        };
    }
    EXPECT_EQ(log.Take(), "remove(null) removed(null) add(a) added(a) change change ");
    EXPECT_EQ(item->AddRef(), 2);
    item->Release();
}

TEST(CXmlCollection, ACopySharesTheItemsInAListOfItsOwn) {
    Log log;
    CItemCol items;
    items.Fill(u"abc");
    log.Watch(items);
    {
        CItemCol copy(items), assigned;
        copy.RemoveEventListener(&log);
        copy.Remove(1);
        copy.Fill(u"d");
        assigned.Fill(u"xyz");
        assigned = copy;
        assigned = *&assigned;
        EXPECT_EQ(copy.Names() + assigned.Names(), "acdacd");
        EXPECT_EQ(&*assigned.begin(), &*items.begin());
    }
    EXPECT_EQ(items.Names() + std::to_string(CItem::living) + log.Take(), "abc3");
}

TEST(CXmlCollection, ManyItemsGoInLinearTime) {
    constexpr int count = 50'000;
    Log log;
    CItemCol items;
    log.Watch(items);
    const double seconds = Seconds([&] {
        items.Fill(std::u16string(count, u'i'));
        items.Clear();
        CSmartPtr<CItem> chain;
        for (int i = 0; i < 10 * count; ++i) {
            CSmartPtr<CItem> link = new CItem(u'l');
            link->next = chain;
            chain = link;
        }
    });
    EXPECT_EQ(items.removals, count); // an overridden Remove is honoured
    EXPECT_EQ(CItem::living, 0);
    EXPECT_LT(seconds, 20);
}

} // namespace
