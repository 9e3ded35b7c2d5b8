/// The classes of examples/orders, as code that somebody generated would meet the library.

#include "classes/COrders.h"
#include "classes/CShipment.h"
#include "support/Test.h"

using namespace orders;

namespace {

const std::string samples = ORDERS_SAMPLES "/";

std::string Write(const CXmlObjectBase& object, const char16_t* defaultNamespace) {
    CXmlSerializationContext context;
    context.SetDefaultNamespaceURI(defaultNamespace);
    return ToUtf8(object.ToXml(false, true, EOLType_LF, context));
}

constexpr char minimalOrders[] =
    "<orders xmlns=\"urn:example:orders\" version=\"1\" created=\"2024-01-01T00:00:00Z\"/>\n";
constexpr char minimalShipment[] =
    "<shipment xmlns='urn:example:shipment' xmlns:o='urn:example:orders' order='1' status='new'"
    " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'>"
    "<recipient><o:name>N</o:name><o:email>a@b.cc</o:email><o:address><o:street/><o:city>C</o:city>"
    "<o:postalCode/><o:country>SE</o:country></o:address></recipient>"
    "<parcels>1</parcels><weight>1</weight>"
    "<carrier xsi:type='CourierType'><name>C</name><phone>12345</phone></carrier></shipment>";

} // namespace

TEST(OrdersClasses, ReadingForgetsTheEarlierDocument) {
    COrders object;
    ReadFile(object, samples + "orders.xml");
    // The first order has every optional member that the second has not, and the other way round.
    const std::string second = Write(*object.GetOrders()->Item(1), ordersNamespace);
    object.GetOrders()->Item(0)->FromXml(second.c_str(), {});
    EXPECT_EQ(Write(*object.GetOrders()->Item(0), ordersNamespace), second);
    object.FromXml(minimalOrders, {});
    EXPECT_EQ(Write(object, ordersNamespace), minimalOrders);

    CShipment shipment, fresh;
    ReadFile(shipment, samples + "shipment.xml");
    shipment.FromXml(minimalShipment, {});
    fresh.FromXml(minimalShipment, {});
    EXPECT_EQ(Write(shipment, shipmentNamespace), Write(fresh, shipmentNamespace));
}

TEST(OrdersClasses, SettersRefuseWhatTheSchemaDoes) {
    COrder order(u"order");
    const CSmartPtr<CPayment> payment = new CPayment(u"payment");
    const CSmartPtr<CCard> misnamed = new CCard(u"transfer");
    payment->SetCard(nullptr); // selects nothing
    EXPECT_EQ(
        InvalidParam([&] { payment->SetCard(misnamed); }),
        "This property requrires an element with the name card the element being set has the element name "
        "transfer");
    EXPECT_EQ(InvalidParam([&] { order.SetCustomer(nullptr); }),
              "The Property [customer] is mandatory, it may node be NULL");
    EXPECT_EQ(InvalidValue([] { StatusTypeFromString(u"lost"); }),
              "The text [lost] is none of the values of StatusType");
}

TEST(OrdersClasses, ThreadsMayMeetTheClassesAtOnce) {
    std::vector<std::string> written(4);
    std::vector<std::jthread> threads;
    for (std::string& text : written)
        threads.emplace_back([&] {
            COrders object;
            ReadFile(object, samples + "orders.xml");
            text = Write(object, ordersNamespace);
        });
    threads.clear(); // waits for them
    COrders object;
    ReadFile(object, samples + "orders.xml");
    EXPECT_EQ(written, std::vector(written.size(), Write(object, ordersNamespace)));
}
