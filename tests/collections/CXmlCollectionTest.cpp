#include "support/EventLog.h"
#include "support/Script.h"
#include "support/Test.h"

namespace {

int livingItems = 0;

struct CItem : ScriptedObject {
    explicit CItem(const char16_t* itemName) : ScriptedObject(""), name(ToUtf8(itemName)) { ++livingItems; }
    ~CItem() override { --livingItems; }
    std::string name;
    CSmartPtr<CItem> next;
};

/// As a generator writes it, but with all protected operations in the open.
class CItemCol : public CXmlCollection {
public:
    explicit CItemCol(int minOccurs = 0, int maxOccurs = -1)
        : CXmlCollection(u"item", u"urn:i", minOccurs, maxOccurs) {}

    using CXmlCollection::AddAfterItem;
    using CXmlCollection::AddBeforeItem;
    using CXmlCollection::AddItemAt;
    using CXmlCollection::AppendItem;
    using CXmlCollection::GetNodeAtIndex;
    using CXmlCollection::GetNodeForItem;
    using CXmlCollection::PrependItem;
    using CXmlCollectionBase::GetTargetNamespace;

    CKzIterator<CItem> begin() const { return CKzIterator<CItem>(m_head); }
    CKzIterator<CItem> end() const { return CKzIterator<CItem>(); }

    void Remove(int index) override {
        ++removals;
        CXmlCollection::Remove(index);
    }
    int removals = 0;

    std::string Names() const {
        std::string forwards;
        for (const CItem& item : *this)
            forwards += item.name;
        std::string backwards;
        for (const CNode* node = m_tail; node; node = node->m_previous)
            backwards.insert(0, static_cast<const CItem&>(*node->m_item).name);
        EXPECT_EQ(forwards, backwards);
        EXPECT_EQ(forwards.size(), static_cast<std::size_t>(GetCount()));
        return forwards;
    }

