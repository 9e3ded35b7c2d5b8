#include "Demo.h"
#include "Print.h"

#include "classes/COrders.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/CBinaryData.h>

#include <iomanip>
#include <sstream>

namespace orders::demo {

namespace {

/// Numbers in their binary forms. Dates stay text: their alphabet has no plus sign and no point.
CXmlSerializationContext WithSuggestedValues() {
    CXmlSerializationContext context;
    CFastInfosetContext& fastInfoset = context.GetFIContext();
    fastInfoset.SetSuggestedValues();
    fastInfoset.SetEncoding(ItemType_datetime, {});
    return context;
}

/// Both ends know all names of the schema, and the words that come again and again.
CXmlSerializationContext WithVocabulary() {
    CXmlSerializationContext context = WithSuggestedValues();
    CFastInfosetContext& fastInfoset = context.GetFIContext();
    CFIVocabulary& vocabulary = fastInfoset.GetVocabulary();
    for (const char16_t* element :
         {u"orders",    u"order",  u"customer",    u"name",     u"email",     u"address", u"street",
          u"city",      u"region", u"postalCode",  u"country",  u"phone",     u"item",    u"sku",
          u"orderDate", u"note",   u"description", u"quantity", u"unitPrice", u"weight",  u"gift",
          u"shipDate",  u"card",   u"payment",     u"holder",   u"number",    u"total",   u"tag",
          u"transfer",  u"iban",   u"reference"})
        vocabulary.AddElement(u"", ordersNamespace, element);
    for (const char16_t* attribute : {u"version", u"created", u"currency", u"id", u"status", u"priority"})
        vocabulary.AddAttribute(u"", u"", attribute);
    for (int status = StatusType_new; status <= StatusType_cancelled; ++status)
        vocabulary.AddAttributeValue(StatusTypeToString(status));
    fastInfoset.SetExternalVocabularyURI(u"urn:example:orders:vocabulary");
    fastInfoset.SetUseGeneratedVocabulary(true);
    return context;
}

std::u16string AsText(const COrders& orders) {
    CXmlSerializationContext context;
    context.SetDefaultNamespaceURI(ordersNamespace);
    return orders.ToXml(false, false, EOLType_LF, context);
}

void ShowSize(const char* form, std::size_t size) {
    std::ostringstream line;
    line << std::left << std::setw(44) << form << std::right << std::setw(5) << size << " bytes";
    PrintLine(line.str());
}

void Show(const char* form, const COrders& orders, CXmlSerializationContext context) {
    context.SetDefaultNamespaceURI(ordersNamespace);
    const CBinaryData bytes = orders.ToFastInfosetStream(FInfoDecl_None, context, CompressionType_None);
    ShowSize(form, bytes.GetLength());
    const CSmartPtr<COrders> copy = new COrders;
    copy->FromXmlStream(bytes, context);
    if (AsText(*copy) != AsText(orders))
        PrintLine("what was read differs from what was written");
}

} // namespace

void ShowFastInfoset(const std::filesystem::path& samples) {
    PrintHeading("Write orders.xml as Fast Infoset, and read it:");
    const CSmartPtr<COrders> orders = new COrders;
    orders->FromXmlFile((samples / "orders.xml").u16string().c_str(), {});
    CXmlSerializationContext context;
    context.SetDefaultNamespaceURI(ordersNamespace);
    ShowSize("text, not formatted",
             orders->ToXmlStream(true, false, XmlEncoding_UTF8, EOLType_LF, context, CompressionType_None)
                 .GetLength());
    Show("Fast Infoset", *orders, {});
    Show("... with suggested values", *orders, WithSuggestedValues());
    Show("... with suggested values and a vocabulary", *orders, WithVocabulary());
}

} // namespace orders::demo
