/// The walk of an all group on reading. On writing an all group is its table in order.

#include <KzXmlLib10/object/CXmlGeneratedClass.h>

#include <KzXmlLib10/metadata/CElementInfoAll.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10 {

using namespace KzXmlLib10Data;

CXmlElement* CXmlGeneratedClass::ProcessElementAllFromXml(const CXmlSerializationContext& context,
                                                          CXmlElement* element, CXmlElement* current,
                                                          XmlElementType type) {
    CXmlElement* const start = current;
    std::vector<char> found(static_cast<std::size_t>(GetClassElementInfoCount()), false);
    // Passes over the table, until one of them takes nothing.
    for (CXmlElement* before = nullptr; current && current != before;) {
        before = current;
        for (std::size_t i = 0; i < found.size(); ++i)
            if (!found[i])
                found[i] = OfferElement(context, i, element, current, type);
    }
    for (std::size_t i = 0; i < found.size(); ++i)
        if (!GetClassElementInfo()[i]->Validate(context, this, found[i], type == XmlElementType_Element))
            return start;
    if (type != XmlElementType_Element || !current || context.GetIgnoreUnknownElements())
        return current;
    FailUnprocessed(*element, *current);
}

} // namespace KzXmlLib10
