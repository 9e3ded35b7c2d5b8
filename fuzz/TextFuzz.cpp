// XML text becomes a tree or a failure, the same on each road. A callback that drops elements sees each one
// once, and what it throws reaches the caller.
//
// First byte: 1 ignore namespaces, 2 keep CDATA, 4 watch by a callback, 8 the callback throws, 16 compare
// with the road of bytes; the high bits choose how often the callback drops.
#include "support/Targets.h"
#include "support/Tree.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>

namespace fuzz {

namespace {

using namespace KzXmlLib10;

struct Stopped {};

struct Watch {
    const CXmlDocument* document = nullptr;
    unsigned dropEvery = 0;
    std::size_t seen = 0;
    std::size_t dropped = 0;
    bool throws = false;
};
Watch watch;

bool OnElement(CXmlElement* element) {
    ++watch.seen;
    if (watch.throws && watch.seen == watch.dropEvery)
        throw Stopped();
    if (watch.dropEvery == 0 || watch.seen % watch.dropEvery != 0)
        return false;
    if (element != watch.document->GetDocumentElement())
        watch.dropped += CountElements(element);
    return true;
}

void LoadWatched(const std::string& text, const CXmlSerializationContext& context, std::uint8_t options) {
    CXmlDocument document(OnElement, context);
    watch = {&document, static_cast<unsigned>(options) >> 5, 0, 0, (options & 8) != 0};
    try {
        document.LoadXml(text.c_str());
    } catch (const Stopped&) {
        return;
    }
    Expect(!watch.throws || watch.dropEvery == 0 || watch.seen < watch.dropEvery,
           "what the callback throws reaches the caller");
    Expect(CountElements(document.GetDocumentElement()) == watch.seen - watch.dropped,
           "the tree has the elements that the callback has not dropped");
}

} // namespace

void Text(Input input) {
    const std::uint8_t options = input.Byte();
    const std::string text = input.Bytes();
    CXmlSerializationContext context;
    context.SetSchemaType(options & 1 ? SchemaType_NoNamespaces : SchemaType_Default);
    context.SetStripCDATA(!(options & 2));
    if (options & 4)
        return LoadWatched(text, context, options);

    CXmlDocument document(context);
    const std::u16string tree = Outcome(document, [&] { document.LoadXml(text.c_str()); });
    // Beside the texts, a flat tree has up to seven units an element, which is four bytes of input or more.
    Expect(tree.size() * sizeof(char16_t) <= treeTextBytes + 300 * text.size(),
           "a tree is in proportion to its input");
    if (!(options & 16) || text.empty() || text.size() != std::char_traits<char>::length(text.c_str()))
        return;
    CXmlDocument other(context);
    const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
    ExpectSame(tree, Outcome(other, [&] { other.LoadXmlStream(bytes, text.size()); }),
               "text and bytes give one result");
}

} // namespace fuzz
