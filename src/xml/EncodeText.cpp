#include "xml/EncodeText.h"

#include "object/Throw.h"
#include "object/Utf8.h"
#include "xml/Messages.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <memory>

namespace KzXmlLib10 {

namespace {

bool IsUtf16(XmlEncoding encoding) {
    return encoding == XmlEncoding_UTF16 || encoding == XmlEncoding_UTF16NoDecl;
}

/// Data of `size` bytes, which `write` fills in.
template <class Write>
CBinaryData MakeData(std::uint64_t size, Write write) {
    if (size > std::numeric_limits<std::uint32_t>::max())
        Throw<CKzException>(messages::EncodedTextTooLong);
    auto bytes = std::make_unique_for_overwrite<unsigned char[]>(size);
    write(reinterpret_cast<char*>(bytes.get()));
    CBinaryData data(bytes.get(), size, true);
    (void)bytes.release();
    return data;
}

EncodedText EncodeUtf8(std::u16string_view text) {
    const Utf8Extent extent = MeasureUtf8(text);
    return {MakeData(extent.bytes, [&](char* to) { WriteUtf8(to, text, extent); }),
            extent.units == text.size()};
}

EncodedText EncodeUtf16(std::u16string_view text) {
    static_assert(std::endian::native == std::endian::little, "text is written as it lies in memory");
    const auto* const from = reinterpret_cast<const char*>(text.data());
    const std::size_t size = text.size() * sizeof(char16_t);
    return {MakeData(size, [&](char* to) { std::copy_n(from, size, to); }), true};
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
