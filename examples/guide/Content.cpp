#include "Guide.h"

#include "classes/COrders.h"
#include "classes/CShipment.h"

#include <iostream>
#include <string>

namespace guide {

using namespace orders;

void Content() {
    {
        Section("choice");
        // [choice]
        COrders orders;
        ReadFile(orders, "orders.xml");
        CPayment& payment = *orders.GetOrders()->Item(0)->GetPayment();

        if (const CCard* card = payment.GetCard())
            std::cout << "card of " << ToUtf8(card->GetHolder()) << '\n';

        const CSmartPtr<CTransfer> transfer = new CTransfer(u"transfer");
        transfer->SetIban(u"SE4550000000058398257466");
        payment.SetCard(nullptr);      // first let the one go,
        payment.SetTransfer(transfer); // then set the other
        // [/choice]
        const CSmartPtr<CCard> card = new CCard(u"card");
        ShowFailure([&] { payment.SetCard(card); });
    }
    {
        Section("derived");
        // [derived]
        CShipment shipment;
        ReadFile(shipment, "shipment.xml"); // <carrier xsi:type="PostType">

        if (const auto* post = dynamic_cast<const CPost*>(shipment.GetCarrier()))
            std::cout << "post office " << ToUtf8(post->GetOffice()) << '\n';

        const CSmartPtr<CCourier> courier = new CCourier(u"carrier"); // the name of the element
        courier->SetName(u"Pigeon & Sons");
        courier->SetPhone(u"+46 8 123456");
        shipment.SetCarrier(courier); // written with xsi:type="CourierType"
        // [/derived]
        CXmlSerializationContext writing;
        writing.SetDefaultNamespaceURI(u"urn:example:shipment");
        writing.GetNamespaceAliases().Add(u"xsi", u"http://www.w3.org/2001/XMLSchema-instance");
        const std::string text = WriteText(shipment, {}, writing);
        const std::size_t from = text.find("<carrier"), to = text.find("</carrier>");
        std::cout << text.substr(from, to + 10 - from) << '\n';
    }
    {
        Section("nil");
        // [nil]
        CShipment shipment;
        ReadFile(shipment, "shipment.xml"); // <weight xsi:nil="true"/>

        if (shipment.GetWeight().IsNil())
            shipment.SetWeight(18.25);
        std::cout << shipment.GetWeight().Get() << " kg\n";
        // [/nil]
    }
    {
        Section("wildcard");
        // [wildcard]
        CShipment shipment;
        ReadFile(shipment, "shipment.xml");

        for (const CElement& extension : *shipment.GetAnyElements()) {
            std::cout << ToUtf8(extension.GetName()) << " of " << ToUtf8(extension.GetNamespace()) << '\n';
            for (const CAttribute& attribute : *extension.GetAttributes())
                std::cout << "  " << ToUtf8(attribute.GetName()) << " = " << ToUtf8(attribute.GetValue())
                          << '\n';
            for (const CElement& child : *extension.GetChildElements())
                std::cout << "  " << ToUtf8(child.GetName()) << ": " << ToUtf8(child.GetText()) << '\n';
        }

        const CSmartPtr<CElement> insurance =
            shipment.GetAnyElements()->Add(u"insurance", u"urn:example:ins");
        insurance->GetAttributes()->Add(u"policy", u"77-1", u"");
        insurance->GetChildElements()->Add(u"sum")->SetText(u"1000.00");
        // [/wildcard]
        std::cout << WriteText(*insurance, {.declaration = false});
    }
    {
        Section("generic");
        // [generic]
        CElement anything(u"anything");
        Read(anything, "<list xmlns='urn:l'><entry n='1'>first</entry><entry n='2'>second</entry></list>");
        std::cout << ToUtf8(anything.GetName()) << " has " << anything.GetChildElements()->GetCount()
                  << " children\n";
        // [/generic]
    }
}

} // namespace guide
