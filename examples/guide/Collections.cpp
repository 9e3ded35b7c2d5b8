#include "Guide.h"

#include "classes/COrders.h"

#include <algorithm>
#include <iostream>
#include <string>

namespace guide {

using namespace orders;

namespace {

// [listener]
/// Counts the items that come and go.
class ItemCounter : public IEventSink {
public:
    void OnEvent(CXmlObjectBase*, MsgType type, void*) override {
        if (type == MsgType_CollectionAddComplete)
            ++added;
        if (type == MsgType_CollectionRemoveComplete)
            ++removed;
    }
    CXmlObjectBase* GetBase() override { return nullptr; } // it is no object of a document

    int added = 0;
    int removed = 0;
};
// [/listener]

} // namespace

void Collections() {
    COrders orders;
    ReadFile(orders, "orders.xml");
    COrder& order = *orders.GetOrders()->Item(0);
    {
        Section("collections");
        // [collections]
        CstringCol& tags = *order.GetTags(); // values
        tags.Add(u"vip");
        tags.AddAt(0, u"first");
        tags.Remove(1);
        for (const std::u16string& tag : tags)
            std::cout << "tag " << ToUtf8(tag) << '\n';

        CItemCol& items = *order.GetItems(); // objects
        const CSmartPtr<CItem> item = items.Add();
        item->SetSku(u"PAD-000100");
        item->SetQuantity(3);
        const auto found = std::find_if(items.begin(), items.end(),
                                        [](const CItem& each) { return each.GetSku() == u"BTL-120000"; });
        if (found != items.end())
            found->SetQuantity(12);
        // [/collections]
        std::cout << items.GetCount() << " items\n";
    }
    {
        Section("events");
        // [events]
        ItemCounter counter;
        order.GetItems()->AddEventListener(&counter);
        order.GetItems()->Add();
        order.GetItems()->Remove(0);
        order.GetItems()->RemoveEventListener(&counter);
        std::cout << counter.added << " added, " << counter.removed << " removed\n";
        // [/events]
    }
}

} // namespace guide
