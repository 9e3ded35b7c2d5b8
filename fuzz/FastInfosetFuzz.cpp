// Whatever stands behind the identification of a Fast Infoset document is read into a tree or refused by an
// exception of the library, in memory in proportion to it. A tree goes through the accessors once.
#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/xml/CXmlDocument.h>
#include <KzXmlLib10/xml/CXmlElement.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

using namespace KzXmlLib10;

void Visit(const CXmlDocument& document) {
    std::vector<const CXmlElement*> open{document.GetDocumentElement()};
    while (!open.empty()) {
        const CXmlElement* element = open.back();
        open.pop_back();
        if (!element)
            continue;
        if (element->GetDocument() != &document)
            std::abort();
        for (const CXmlAttribute* attribute : element->GetAttributes())
            element->GetAttribute(attribute->GetLocalName(), attribute->GetNamespaceURI());
        open.push_back(element->GetNextSiblingElement());
        open.push_back(element->GetFirstElement());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<unsigned char> bytes{0xE0, 0x00, 0x00, 0x01};
    bytes.insert(bytes.end(), data, data + size);
    try {
        CXmlDocument document;
        document.LoadXmlStream(bytes.data(), bytes.size());
        Visit(document);
    } catch (const CKzException&) {
        // Refused, as it should be.
    }
    return 0;
}
