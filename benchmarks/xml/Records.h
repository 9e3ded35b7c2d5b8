#pragma once

#include <KzXmlLib10/conversions/CConversions.h>
#include <KzXmlLib10/xml/CXmlTextWriter.h>

#include <string>

namespace KzXmlLib10 {

/// Writes a list of records, about 180 characters each: an attribute, text to be escaped, a number.
inline void WriteRecords(CXmlWriter& writer, int count) {
    const std::u16string uri = u"urn:example:records";
    writer.AddNamespace(u"r", uri);
    writer.StartElement(u"records", uri);
    for (int i = 0; i < count; ++i) {
        writer.StartElement(u"record", uri);
        writer.WriteAttribute(u"id", u"", CConversions::i4ToString(i), ItemType_i4);
        writer.StartElement(u"name", uri);
        writer.WriteText(u"nuts & bolts, stainless, assorted", ItemType_string);
        writer.EndElement();
        writer.StartElement(u"price", uri);
        writer.WriteText(u"1299.95", ItemType_decimal);
        writer.EndElement();
        writer.EndElement();
    }
    writer.EndElement();
}

} // namespace KzXmlLib10
