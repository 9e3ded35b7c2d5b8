#include "Guide.h"

#include "classes/COrders.h"

#include <iostream>
#include <thread>
#include <vector>

namespace guide {

using namespace orders;

void Threads() {
    Section("threads");
    // [threads]
    CXmlSerializationContext context;
    context.SetIgnoreUnknownElements(true); // set up first,

    std::vector<CSmartPtr<COrders>> all(4);
    {
        std::vector<std::jthread> threads;
        for (CSmartPtr<COrders>& orders : all)
            threads.emplace_back([&] {
                orders = new COrders;
                orders->FromXmlFile(u"orders.xml", context); // then share it
            });
    }
    // [/threads]
    int count = 0;
    for (const CSmartPtr<COrders>& orders : all)
        count += orders->GetOrders()->GetCount();
    std::cout << count << " orders\n";
}

} // namespace guide
