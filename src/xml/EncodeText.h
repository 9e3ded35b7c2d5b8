#pragma once

#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/values/CBinaryData.h>

#include <span>
#include <string_view>

namespace KzXmlLib10 {

struct EncodedText {
    CBinaryData bytes;
    bool isWhole; ///< false if a surrogate without its partner has ended it early
};

/// The bytes of a text that lies in pieces, without a byte order mark. Throws CKzException for what is no
/// byte encoding.
EncodedText EncodeText(std::span<const std::u16string_view> pieces, XmlEncoding encoding);

/// The mark at the head of a file: empty except for UTF-16.
CBinaryData ByteOrderMark(XmlEncoding encoding);

} // namespace KzXmlLib10
