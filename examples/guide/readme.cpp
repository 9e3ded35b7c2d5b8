// The example of README.md.
// [readme]
#include <KzXmlLib10/KzXmlLib10.h>

#include "classes/COrders.h" // from a generator, or written by hand

#include <iostream>

using namespace KzXmlLib10;

int main() {
    try {
        orders::COrders orders;
        ReadFile(orders, "orders.xml"); // text or Fast Infoset, plain, gzip or zlib

        for (orders::COrder& order : *orders.GetOrders()) {
            order.SetTotal(order.GetTotal() * CDecimal(u"1.25")); // exact
            std::cout << order.GetId() << ": " << ToUtf8(order.GetTotal().ToString()) << '\n';
        }
        WriteFile(orders, "new.xml.gz", {.compression = CompressionType_GZip});

        ReadFile(orders, "orders-faulty.xml");
    } catch (const CKzException& failure) {
        std::cout << failure << '\n';
    }
}
// [/readme]
