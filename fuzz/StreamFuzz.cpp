// Bytes of any form are read into a tree or refused. What they inflate to stays within the limit, and what
// was compressed comes back and reads as it did before.
//
// First byte: 1 ignore namespaces, 2 gzip and 4 zlib the rest before.
#include "support/Targets.h"
#include "support/Tree.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/xml/Compression.h>

#include <algorithm>
#include <memory>

namespace fuzz {

namespace {

using namespace KzXmlLib10;

/// What Decompress makes of the bytes.
std::string Inflated(const CBinaryData& bytes) {
    auto array = std::make_unique<unsigned char[]>(bytes.GetLength());
    std::copy_n(bytes.GetData(), bytes.GetLength(), array.get());
    unsigned char* data = array.get();
    unsigned long size = bytes.GetLength();
    Decompress(&data, &size);
    if (data == array.get()) {
        Expect(size == bytes.GetLength(), "what is not compressed stays as it is");
    } else {
        (void)array.release();
        array.reset(data);
        Expect(size <= inflatedBytes, "the limit of inflating holds");
    }
    return std::string(reinterpret_cast<const char*>(data), size);
}

std::u16string Load(const CBinaryData& bytes, const CXmlSerializationContext& context) {
    CXmlDocument document(context);
    return Outcome(document, [&] { document.LoadXmlStream(bytes.GetData(), bytes.GetLength()); });
}

} // namespace

void Stream(Input input) {
    const std::uint8_t options = input.Byte();
    CXmlSerializationContext context;
    context.SetSchemaType(options & 1 ? SchemaType_NoNamespaces : SchemaType_Default);
    CBinaryData bytes;
    bytes.SetBuffer(input.Data(), input.Size());
    const std::string plain = Inflated(bytes);
    const std::u16string tree = Load(bytes, context);
    if (!(options & 6) || bytes.GetLength() == 0 || plain.size() != bytes.GetLength())
        return;
    CBinaryData compressed = bytes;
    Compress(compressed, options & 2 ? CompressionType_GZip : CompressionType_ZLib);
    Expect(Inflated(compressed) == plain, "what is compressed comes back");
    ExpectSame(tree, Load(compressed, context), "compressed bytes read as plain ones");
}

} // namespace fuzz
