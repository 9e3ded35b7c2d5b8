#include "Guide.h"

#include "classes/COrders.h"
#include "classes/CShipment.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>

namespace guide {

using namespace orders;

namespace {

// [is-plain-text]
/// Whether a text goes out as it is and comes back the same: only characters that XML admits, no carriage
/// return, which is dropped, and no start of a CDATA section, which would go out unescaped.
bool IsPlainText(std::u16string_view text) {
    if (text.starts_with(u"<![CDATA["))
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        const bool isHigh = unit >= 0xD800 && unit <= 0xDBFF;
        if (isHigh && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF)
            ++i; // a pair
        else if ((unit < 0x20 && unit != u'\t' && unit != u'\n') || (unit >= 0xD800 && unit <= 0xDFFF) ||
                 unit >= 0xFFFE)
            return false;
    }
    return true;
}
// [/is-plain-text]

CSmartPtr<COrders> MakeOrders() {
    // [make]
    const CSmartPtr<COrders> orders = new COrders;
    orders->SetVersion(u"1.2");
    orders->SetCreated(u"2024-05-17T08:30:00Z");

    const CSmartPtr<COrder> order = orders->GetOrders()->Add();
    order->SetId(100009);
    order->GetCustomer()->SetName(u"Zoë Brontë");
    order->GetCustomer()->SetEmail(u"zoe@example.com");
    CAddress& address = *order->GetCustomer()->GetAddress();
    address.SetStreet(u"12 Störgatan");
    address.SetCity(u"Malmö");
    address.SetPostalCode(u"21120");
    address.SetCountry(u"SE");
    order->SetOrderDate(u"2024-05-17T08:29:00Z");

    const CSmartPtr<CItem> item = order->GetItems()->Add();
    item->SetSku(u"BTL-120000");
    item->SetDescription(u"water bottle < 1 kg & cap");
    item->SetQuantity(10);
    item->SetUnitPrice(u"7.05");

    const CSmartPtr<CTransfer> transfer = new CTransfer(u"transfer");
    transfer->SetIban(u"SE4550000000058398257466");
    order->GetPayment()->SetTransfer(transfer);
    order->SetTotal(item->GetUnitPrice() * CDecimal(item->GetQuantity()));
    // [/make]
    return orders;
}

} // namespace

void Writing() {
    const CSmartPtr<COrders> orders = MakeOrders();
    {
        Section("write");
        // [write]
        CXmlSerializationContext context;
        context.SetDefaultNamespaceURI(u"urn:example:orders");

        const std::u16string text = orders->ToXml(true, true, EOLType_LF, context);
        // [/write]
        Print(text);
    }
    {
        Section("write-file");
        // [write-file]
        CXmlSerializationContext context;
        context.SetDefaultNamespaceURI(u"urn:example:orders");

        orders->ToXmlFile(u"out.xml", true, true, XmlEncoding_UTF8, EOLType_LF, context,
                          CompressionType_None);
        orders->ToXmlFile(u"out.xml.gz", true, false, XmlEncoding_UTF8, EOLType_LF, context,
                          CompressionType_GZip);
        orders->ToFastInfosetFile(u"out.finf", FInfoDecl_None, context, CompressionType_None);

        const CBinaryData bytes =
            orders->ToXmlStream(false, false, XmlEncoding_UTF8, EOLType_LF, context, CompressionType_ZLib);

        const CSmartPtr<COrders> copy = new COrders;
        for (const char16_t* file : {u"out.xml", u"out.xml.gz", u"out.finf"})
            copy->FromXmlFile(file, context); // the same call for each of them
        copy->FromXmlStream(bytes, context);
        // [/write-file]
        std::cout << (copy->ToXml(false, false, EOLType_LF, {}) == orders->ToXml(false, false, EOLType_LF, {})
                          ? "the same orders\n"
                          : "other orders\n");
    }
    {
        Section("namespaces");
        // [namespaces]
        const CSmartPtr<CShipment> shipment = new CShipment;
        shipment->FromXmlFile(u"shipment.xml", CXmlSerializationContext::GetDefaultContext());

        CXmlSerializationContext context;
        context.GetNamespaceAliases().Add(u"s", u"urn:example:shipment");
        context.GetNamespaceAliases().Add(u"o", u"urn:example:orders");
        context.GetNamespaceAliases().Add(u"xsi", u"http://www.w3.org/2001/XMLSchema-instance");

        const std::u16string text = shipment->ToXml(false, true, EOLType_LF, context);
        // [/namespaces]
        Print(text);
    }
    {
        Section("made-up-prefixes");
        const CSmartPtr<CShipment> shipment = new CShipment;
        shipment->FromXmlFile(u"shipment.xml", {});
        const std::u16string text = shipment->ToXml(false, true, EOLType_LF, {});
        Print(text.substr(0, text.find(u"\t\t<AB:email")) + u"\t\t...");
    }
    {
        Section("root");
        const CSmartPtr<COrders> empty = new COrders;
        empty->SetVersion(u"1.2");
        empty->SetCreated(u"2024-05-17T08:30:00Z");
        // [root]
        CXmlSerializationContext context;
        context.SetDefaultNamespaceURI(u"urn:example:orders");
        context.GetNamespaceAliases().Add(u"xsi", u"http://www.w3.org/2001/XMLSchema-instance");
        context.GetAdditionalRootAttributes()->Add(u"schemaLocation", u"urn:example:orders orders.xsd",
                                                   u"http://www.w3.org/2001/XMLSchema-instance");
        context.GetProcessingInstructions().push_back(
            u"<?xml-stylesheet href='orders.xsl' type='text/xsl'?>");
        // [/root]
        Print(empty->ToXml(true, true, EOLType_LF, context));
    }
    {
        Section("not-escaped");
        // [not-escaped]
        const CSmartPtr<CElement> note = new CElement(u"note");
        note->SetText(u"<![CDATA[a]]><script/>");
        Print(note->ToXml(false, false, EOLType_LF, {})); // markup out of a value

        note->SetText(u"<b>a</b>]]>");
        Print(note->ToXml(false, false, EOLType_LF, {})); // any other text is escaped

        std::u16string text = u"before ";
        text += char16_t(0xD800); // half of a pair
        text += u" behind";
        note->SetText(text.c_str());
        note->ToXmlFile(u"note.xml", false, false, XmlEncoding_UTF8, EOLType_LF, {}, CompressionType_None);
        PrintFile("note.xml"); // the output ends, silently, and is no XML any more
        // [/not-escaped]
        std::cout << '\n';
        if (IsPlainText(text) || IsPlainText(u"<![CDATA[x]]>") || IsPlainText(u"bell \a") ||
            !IsPlainText(u"plain <b> \U0001F600\n"))
            std::cout << "the check is wrong\n";
    }
}

} // namespace guide
