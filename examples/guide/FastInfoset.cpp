#include "Guide.h"

#include "classes/COrders.h"

#include <iostream>

namespace guide {

using namespace orders;

void FastInfoset() {
    const CSmartPtr<COrders> orders = new COrders;
    orders->FromXmlFile(u"orders.xml", {});
    const CSmartPtr<COrders> copy = new COrders;
    Section("fast-infoset");
    // [fast-infoset]
    CXmlSerializationContext context;
    const CBinaryData bytes = orders->ToFastInfosetStream(FInfoDecl_None, context, CompressionType_None);
    orders->ToFastInfosetFile(u"orders.finf", FInfoDecl_None, context, CompressionType_GZip);

    copy->FromXmlStream(bytes, context); // the first bytes tell the format
    copy->FromXmlFile(u"orders.finf", context);
    // [/fast-infoset]
    std::cout << copy->GetOrders()->GetCount() << " orders\n";
}

} // namespace guide
