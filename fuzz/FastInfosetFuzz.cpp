// Whatever stands behind the identification of a Fast Infoset document is read into a tree or refused by an
// exception of the library. The document serves again afterwards, and the second result is the first.
//
// First byte: 1 ignore namespaces, 2 with a vocabulary, 4 behind an XML declaration.
#include "support/Targets.h"
#include "support/Tree.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>

namespace fuzz {

namespace {

using namespace KzXmlLib10;

void AddVocabulary(CFastInfosetContext& context) {
    context.SetUseGeneratedVocabulary(true);
    CFIVocabulary& vocabulary = context.GetVocabulary();
    vocabulary.AddAttributeValue(u"value");
    vocabulary.AddElementValue(u"chunk");
}

} // namespace

void FastInfoset(Input input) {
    const std::uint8_t options = input.Byte();
    CXmlSerializationContext context;
    context.SetSchemaType(options & 1 ? SchemaType_NoNamespaces : SchemaType_Default);
    if (options & 2)
        AddVocabulary(context.GetFIContext());
    std::string bytes = options & 4 ? "<?xml version='1.0' encoding='finf'?>" : "";
    bytes.append("\xE0\x00\x00\x01", 4);
    bytes += input.Bytes();
    const auto load = [&](CXmlDocument& document) {
        return Outcome(document, [&] {
            document.LoadXmlStream(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
        });
    };
    CXmlDocument document(context);
    const std::u16string first = load(document);
    ExpectSame(first, load(document), "a document reads alike again");
}

} // namespace fuzz
