#include "Guide.h"

#include "classes/COrders.h"

#include <iostream>
#include <string>

namespace guide {

using namespace orders;

namespace {

std::u16string ReceiveText() {
    return u"<orders xmlns='urn:example:orders' version='1' created='2024-05-17T08:30:00Z'/>";
}

CBinaryData ReceiveBytes() {
    const CSmartPtr<COrders> orders = new COrders;
    orders->FromXml(ReceiveText().c_str(), {});
    return orders->ToFastInfosetStream(FInfoDecl_None, {}, CompressionType_None);
}

} // namespace

void Reading() {
    const CXmlSerializationContext& context = CXmlSerializationContext::GetDefaultContext();
    {
        Section("read-file");
        // [read-file]
        const CSmartPtr<COrders> orders = new COrders;
        orders->FromXmlFile(u"orders.xml", CXmlSerializationContext::GetDefaultContext());

        for (const COrder& order : *orders->GetOrders()) {
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
        const std::u16string text = ReceiveText();
        const CBinaryData bytes = ReceiveBytes();

        const CSmartPtr<COrders> orders = new COrders;
        orders->FromXml(text.c_str(), context);                             // UTF-16 text
        orders->FromXml("<orders xmlns='urn:example:orders' version='1.0' " // bytes up to a zero,
                        "created='2024-05-17T08:30:00Z'/>",
                        context);              // UTF-8 unless declared
        orders->FromXmlStream(bytes, context); // bytes of any form
        // [/read-memory]
        Print(orders->GetCreated().ToString());
    }
    {
        Section("read-tree");
        // [read-tree]
        CXmlDocument document;
        document.Load(u"orders.xml");
        const CXmlElement* root = document.GetDocumentElement();
        std::cout << ToUtf8(root->GetLocalName()) << " of " << ToUtf8(root->GetNamespaceURI()) << '\n';

        for (const CXmlElement* child = root->GetFirstElement(); child;
             child = child->GetNextSiblingElement()) {
            if (child->GetAttribute(u"status", u"") != u"new")
                continue;
            const CSmartPtr<COrder> order = new COrder(u"order");
            order->FromXmlElement(child, context);
            std::cout << "order " << order->GetId() << " is new\n";
        }
        // [/read-tree]
    }
}

} // namespace guide
