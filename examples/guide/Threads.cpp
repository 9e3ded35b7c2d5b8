#include "Guide.h"

#include "classes/COrders.h"

#include <array>
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

    std::array<COrders, 4> all;
    {
        std::vector<std::jthread> threads;
        for (COrders& orders : all)
            threads.emplace_back([&] { ReadFile(orders, "orders.xml", context); }); // then share it
    }
    // [/threads]
    int count = 0;
    for (const COrders& orders : all)
        count += orders.GetOrders()->GetCount();
    std::cout << count << " orders\n";
}

} // namespace guide
