// The example of README.md.
// [readme]
#include <KzXmlLib10/KzXmlLib10.h>

#include "classes/COrders.h"

#include <iostream>

using namespace KzXmlLib10;

int main() {
    CXmlSerializationContext context;
    context.SetDefaultNamespaceURI(u"urn:example:orders");
    try {
        const CSmartPtr<orders::COrders> orders = new orders::COrders;
        orders->FromXmlFile(u"orders.xml", context); // text or Fast Infoset, plain, gzip or zlib

        for (orders::COrder& order : *orders->GetOrders()) {
            order.SetTotal(order.GetTotal() * CDecimal(u"1.25")); // exact
            std::cout << order.GetId() << ": " << ToUtf8(order.GetTotal().ToString()) << '\n';
        }
        orders->ToXmlFile(u"new.xml.gz", true, true, XmlEncoding_UTF8, EOLType_LF, context,
                          CompressionType_GZip);
        orders->FromXmlFile(u"orders-faulty.xml", context);
    } catch (const CKzException& failure) {
        std::cout << failure << '\n';
    }
}
// [/readme]
