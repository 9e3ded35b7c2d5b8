#pragma once

#include "fastinfoset/Marks.h"
#include "fastinfoset/Messages.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <span>

/// How Fast Infoset represents integers and lengths (ITU-T X.891, annex C): a rule for each bit of a byte on
/// which one may start, each a table of bands, which the writer and the reader share.
namespace KzXmlLib10::fastinfoset {

/// A range of integers with one form: a mark, then the distance from the start of the range, in the bits of
/// the first byte that the mark leaves free and in whole bytes, most significant first.
struct Band {
    std::uint32_t first;       ///< the least integer of the range
    Byte mark;                 ///< from the bit on which the rule starts
    Byte valueBits;            ///< how many bits the distance has
    Byte followingBytes;       ///< how many bytes follow the first
    std::uint32_t writtenFrom; ///< what the writer takes the distance from

    /// How many bits of the distance stand in the first byte.
    constexpr unsigned FreeBits() const { return std::max(valueBits - 8 * followingBytes, 0); }
    constexpr std::uint64_t Mask() const { return (std::uint64_t{1} << valueBits) - 1; }
};

struct IntegerRule {
    static constexpr unsigned MaxOctets = 5;

    std::span<const Band> bands;
    Byte mask;               ///< the bits of the first byte that belong to the rule
    const char16_t* failure; ///< what a reader says of a pattern that has no band

    /// Writes an integer of at least 1 behind leading bits of the first byte, where there is room for
    /// MaxOctets. Returns the number of bytes.
    constexpr unsigned Encode(std::uint64_t value, Byte leadingBits, Byte* octets) const {
        const Band& band = LastUpTo(value, &Band::first);
        const std::uint64_t distance = (value - band.writtenFrom) & band.Mask();
        unsigned shift = 8u * band.followingBytes;
        octets[0] = static_cast<Byte>(leadingBits | band.mark | distance >> shift);
        for (unsigned i = 1; shift > 0; ++i)
            octets[i] = static_cast<Byte>(distance >> (shift -= 8));
        return 1u + band.followingBytes;
    }

    /// The band that a first byte announces, or null.
    constexpr const Band* AnnouncedBy(Byte first) const {
        const Byte pattern = first & mask;
        const Band& band = LastUpTo(pattern, &Band::mark);
        return (pattern - band.mark) >> band.FreeBits() == 0 ? &band : nullptr;
    }

    /// The integer that a first byte and those that follow it make in their band.
    constexpr std::uint64_t Decode(const Band& band, Byte first, std::span<const Byte> following) const {
        std::uint64_t distance = (first & mask) - band.mark;
        for (const Byte byte : following)
            distance = distance << 8 | byte;
        return (distance & band.Mask()) + band.first;
    }

    /// The last band that begins at or below a value. Most values are in the first of the two to four.
    template <class Begin>
    constexpr const Band& LastUpTo(std::uint64_t value, Begin Band::*begin) const {
        auto band = bands.begin();
        while (std::next(band) != bands.end() && (*std::next(band)).*begin <= value)
            ++band;
        return *band;
    }
};

namespace detail {

// Octet strings: their length
inline constexpr Band octetsBit2[] = {
    {1, 0x00, 6, 0, 1},
    {65, 0x40, 8, 1, 65},
    {321, 0x60, 32, 4, 321},
};
inline constexpr Band octetsBit5[] = {
    {1, 0x0, 3, 0, 1},
    {9, 0x8, 8, 1, 9},
    {265, 0xC, 32, 4, 265},
};
inline constexpr Band octetsBit7[] = {
    {1, 0, 1, 0, 1},
    {3, 2, 8, 1, 3},
    {259, 3, 32, 4, 259},
};

// Integers from 1 to 2^20
inline constexpr Band integerBit2[] = {
    {1, 0x00, 6, 0, 1},
    {65, 0x40, 13, 1, 65},
    {8257, 0x60, 20, 2, 8257},
};
inline constexpr Band integerBit3[] = {
    {1, 0x00, 5, 0, 1},
    {33, 0x20, 11, 1, 33},
    {2081, 0x28, 19, 2, 2081},
    {526369, 0x30, 20, 3, 526368}, // Deliberate: an index of this size comes back one higher.
};
inline constexpr Band integerBit4[] = {
    {1, 0x00, 4, 0, 1},
    {17, 0x10, 10, 1, 17},
    {1041, 0x14, 18, 2, 1041},
    {263185, 0x18, 20, 3, 263185},
};

// The number of items of a sequence, from 1 to 2^20
inline constexpr Band sequenceLength[] = {
    {1, 0x00, 7, 0, 1},
    {129, 0x80, 20, 2, 129},
};

} // namespace detail

inline constexpr IntegerRule octetsBit2{detail::octetsBit2, 0x7F, messages::InvalidOctetsBit2};
inline constexpr IntegerRule octetsBit5{detail::octetsBit5, 0x0F, messages::InvalidOctetsBit5};
inline constexpr IntegerRule octetsBit7{detail::octetsBit7, 0x03, messages::InvalidOctetsBit7};
inline constexpr IntegerRule integerBit2{detail::integerBit2, 0x7F, messages::InvalidIntegerBit2};
inline constexpr IntegerRule integerFrom0Bit2{detail::integerBit2, 0x7F, messages::InvalidIntegerFrom0Bit2};
inline constexpr IntegerRule integerBit3{detail::integerBit3, 0x3F, messages::InvalidIntegerBit3};
inline constexpr IntegerRule integerBit4{detail::integerBit4, 0x1F, messages::InvalidIntegerBit4};
inline constexpr IntegerRule sequenceLength{detail::sequenceLength, 0xFF, messages::InvalidSequenceLength};

/// Where an encoded character string starts, on the third bit of a byte in attribute values and on the fifth
/// in character chunks. Two bits tell its kind. Plain strings have their length behind them; alphabets and
/// algorithms have their number, less one, in eight bits across two bytes and the length behind that.
struct EncodedStringForm {
    const IntegerRule& length;
    Byte kindShift; ///< where the bits of the kind stand; below them, the high bits of the number
    const char16_t* unknownEncoding;

    constexpr unsigned KindOf(Byte byte) const { return byte >> kindShift & 3u; }
    /// How many bits of the number stand at the top of the second byte.
    constexpr unsigned LowNumberBits() const { return 8u - kindShift; }
    constexpr Byte FirstByte(unsigned kind, unsigned number) const {
        return static_cast<Byte>(kind << kindShift | (number - 1) >> LowNumberBits());
    }
    constexpr Byte SecondByte(unsigned number) const { return static_cast<Byte>((number - 1) << kindShift); }
    constexpr unsigned NumberIn(Byte first, Byte second) const {
        const unsigned high = first & ((1u << kindShift) - 1);
        return (high << LowNumberBits() | second >> kindShift) + 1;
    }
};

enum EncodedStringKind : unsigned {
    KindUtf8 = 0,
    KindUtf16BE = 1,
    KindRestrictedAlphabet = 2,
    KindAlgorithm = 3,
};

inline constexpr EncodedStringForm attributeValueForm{octetsBit5, 4, messages::UnknownEncodingBit5};
inline constexpr EncodedStringForm characterChunkForm{octetsBit7, 2, messages::UnknownEncodingBit7};

} // namespace KzXmlLib10::fastinfoset
