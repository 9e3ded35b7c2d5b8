#include "Demo.h"
#include "Print.h"

#include "classes/COrders.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/object/Text.h>

#include <sstream>

namespace orders::demo {

namespace {

std::string Describe(const CPayment& payment) {
    if (const CCard* card = payment.GetCard())
        return "card of " + ToUtf8(card->GetHolder());
    return "transfer from " + ToUtf8(payment.GetTransfer()->GetIban());
}

void PrintSummary(const COrder& order) {
    const CCustomer& customer = *order.GetCustomer();
    std::ostringstream line;
    line << "order " << order.GetId() << ", " << ToUtf8(StatusTypeToString(order.GetStatus()));
    if (order.GetPriority())
        line << ", priority " << *order.GetPriority();
    line << ", of " << ToUtf8(order.GetOrderDate().ToString()) << ", "
         << (order.GetShipDate() ? "ships " + ToUtf8(order.GetShipDate()->ToString()) : "no date to ship");
    PrintLine(line.str());
    PrintLine("  for " + ToUtf8(customer.GetName()) + " in " + ToUtf8(customer.GetAddress()->GetCity()));
    for (const CItem& item : *order.GetItems()) {
        std::ostringstream position;
        position << "  " << item.GetQuantity() << " x " << ToUtf8(item.GetDescription()) << " at "
                 << ToUtf8(item.GetUnitPrice().ToString(2));
        PrintLine(position.str());
    }
    PrintLine("  total " + ToUtf8(order.GetTotal().ToString(2)) + ", " + Describe(*order.GetPayment()));
    for (const std::u16string& tag : *order.GetTags())
        PrintLine("  tag " + ToUtf8(tag));
}

void PrintSummary(const COrders& orders) {
    PrintLine(std::to_string(orders.GetOrders()->GetCount()) + " orders, created " +
              ToUtf8(orders.GetCreated().ToString()));
    for (const COrder& order : *orders.GetOrders())
        PrintSummary(order);
}

CDecimal Total(const COrder& order) {
    CDecimal total;
    for (const CItem& item : *order.GetItems())
        total += item.GetUnitPrice() * CDecimal(item.GetQuantity());
    return total;
}

/// Another item, another way to pay, another tag.
void Change(COrder& order) {
    const CSmartPtr<CItem> item = order.GetItems()->Add();
    item->SetSku(u"PAD-000100");
    item->SetDescription(u"seat pad");
    item->SetQuantity(3);
    item->SetUnitPrice(u"0.10");
    item->SetWeight(0.2);
    order.SetTotal(Total(order));
    order.SetStatus(StatusType_confirmed);
    const CSmartPtr<CCard> card = new CCard(u"card");
    card->SetHolder(u"K YOSHINOYA");
    card->SetNumber(u"4000123412341234");
    order.GetPayment()->SetTransfer(nullptr);
    order.GetPayment()->SetCard(card);
    order.GetTags()->Add(u"vip");
}

} // namespace

void ShowOrders(const std::filesystem::path& samples, const std::filesystem::path& output) {
    const CXmlSerializationContext& context = CXmlSerializationContext::GetDefaultContext();
    const auto write = [&](const COrders& orders, const char* name, CompressionType compression) {
        CXmlSerializationContext writing;
        writing.SetDefaultNamespaceURI(ordersNamespace);
        orders.ToXmlFile((output / name).u16string().c_str(), true, true, XmlEncoding_UTF8, EOLType_LF,
                         writing, compression);
    };
    const auto readAgain = [&](const char* name) {
        const CSmartPtr<COrders> orders = new COrders;
        orders->FromXmlFile((output / name).u16string().c_str(), context);
        return orders->ToXml(false, false, EOLType_LF, context);
    };

    PrintHeading("Read orders.xml:");
    const CSmartPtr<COrders> orders = new COrders;
    orders->FromXmlFile((samples / "orders.xml").u16string().c_str(), context);
    PrintSummary(*orders);

    PrintHeading("Change the second order, write all as a file and as a gzip file, and read both:");
    Change(*orders->GetOrders()->Item(1));
    write(*orders, "orders.xml", CompressionType_None);
    write(*orders, "orders.xml.gz", CompressionType_GZip);
    PrintFile(output / "orders.xml");
    PrintLine(readAgain("orders.xml") == readAgain("orders.xml.gz") ? "both files hold the same orders"
                                                                    : "the files differ");

    PrintHeading("Pay an order twice, and ship it at a time where the schema has a date:");
    COrder& first = *orders->GetOrders()->Item(0);
    const CSmartPtr<CTransfer> transfer = new CTransfer(u"transfer");
    PrintFailure([&] { first.GetPayment()->SetTransfer(transfer); });
    PrintFailure([&] { first.SetShipDate(first.GetOrderDate()); });

    PrintHeading("Write an order without items:");
    first.GetItems()->Clear();
    PrintFailure([&] { orders->ToXml(false, false, EOLType_LF, context); });

    PrintHeading("Read orders-faulty.xml:");
    PrintFailure([&] { orders->FromXmlFile((samples / "orders-faulty.xml").u16string().c_str(), context); });
}

} // namespace orders::demo
