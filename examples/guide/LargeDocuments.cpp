#include "Guide.h"

#include "classes/COrders.h"

#include <iostream>

namespace guide {

using namespace orders;

namespace {

CDecimal sum;

// [large]
/// Called for each element as it ends. What it returns true for is dropped from the tree.
bool TakeOrder(CXmlElement* element) {
    if (element->GetLocalName() != u"order")
        return false;
    const CSmartPtr<COrder> order = new COrder(u"order");
    order->FromXmlElement(element, CXmlSerializationContext::GetDefaultContext());
    sum += order->GetTotal();
    return true;
}
// [/large]

} // namespace

void LargeDocuments() {
    Section("large");
    // [large-load]
    CXmlDocument document(TakeOrder);
    document.Load(u"orders.xml");
    std::cout << "all orders together: " << ToUtf8(sum.ToString(2)) << '\n';
    // [/large-load]
}

} // namespace guide
