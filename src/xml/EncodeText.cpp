#include "xml/EncodeText.h"

#include "object/Throw.h"
#include "object/Utf8.h"
#include "xml/Messages.h"

#include <bit>
#include <limits>
#include <memory>

namespace KzXmlLib10 {

namespace {

bool IsUtf16(XmlEncoding encoding) {
    return encoding == XmlEncoding_UTF16 || encoding == XmlEncoding_UTF16NoDecl;
}

EncodedText EncodeUtf8(std::u16string_view text) {
    const Utf8Extent extent = MeasureUtf8(text);
    if (extent.bytes > std::numeric_limits<std::uint32_t>::max())
        Throw<CKzException>(messages::EncodedTextTooLong);
    std::unique_ptr<unsigned char[]> bytes(new unsigned char[extent.bytes]);
    WriteUtf8(reinterpret_cast<char*>(bytes.get()), text, extent);
    EncodedText result{CBinaryData(bytes.get(), extent.bytes, true), extent.units == text.size()};
    (void)bytes.release();
    return result;
}

EncodedText EncodeUtf16(std::u16string_view text) {
    static_assert(std::endian::native == std::endian::little, "text is written as it lies in memory");
    EncodedText result{{}, true};
    result.bytes.SetBuffer(reinterpret_cast<const unsigned char*>(text.data()), 2 * text.size());
    return result;
}

} // namespace

EncodedText EncodeText(std::u16string_view text, XmlEncoding encoding) {
    if (encoding == XmlEncoding_UTF8)
        return EncodeUtf8(text);
    if (IsUtf16(encoding))
        return EncodeUtf16(text);
    Throw<CKzException>(messages::UnknownEncoding);
}

CBinaryData ByteOrderMark(XmlEncoding encoding) {
    return IsUtf16(encoding) ? CBinaryData(u"\uFEFF") : CBinaryData();
}

} // namespace KzXmlLib10
