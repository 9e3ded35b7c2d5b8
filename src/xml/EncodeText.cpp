#include "xml/EncodeText.h"

#include "object/Throw.h"
#include "object/Utf8.h"
#include "xml/Messages.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <memory>
#include <numeric>
#include <utility>

namespace KzXmlLib10 {

namespace {

bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }

bool IsUtf16(XmlEncoding encoding) {
    return encoding == XmlEncoding_UTF16 || encoding == XmlEncoding_UTF16NoDecl;
}

std::size_t CountUnits(std::span<const std::u16string_view> pieces) {
    return std::accumulate(pieces.begin(), pieces.end(), std::size_t{0},
                           [](std::size_t sum, std::u16string_view piece) { return sum + piece.size(); });
}

/// An array that becomes binary data.
class GrowingBytes {
public:
    explicit GrowingBytes(std::size_t capacity)
        : m_bytes(std::make_unique_for_overwrite<unsigned char[]>(capacity)), m_capacity(capacity) {}

    char* Reserve(std::size_t count) {
        if (count > m_capacity - m_size)
            MoveTo(std::max(m_size + count, m_capacity + m_capacity / 2));
        return reinterpret_cast<char*>(m_bytes.get()) + m_size;
    }
    void Commit(std::size_t count) { m_size += count; }

    CBinaryData Take() {
        if (m_size > std::numeric_limits<std::uint32_t>::max())
            Throw<CKzException>(messages::EncodedTextTooLong);
        if (m_capacity - m_size > m_size / 4)
            MoveTo(m_size);
        CBinaryData data(m_bytes.get(), m_size, true);
        (void)m_bytes.release();
        return data;
    }

private:
    void MoveTo(std::size_t capacity) {
        auto bytes = std::make_unique_for_overwrite<unsigned char[]>(capacity);
        std::copy_n(m_bytes.get(), m_size, bytes.get());
        m_bytes = std::move(bytes);
        m_capacity = capacity;
    }

    std::unique_ptr<unsigned char[]> m_bytes;
    std::size_t m_capacity;
    std::size_t m_size = 0;
};

/// Converts pieces, at whose ends pairs of surrogates may be parted.
class Utf8Encoder {
public:
    explicit Utf8Encoder(std::size_t units) : m_bytes(units + units / 8) {}

    void Append(std::u16string_view piece) {
        if (piece.empty())
            return;
        if (m_parted) {
            const char16_t pair[]{m_parted, piece.front()};
            m_parted = u'\0';
            Convert({pair, 2});
            piece.remove_prefix(1);
        }
        if (!piece.empty() && IsHighSurrogate(piece.back())) {
            m_parted = piece.back();
            piece.remove_suffix(1);
        }
        Convert(piece);
    }

    EncodedText Finish() { return {m_bytes.Take(), m_isWhole && !m_parted}; }

private:
    void Convert(std::u16string_view text) {
        if (!m_isWhole)
            return;
        constexpr std::size_t bytesPerUnit = 3;
        const Utf8Extent done = WriteUtf8(m_bytes.Reserve(text.size() * bytesPerUnit), text);
        m_bytes.Commit(done.bytes);
        m_isWhole = done.units == text.size();
    }

    GrowingBytes m_bytes;
    char16_t m_parted = u'\0'; ///< the first of a pair whose second may stand in the next piece
    bool m_isWhole = true;
};

EncodedText EncodeUtf8(std::span<const std::u16string_view> pieces) {
    Utf8Encoder encoder(CountUnits(pieces));
    for (const std::u16string_view piece : pieces)
        encoder.Append(piece);
    return encoder.Finish();
}

EncodedText EncodeUtf16(std::span<const std::u16string_view> pieces) {
    static_assert(std::endian::native == std::endian::little, "text is written as it lies in memory");
    GrowingBytes bytes(CountUnits(pieces) * sizeof(char16_t));
    for (const std::u16string_view piece : pieces) {
        const std::size_t size = piece.size() * sizeof(char16_t);
        std::copy_n(reinterpret_cast<const char*>(piece.data()), size, bytes.Reserve(size));
        bytes.Commit(size);
    }
    return {bytes.Take(), true};
}

} // namespace

EncodedText EncodeText(std::span<const std::u16string_view> pieces, XmlEncoding encoding) {
    if (encoding == XmlEncoding_UTF8)
        return EncodeUtf8(pieces);
    if (IsUtf16(encoding))
        return EncodeUtf16(pieces);
    Throw<CKzException>(messages::UnknownEncoding);
}

CBinaryData ByteOrderMark(XmlEncoding encoding) {
    return IsUtf16(encoding) ? CBinaryData(u"\uFEFF") : CBinaryData();
}

} // namespace KzXmlLib10
