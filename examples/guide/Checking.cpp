#include "Guide.h"

#include "classes/COrders.h"
#include "classes/CShipment.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace guide {

using namespace orders;

namespace {

std::string FileText(const char* name) {
    std::ifstream file(name);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The sample document with one piece of it replaced.
std::string Changed(const char* file, std::string_view what, std::string_view by) {
    std::string text = FileText(file);
    return text.replace(text.find(what), what.size(), by);
}

} // namespace

void Checking() {
    COrders orders;
    {
        Section("broken-documents");
        ShowFailure([&] {
            Read(orders, Changed("orders.xml", "<quantity>2</quantity>", "<quantity>2000</quantity>"));
        });
        ShowFailure([&] {
            Read(orders, Changed("orders.xml", "<quantity>2</quantity>", "<quantity>two</quantity>"));
        });
        ShowFailure([&] { Read(orders, Changed("orders.xml", "<quantity>2</quantity>", "")); });
        ShowFailure([&] { Read(orders, Changed("orders.xml", "<gift>", "<colour>red</colour><gift>")); });
        ShowFailure([&] { Read(orders, Changed("orders.xml", "id=\"100007\" ", "")); });
        ShowFailure([&] { Read(orders, Changed("orders.xml", "</note>", "</nota>")); });
    }
    {
        Section("setters");
        ReadFile(orders, "orders.xml");
        // [setters]
        COrder& order = *orders.GetOrders()->Item(0);
        try {
            order.GetItems()->Item(0)->SetQuantity(2000);
        } catch (const CKzException& failure) {
            std::cout << failure << '\n'; // the item has its old quantity
        }

        order.GetItems()->Clear(); // counts and choices are checked when the object is written
        try {
            WriteText(orders);
        } catch (const CKzException& failure) {
            std::cout << failure << '\n';
        }
        // [/setters]
    }
    {
        Section("tolerate");
        const std::string newer = Changed("orders.xml", "<gift>", "<colour>red</colour><gift>");
        // [tolerate]
        CXmlSerializationContext tolerant;
        tolerant.SetIgnoreUnknownElements(true);
        tolerant.SetIgnoreUnknownAttributes(true);
        Read(orders, newer, tolerant); // each <item> has a <colour> that the schema does not know
        // [/tolerate]
        std::cout << orders.GetOrders()->GetCount() << " orders\n";
    }
    {
        Section("tolerate-both");
        CXmlSerializationContext context;
        context.SetIgnoreUnknownElements(true);
        ShowFailure([&] { context.SetIgnoreMissingMandatoryElements(true); });
    }
    {
        // Each switch lets pass just what it names.
        Section("switches");
        using Context = CXmlSerializationContext;
        const auto passes = [](CXmlObjectBase& object, const std::string& text, void (Context::*set)(bool)) {
            ShowFailure([&] {
                Context context;
                (context.*set)(true);
                Read(object, text, context);
            });
        };
        std::string noItem = FileText("orders.xml");
        for (std::size_t at = 0; (at = noItem.find("<item>")) != std::string::npos;)
            noItem.erase(at, noItem.find("</item>") + 7 - at);
        const std::string noPayment = "<payment xmlns='urn:example:orders'/>";
        CPayment payment(u"payment");
        passes(orders, Changed("orders.xml", "<gift>", "<colour/><gift>"),
               &Context::SetIgnoreUnknownElements);
        passes(orders, Changed("orders.xml", " id=", " colour='red' id="),
               &Context::SetIgnoreUnknownAttributes);
        passes(orders, Changed("orders.xml", "<quantity>2</quantity>", ""),
               &Context::SetIgnoreMissingMandatoryElements);
        passes(payment, noPayment, &Context::SetIgnoreMissingChoice);
        passes(orders, noItem, &Context::SetIgnoreInvalidCollectionCounts);
        passes(orders, Changed("orders.xml", "urn:example:orders", "urn:example:other"),
               &Context::SetIgnoreNamespaces);
    }
}

} // namespace guide
