#include "Guide.h"

#include "classes/COrders.h"
#include "classes/CShipment.h"

#include <iostream>
#include <string>
#include <string_view>
#include <vector>

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

void Fill(COrders& orders) {
    // [make]
    orders.SetVersion(u"1.2");
    orders.SetCreated(u"2024-05-17T08:30:00Z");

    const CSmartPtr<COrder> order = orders.GetOrders()->Add();
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
}

} // namespace

void Writing() {
    COrders orders;
    Fill(orders);
    {
        Section("write");
        // [write]
        CXmlSerializationContext context;
        context.SetDefaultNamespaceURI(u"urn:example:orders");

        const std::string text = WriteText(orders, {}, context);
        // [/write]
        std::cout << text;
    }
    {
        Section("write-file");
        // [write-file]
        CXmlSerializationContext context;
        context.SetDefaultNamespaceURI(u"urn:example:orders");

        WriteFile(orders, "out.xml", {}, context);
        WriteFile(orders, "out.xml.gz", {.compression = CompressionType_GZip}, context);
        WriteFile(orders, "out.finf", {.format = DocumentFormat::FastInfoset}, context);
        const std::vector<std::byte> bytes = WriteBytes(
            orders, {.compression = CompressionType_ZLib, .text = {.declaration = false, .formatted = false}},
            context);

        COrders copy;
        for (const char* file : {"out.xml", "out.xml.gz", "out.finf"})
            ReadFile(copy, file); // the same call for each of them
        Read(copy, bytes);
        // [/write-file]
        std::cout << (WriteText(copy) == WriteText(orders) ? "the same orders\n" : "other orders\n");
    }
    {
        Section("members");
        // [members]
        const CXmlSerializationContext context;
        orders.ToXmlFile(u"utf16.xml", true, true, XmlEncoding_UTF16, EOLType_CRLF, context,
                         CompressionType_None);
        const std::u16string text = orders.ToXml(false, false, EOLType_LF, context);
        // [/members]
        COrders copy;
        ReadFile(copy, "utf16.xml");
        std::cout << (copy.ToXml(false, false, EOLType_LF, context) == text ? "the same orders\n"
                                                                            : "other orders\n");
    }
    {
        Section("namespaces");
        // [namespaces]
        CShipment shipment;
        ReadFile(shipment, "shipment.xml");

        CXmlSerializationContext context;
        context.GetNamespaceAliases().Add(u"s", u"urn:example:shipment");
        context.GetNamespaceAliases().Add(u"o", u"urn:example:orders");
        context.GetNamespaceAliases().Add(u"xsi", u"http://www.w3.org/2001/XMLSchema-instance");
        std::cout << WriteText(shipment, {.declaration = false}, context);
        // [/namespaces]
    }
    {
        Section("made-up-prefixes");
        CShipment shipment;
        ReadFile(shipment, "shipment.xml");
        const std::string text = WriteText(shipment, {.declaration = false});
        std::cout << text.substr(0, text.find("\t\t<AB:email")) << "\t\t...\n";
    }
    {
        Section("root");
        COrders empty;
        empty.SetVersion(u"1.2");
        empty.SetCreated(u"2024-05-17T08:30:00Z");
        // [root]
        CXmlSerializationContext context;
        context.SetDefaultNamespaceURI(u"urn:example:orders");
        context.GetNamespaceAliases().Add(u"xsi", u"http://www.w3.org/2001/XMLSchema-instance");
        context.GetAdditionalRootAttributes()->Add(u"schemaLocation", u"urn:example:orders orders.xsd",
                                                   u"http://www.w3.org/2001/XMLSchema-instance");
        context.GetProcessingInstructions().push_back(
            u"<?xml-stylesheet href='orders.xsl' type='text/xsl'?>");
        // [/root]
        std::cout << WriteText(empty, {}, context);
    }
    {
        Section("not-escaped");
        // [not-escaped]
        CElement note(u"note");
        note.SetText(u"<![CDATA[a]]><script/>");
        Print(note.ToXml(false, false, EOLType_LF, {})); // markup out of a value

        note.SetText(u"<b>a</b>]]>");
        Print(note.ToXml(false, false, EOLType_LF, {})); // any other text is escaped

        std::u16string text = u"before ";
        text += char16_t(0xD800); // half of a pair
        text += u" behind";
        note.SetText(text.c_str());
        note.ToXmlFile(u"note.xml", false, false, XmlEncoding_UTF8, EOLType_LF, {}, CompressionType_None);
        PrintFile("note.xml"); // the output ends, silently, and is no XML any more
        // [/not-escaped]
        std::cout << '\n';
        ShowFailure([&] { WriteText(note); });
        if (IsPlainText(text) || IsPlainText(u"<![CDATA[x]]>") || IsPlainText(u"bell \a") ||
            !IsPlainText(u"plain <b> \U0001F600\n"))
            std::cout << "the check is wrong\n";
    }
}

} // namespace guide