    void Fill(std::u16string_view names) {
        for (const char16_t name : names)
            AppendItem(new CItem(std::u16string(1, name).c_str()));
    }

protected:
    void ToXml_Int(CXmlWriter*, bool, const char16_t*, const CXmlSerializationContext&, bool) const override {
    }
    CXmlElement* FromXml_Int(CXmlElement*, CXmlElement* current, const CXmlSerializationContext&,
                             bool) override {
        return current;
    }
};

static_assert(std::forward_iterator<CKzIterator<CItem>>);

std::string NameOf(void* item) { return static_cast<CItem*>(static_cast<CXmlObjectBase*>(item))->name; }

struct Refusal {};

TEST(CXmlCollection, AddsAndRemovesWithTheirEvents) {
    EventLog log(NameOf);
    CSmartPtr<CItemCol> items = new CItemCol;
    log.Watch(*items);

    CSmartPtr<CItem> b = new CItem(u"b");
    EXPECT_EQ(log.Of([&] { items->AppendItem(b); }), "add(b) added(b) change ");
    items->PrependItem(new CItem(u"a"));
    items->AddItemAt(2, new CItem(u"e"));
    items->AddItemAt(2, new CItem(u"d"));
    items->AddBeforeItem(items->GetNodeAtIndex(2)->m_item, new CItem(u"c"));
    items->AddAfterItem(b, new CItem(u"+"));
    EXPECT_EQ(items->Names(), "ab+cde");
    items->AppendItem(b); // identity decides, and the first node is found
    EXPECT_EQ(items->GetNodeForItem(b), items->GetNodeAtIndex(1));
    items->Remove(1);
    EXPECT_EQ(items->GetNodeForItem(b), items->GetNodeAtIndex(5));
    items->Remove(5);
    items->AddItemAt(1, b);

    const std::string removal = "remove(null) removed(null) change ";
    for (const int index : {1, 4, 0})
        EXPECT_EQ(log.Of([&] { items->Remove(index); }), removal);
    EXPECT_EQ(items->Names(), "+cd");
    EXPECT_EQ(livingItems, 4) << "b is held elsewhere";
    EXPECT_EQ(log.Of([&] { items->Clear(); }), removal + removal + removal);
    EXPECT_EQ(items->Names(), "");
    b = nullptr;
    EXPECT_EQ(livingItems, 0);

    // No anchor means the far end.
    items->Fill(u"bc");
    items->AddAfterItem(nullptr, new CItem(u"a"));
    items->AddBeforeItem(nullptr, new CItem(u"d"));
    EXPECT_EQ(items->Names(), "abcd");
}

TEST(CXmlCollection, RefusesBadIndexesAnchorsAndNull) {
    EventLog log(NameOf);
    CItemCol items;
    log.Watch(items);
    CSmartPtr<CItem> stranger = new CItem(u"x");
    for (const int index : {-1, 1})
        EXPECT_EQ(log.Of([&] { items.AddItemAt(index, stranger); }), "Index out of range");
    EXPECT_EQ(log.Of([&] { items.Remove(0); }), "Index 0 is out of range, use 0 - 0");
    EXPECT_EQ(log.Of([&] { items.AppendItem(nullptr); }), "The argument item may not be null");
    items.Fill(u"ab");
    for (const int index : {-1, 2})
        EXPECT_EQ(log.Of([&] { items.GetNodeAtIndex(index); }),
                  "Index " + std::to_string(index) + " is out of range, use 0 - 2");
    EXPECT_EQ(log.Of([&] { items.AddAfterItem(stranger, stranger); }),
              "add(x) The object was not found in the collection");
    EXPECT_EQ(items.Names(), "ab");
}

TEST(CXmlCollection, WhatAListenerThrowsStopsTheChangeWhereItStands) {
    EventLog log(NameOf);
    IEventSink::MsgType refused{};
    CItemCol items;
    items.Fill(u"a");
    log.Watch(items);
    log.during = [&](IEventSink::MsgType type) {
        if (type == refused)
            throw Refusal();
    };
    const CSmartPtr<CItem> b = new CItem(u"b");
    const auto change = [&](bool add, IEventSink::MsgType type) {
        refused = type;
        EXPECT_THROW(add ? items.AppendItem(b) : items.Remove(0), Refusal);
        return log.Take() + items.Names();
    };
    EXPECT_EQ(change(true, IEventSink::MsgType_CollectionAdd), "add(b) a");
    EXPECT_EQ(change(true, IEventSink::MsgType_CollectionAddComplete), "add(b) added(b) ab");
    EXPECT_EQ(change(true, IEventSink::MsgType_CollectionChange), "add(b) added(b) change abb");
    EXPECT_EQ(change(false, IEventSink::MsgType_CollectionRemove), "remove(null) abb");
    EXPECT_EQ(change(false, IEventSink::MsgType_CollectionRemoveComplete), "remove(null) removed(null) bb");
}

TEST(CXmlCollection, TheDestructorTellsOfEachItemAndSwallowsWhatListenersThrow) {
    EventLog log(NameOf);
    auto items = std::make_unique<CItemCol>();
    items->Fill(u"ab");
    log.Watch(*items);
    log.during = [](IEventSink::MsgType) { throw Refusal(); };
    items.reset();
    EXPECT_EQ(log.Take(), "remove(null) removed(null) change remove(null) removed(null) change ");
    EXPECT_EQ(livingItems, 0);
}

TEST(CXmlCollection, ListenersMayComeAndGoDuringAnEvent) {
    EventLog first(NameOf), second(NameOf), third(NameOf), late(NameOf);
    CItemCol items;
    for (EventLog* log : {&first, &second, &third})
        log->Watch(items);
    first.during = [&](IEventSink::MsgType type) {
        if (type != IEventSink::MsgType_CollectionAdd)
            return;
        items.RemoveEventListener(&first);
        items.RemoveEventListener(&second);
        late.Watch(items);
    };
    items.Fill(u"a");
    EXPECT_EQ(first.Take(), "add(a) ");
    EXPECT_EQ(second.Take(), "");
    EXPECT_EQ(third.Take(), "add(a) added(a) change ");
    EXPECT_EQ(late.Take(), "added(a) change ");

    items.AddEventListener(&late);
    items.Remove(0);
    EXPECT_EQ(late.Take(), "remove(null) remove(null) removed(null) removed(null) change change ");
    items.RemoveEventListener(&late); // both registrations
    items.RemoveEventListener(&late);
    items.Fill(u"a");
    EXPECT_EQ(late.Take(), "");
}

TEST(CXmlCollection, AListenerMayRemoveTheItemThatTheEventIsAbout) {
    EventLog log(NameOf), second(NameOf);
    bool busy = false;
    IEventSink::MsgType trigger = IEventSink::MsgType_CollectionAddComplete;
    CItemCol items;
    log.Watch(items);
    log.during = [&](IEventSink::MsgType type) {
        if (busy || type != trigger)
            return;
        busy = true;
        items.Remove(0);
        busy = false;
    };
    second.Watch(items);
    items.Fill(u"a");
    EXPECT_EQ(second.Take(), "add(a) remove(null) removed(null) change added(a) change ");
    EXPECT_EQ(livingItems, 0);

    trigger = IEventSink::MsgType_CollectionRemove;
    items.Fill(u"ab");
    EXPECT_EQ(InvalidParam([&] { items.Remove(0); }), "The object was not found in the collection");
    EXPECT_EQ(items.Names(), "b");
    log.during = nullptr; // the destructor fires events too
}

TEST(CXmlCollection, ACopySharesTheItemsInAListOfItsOwn) {
    EventLog log(NameOf);
    CItemCol items(1, 2);
    items.Fill(u"abc");
    log.Watch(items);
    {
        CItemCol copy(items);
        copy.RemoveEventListener(&log);
        copy.Remove(1);
        copy.Fill(u"d");
        EXPECT_EQ(copy.Names(), "acd");
        CItemCol assigned;
        assigned.Fill(u"xyz");
        assigned = copy;
        assigned = *&assigned;
        EXPECT_EQ(assigned.Names(), "acd");
        EXPECT_EQ(&*assigned.begin(), &*items.begin());
        EXPECT_EQ(assigned.GetMaxOccurs(), 2);
        EXPECT_EQ(assigned.GetNamespace(), u"urn:i");
    }
    EXPECT_EQ(items.Names(), "abc");
    EXPECT_EQ(livingItems, 3);
    EXPECT_EQ(log.Take(), "");
}

TEST(CXmlCollection, ChecksItsBounds) {
    for (const auto& [count, minOccurs, maxOccurs, expected] :
         {std::tuple(2, 2, 2, "no failure"), std::tuple(9, 0, -1, "no failure"),
          std::tuple(3, 0, 2, "The Maximum number of [item] elements allowed in this collection is 2"),
          std::tuple(1, 2, 3, "The Minimum number of [item] elements allowed in this collection is 2"),
          std::tuple(3, 2, 1, "The Maximum number of [item] elements allowed in this collection is 1")}) {
        CItemCol items(minOccurs, maxOccurs);
        items.Fill(std::u16string(static_cast<std::size_t>(count), u'i'));
        CXmlSerializationContext context;
        EXPECT_EQ(Failure<CKzValidationException>([&, &of = items] { of.ValidateCount(context); }), expected);
        EXPECT_EQ(items.IsValidCount(context), expected == std::string("no failure"));
        context.SetIgnoreInvalidCollectionCounts(true);
        EXPECT_TRUE(items.IsValidCount(context));
        EXPECT_NO_THROW(items.ValidateCount(context));
    }
    EXPECT_EQ(Failure([] { CItemCol().GetTargetNamespace(); }),
              "CXmlCollectionBase::GetTargetNamespace Should not be used from within a Collection (program "
              "logic error)");
}

TEST(CXmlCollection, TravelsInAVariant) {
    CSmartPtr<CItemCol> items = new CItemCol;
    KzVariant value;
    for (const bool asCollection : {true, false}) {
        asCollection ? value.SetXmlCollection(items) : value.SetXmlObject(items);
        EXPECT_EQ(static_cast<CXmlObjectBase*>(value.GetXmlObject()), items);
        EXPECT_EQ(static_cast<CXmlCollectionBase*>(value.GetXmlCollection()), items);
    }
    value.SetXmlObject(new CItem(u"a"));
    EXPECT_THROW(value.GetXmlCollection(), CKzInvalidStateException);
}

TEST(CXmlCollection, ClearAndLongChainsOfObjectsGoInLinearTimeAndFlatStack) {
    const auto start = std::chrono::steady_clock::now();
    EventLog log(NameOf);
    CItemCol items;
    log.Watch(items);
    constexpr int count = 50'000;
    for (int i = 0; i < count; ++i)
        items.AppendItem(new CItem(u"i"));
    items.Clear();
    EXPECT_EQ(items.removals, count) << "an overridden Remove is honoured";
    EXPECT_EQ(livingItems, 0);

    CSmartPtr<CItem> chain;
    for (int i = 0; i < 10 * count; ++i) {
        CSmartPtr<CItem> link = new CItem(u"l");
        link->next = chain;
        chain = link;
    }
    chain = nullptr;
    EXPECT_EQ(livingItems, 0);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

} // namespace
