#include "Guide.h"

#include "classes/COrders.h"

#include <iostream>
#include <string>
#include <vector>

namespace guide {

using namespace orders;

namespace {

std::string ReceiveText() {
    return "<orders xmlns='urn:example:orders' version='1' created='2024-05-17T08:30:00Z'/>";
}

std::vector<std::byte> ReceiveBytes() {
    COrders orders;
    Read(orders, ReceiveText());
    return WriteBytes(orders, {.format = DocumentFormat::FastInfoset});
}

} // namespace

void Reading() {
    CXmlSerializationContext context;
    {
        Section("read-file");
        // [read-file]
        COrders orders;
        ReadFile(orders, "orders.xml");

        for (const COrder& order : *orders.GetOrders()) {
            std::cout << "order " << order.GetId() << ": " << order.GetItems()->GetCount() << " items, total "
                      << ToUtf8(order.GetTotal().ToString(2)) << '\n';
            if (order.GetNote())
                std::cout << "note: " << ToUtf8(*order.GetNote()) << '\n';
        }
        // [/read-file]
    }
    {
        Section("read-memory");
        // [read-memory]
        const std::string text = ReceiveText();
        const std::vector<std::byte> bytes = ReceiveBytes();

        COrders orders;
        Read(orders, text);
        Read(orders, bytes);
        Read(orders, text, context); // with settings of this call
        // [/read-memory]
        Print(orders.GetCreated().ToString());
    }
    {
        Section("read-tree");
        // [read-tree]
        CXmlDocument document;
        document.Load(u"orders.xml");
        const CXmlElement& root = *document.GetDocumentElement();
        std::cout << ToUtf8(root.GetLocalName()) << " of " << ToUtf8(root.GetNamespaceURI()) << '\n';

        for (const CXmlElement& child : Children(root)) {
            if (child.GetAttribute(u"status", u"") != u"new")
                continue;
            COrder order(u"order");
            order.FromXmlElement(&child, context);
            std::cout << "order " << order.GetId() << " is new\n";
        }
        // [/read-tree]
    }
    {
        const Limits held = GetLimits();
        // [limits]
        Limits limits = GetLimits();
        limits.inflatedBytes = 16 << 20;
        SetLimits(limits);
        // [/limits]
        SetLimits(held);
    }
}

} // namespace guide
