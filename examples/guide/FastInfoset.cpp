#include "Guide.h"

#include "classes/COrders.h"

#include <iostream>
#include <vector>

namespace guide {

using namespace orders;

void FastInfoset() {
    Section("fast-infoset");
    // [fast-infoset]
    COrders orders;
    ReadFile(orders, "orders.xml");
    WriteFile(orders, "orders.finf", {.format = DocumentFormat::FastInfoset});
    const std::vector<std::byte> bytes = WriteBytes(
        orders, {.format = DocumentFormat::FastInfoset, .declaration = FInfoDecl_10}); // with a declaration

    COrders copy;
    Read(copy, bytes); // the first bytes tell the format
    ReadFile(copy, "orders.finf");
    // [/fast-infoset]
    std::cout << copy.GetOrders()->GetCount() << " orders\n";
}

} // namespace guide
