#include "Guide.h"

#include "classes/COrders.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace guide {

using namespace orders;

namespace {

/// The sample document with a bad quantity in its first order.
std::string MakeFaulty() {
    std::ifstream file("orders.xml");
    std::string text(std::istreambuf_iterator<char>(file), {});
    return text.replace(text.find("<quantity>2<"), 12, "<quantity>0<");
}

CDecimal sum;

// [callback]
/// Called for each element as it ends. What it returns true for is dropped from the tree.
bool TakeOrder(CXmlElement* element) {
    if (element->GetLocalName() != u"order")
        return false;
    COrder order(u"order");
    order.FromXmlElement(element, CXmlSerializationContext::GetDefaultContext());
    sum += order.GetTotal();
    return true;
}
// [/callback]

} // namespace

void LargeDocuments() {
    CXmlSerializationContext context;
    {
        Section("records");
        // [records]
        const std::filesystem::path file = "orders.xml"; // plain, or under gzip or zlib
        CDecimal total;
        for (const COrder& order : records<COrder>(file, context, {.name = u"order"}))
            total += order.GetTotal();
        std::cout << "all orders together: " << ToUtf8(total.ToString(2)) << '\n';
        // [/records]
    }
    {
        Section("faulty-records");
        const std::string document = MakeFaulty();
        // [faulty-records]
        RecordOptions options{.name = u"order"};
        options.onFault = [](std::uint64_t number, const CKzException& failure) {
            std::cout << "order " << number << " is left out:\n" << failure << '\n';
        };
        for (const COrder& order : records<COrder>(document, context, options))
            std::cout << "order " << order.GetId() << " is taken\n";
        // [/faulty-records]
    }
    {
        Section("callback");
        // [callback-load]
        CXmlDocument document(TakeOrder);
        document.Load(u"orders.xml");
        std::cout << "all orders together: " << ToUtf8(sum.ToString(2)) << '\n';
        // [/callback-load]
    }
}

} // namespace guide
