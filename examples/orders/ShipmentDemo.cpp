#include "Demo.h"
#include "Print.h"

#include "classes/CShipment.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/object/Text.h>

#include <sstream>

namespace orders::demo {

namespace {

std::string Describe(const CCarrier& carrier) {
    const std::string name = ToUtf8(carrier.GetName());
    if (const auto* courier = dynamic_cast<const CCourier*>(&carrier))
        return "courier " + name + ", phone " + ToUtf8(courier->GetPhone());
    const auto& post = dynamic_cast<const CPost&>(carrier);
    return "post " + name + " at " + ToUtf8(post.GetOffice()) + (post.GetRegistered() ? ", registered" : "");
}

void PrintSummary(const CShipment& shipment) {
    const CCustomer& recipient = *shipment.GetRecipient();
    std::ostringstream line;
    line << "shipment of order " << shipment.GetOrder() << ", "
         << ToUtf8(StatusTypeToString(shipment.GetStatus())) << ": " << shipment.GetParcels() << " parcels, ";
    if (shipment.GetWeight().IsNil())
        line << "not weighed yet";
    else
        line << shipment.GetWeight().Get() << " kg";
    PrintLine(line.str());
    PrintLine("to " + ToUtf8(recipient.GetName()) + " in " + ToUtf8(recipient.GetAddress()->GetCity()) +
              ", " + ToUtf8(recipient.GetAddress()->GetCountry()));
    PrintLine("by " + Describe(*shipment.GetCarrier()));
    for (const CElement& extension : *shipment.GetAnyElements())
        PrintLine("with an extension: " + ToUtf8(extension.GetName()) + " of " +
                  ToUtf8(extension.GetNamespace()));
}

void Change(CShipment& shipment) {
    shipment.SetStatus(StatusType_shipped);
    shipment.SetWeight(18.25);
    const CSmartPtr<CCourier> courier = new CCourier(u"carrier");
    courier->SetName(u"Pigeon & Sons");
    courier->SetPhone(u"+46 8 123456");
    shipment.SetCarrier(courier);
    shipment.GetAnyElements()->Item(0)->GetChildElements()->Add(u"cleared")->SetText(u"2024-05-18");
}

void Write(const CShipment& shipment, const std::filesystem::path& file) {
    CXmlSerializationContext context;
    context.SetDefaultNamespaceURI(shipmentNamespace);
    context.GetNamespaceAliases().Add(u"o", ordersNamespace);
    context.GetNamespaceAliases().Add(u"xsi", u"http://www.w3.org/2001/XMLSchema-instance");
    shipment.ToXmlFile(file.u16string().c_str(), true, true, XmlEncoding_UTF8, EOLType_LF, context,
                       CompressionType_None);
}

} // namespace

void ShowShipment(const std::filesystem::path& samples, const std::filesystem::path& output) {
    PrintHeading("Read shipment.xml:");
    const CSmartPtr<CShipment> shipment = new CShipment;
    shipment->FromXmlFile((samples / "shipment.xml").u16string().c_str(), {});
    PrintSummary(*shipment);

    PrintHeading("Weigh it, hand it to a courier, and write it back:");
    Change(*shipment);
    Write(*shipment, output / "shipment.xml");
    PrintFile(output / "shipment.xml");

    PrintHeading("Set 2000 parcels, where the schema allows 1000:");
    PrintFailure([&] { shipment->SetParcels(2000); });

    PrintHeading("Read shipment-faulty.xml:");
    PrintFailure([&] { shipment->FromXmlFile((samples / "shipment-faulty.xml").u16string().c_str(), {}); });
}

} // namespace orders::demo
