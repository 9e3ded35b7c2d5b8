#include <KzXmlLib10/fastinfoset/CFastInfosetBinaryData.h>

#include "fastinfoset/Algorithms.h"
#include "fastinfoset/Messages.h"
#include "object/NotNull.h"
#include "object/Throw.h"

#include <KzXmlLib10/conversions/CConversions.h>
#include <KzXmlLib10/object/Text.h>

#include <bit>
#include <concepts>
#include <cstdint>

// The values "-2", "true" and 1.5:
//
//     short    FF FE
//     int      FF FF FF FE
//     boolean  38                       3 bits of the last byte unused, then the bit
//     double   3F F8 00 00 00 00 00 00

namespace KzXmlLib10 {

using namespace fastinfoset;

namespace {

constexpr auto asItStands = CWhitespaceUtils::WhitespaceRule_None;
constexpr unsigned char unusedBitsOfOneBoolean = 3;

template <std::unsigned_integral T>
T ReadBigEndian(const unsigned char* bytes) {
    T value = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i)
        value = static_cast<T>(value << 8 | bytes[i]);
    return value;
}

template <std::unsigned_integral T>
void AppendBigEndian(CBinaryData& data, T value) {
    for (unsigned shift = 8 * sizeof(T); shift > 0; shift -= 8)
        data.Append(static_cast<unsigned char>(value >> (shift - 8)));
}

std::u16string ShortText(const unsigned char* bytes) {
    return CConversions::i2ToString(static_cast<std::int16_t>(ReadBigEndian<std::uint16_t>(bytes)));
}

std::u16string IntText(const unsigned char* bytes) {
    return CConversions::i4ToString(static_cast<std::int32_t>(ReadBigEndian<std::uint32_t>(bytes)));
}

std::u16string LongText(const unsigned char* bytes) {
    return CConversions::i8ToString(static_cast<long long>(ReadBigEndian<std::uint64_t>(bytes)));
}

/// Deliberate: the first byte stands for all four.
std::u16string FloatText(const unsigned char* bytes) {
    return CConversions::r4ToString(std::bit_cast<float>(bytes[0] * 0x01010101u));
}

std::u16string DoubleText(const unsigned char* bytes) {
    return CConversions::r8ToString(std::bit_cast<double>(ReadBigEndian<std::uint64_t>(bytes)));
}

std::u16string UuidText(const unsigned char* bytes) { return CBinaryData::GetAsHexString(bytes, 16); }

/// The texts of values of `size` bytes each, joined by a blank.
template <const auto& WrongLength>
std::u16string JoinValues(const CBinaryData& data, std::uint32_t size,
                          std::u16string (*toText)(const unsigned char*)) {
    if (data.GetLength() % size != 0)
        Throw<CKzException>(WrongLength);
    std::u16string text;
    for (std::uint32_t at = 0; at < data.GetLength(); at += size) {
        if (at > 0)
            text += u' ';
        text += toText(data.GetData() + at);
    }
    return text;
}

/// The high half of the first byte is the number of unused bits at the end of the last one.
std::u16string BooleanText(const CBinaryData& data) {
    const std::uint32_t last = data.GetLength() - 1;
    const int unused = data[0] >> 4;
    std::u16string text;
    for (std::uint32_t at = 0; at <= last; ++at) {
        if (at > 0)
            text += u' ';
        const int lowest = at == last ? unused : 0;
        for (int bit = at == 0 ? 3 : 7; bit >= lowest; --bit)
            text += CConversions::booleanToString((data[at] >> bit & 1) != 0);
    }
    return text;
}

} // namespace

CFastInfosetBinaryData::CFastInfosetBinaryData() = default;
CFastInfosetBinaryData::CFastInfosetBinaryData(const CBinaryData& other) : CBinaryData(other) {}
CFastInfosetBinaryData::CFastInfosetBinaryData(const char16_t* text) : CBinaryData(text) {}
CFastInfosetBinaryData::CFastInfosetBinaryData(unsigned char* const data, unsigned long length, bool adopt)
    : CBinaryData(data, length, adopt) {}

std::u16string CFastInfosetBinaryData::GetAsString(unsigned long algorithm) const {
    if (GetLength() == 0)
        return {};
    switch (algorithm) {
    case AlgorithmHexadecimal:
        return GetAsHexString();
    case AlgorithmBase64:
        return GetAsBase64();
    case AlgorithmShort:
        return JoinValues<messages::InvalidShort>(*this, 2, ShortText);
    case AlgorithmInt:
        return JoinValues<messages::InvalidInt>(*this, 4, IntText);
    case AlgorithmLong:
        return JoinValues<messages::InvalidLong>(*this, 8, LongText);
    case AlgorithmBoolean:
        return BooleanText(*this);
    case AlgorithmFloat:
        return JoinValues<messages::InvalidFloat>(*this, 4, FloatText);
    case AlgorithmDouble:
        return JoinValues<messages::InvalidDouble>(*this, 8, DoubleText);
    case AlgorithmUuid:
        return JoinValues<messages::InvalidUuid>(*this, 16, UuidText);
    default:
        Throw<CKzException>(messages::UnknownByteEncoding);
    }
}

void CFastInfosetBinaryData::SetAsEncodedString(unsigned long algorithm, const char16_t* text) {
    NotNull(text, u"text");
    Clear();
    switch (algorithm) {
    case AlgorithmHexadecimal:
    case AlgorithmUuid:
        return SetAsHexString(text);
    case AlgorithmBase64:
        return SetAsBase64(text);
    case AlgorithmShort:
        return AppendBigEndian(*this,
                               static_cast<std::uint16_t>(CConversions::i2FromString(text, asItStands)));
    case AlgorithmInt:
        return AppendBigEndian(*this,
                               static_cast<std::uint32_t>(CConversions::i4FromString(text, asItStands)));
    case AlgorithmLong:
        return AppendBigEndian(*this,
                               static_cast<std::uint64_t>(CConversions::i8FromString(text, asItStands)));
    case AlgorithmBoolean:
        return Append(static_cast<unsigned char>(unusedBitsOfOneBoolean << 4 |
                                                 CConversions::booleanFromString(text, asItStands) << 3));
    case AlgorithmFloat:
        return AppendBigEndian(*this,
                               std::bit_cast<std::uint32_t>(CConversions::r4FromString(text, asItStands)));
    case AlgorithmDouble:
        return AppendBigEndian(*this,
                               std::bit_cast<std::uint64_t>(CConversions::r8FromString(text, asItStands)));
    case AlgorithmCdata: {
        const std::string utf8 = ConvertToUtf8(text);
        return Append(reinterpret_cast<const unsigned char*>(utf8.data()), utf8.size());
    }
    default:
        Throw<CKzException>(messages::UnknownByteEncoding);
    }
}

} // namespace KzXmlLib10
