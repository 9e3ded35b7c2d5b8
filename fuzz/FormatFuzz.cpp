// Formats of up to four placeholders: the whole is its pieces one after the other, and a piece is what the C
// library makes of it where both follow one rule.
//
// Five bytes a piece: conversion, flags, width, precision, literal text behind it; then its value.
#include "support/Targets.h"

#include <KzXmlLib10/object/FormatString.h>

#include <cstdio>
#include <vector>

namespace fuzz {

namespace {

using namespace KzXmlLib10;

enum class Kind { Integer, Long, Real, Text, Character };

struct Piece {
    Kind kind = Kind::Integer;
    std::string flags;
    std::string conversion;
    std::u16string format;
    std::uint64_t bits = 0;
    std::u16string text;

    double Real() const {
        double real;
        static_assert(sizeof real == sizeof bits);
        std::char_traits<char>::copy(reinterpret_cast<char*>(&real), reinterpret_cast<const char*>(&bits),
                                     sizeof real);
        return real;
    }
};

Piece ReadPiece(Input& input) {
    static constexpr struct {
        Kind kind;
        const char* conversion;
    } conversions[] = {
        {Kind::Integer, "d"}, {Kind::Integer, "i"}, {Kind::Integer, "u"},   {Kind::Integer, "x"},
        {Kind::Integer, "X"}, {Kind::Integer, "o"}, {Kind::Integer, "hd"},  {Kind::Integer, "hu"},
        {Kind::Long, "I64d"}, {Kind::Long, "I64u"}, {Kind::Long, "I64x"},   {Kind::Long, "lld"},
        {Kind::Real, "e"},    {Kind::Real, "E"},    {Kind::Real, "f"},      {Kind::Real, "g"},
        {Kind::Real, "G"},    {Kind::Text, "s"},    {Kind::Character, "c"},
    };
    Piece piece;
    const auto& [kind, conversion] = conversions[input.Byte() % std::size(conversions)];
    piece.kind = kind;
    piece.conversion = conversion;
    const std::uint8_t flags = input.Byte();
    for (unsigned i = 0; i < 5; ++i)
        if (flags >> i & 1u)
            piece.flags += "-+ #0"[i];
    const std::uint8_t width = input.Byte();
    if (width < 100)
        piece.flags += (width < 10 ? "" : std::to_string(width));
    const std::uint8_t precision = input.Byte();
    if (precision < 100)
        piece.flags += "." + (precision % 7 ? std::to_string(precision) : "");
    const std::string format = "%" + piece.flags + piece.conversion;
    piece.format.assign(format.begin(), format.end());
    piece.format.append(input.Byte() % 4, u'\u00E9');
    piece.bits = input.Number<std::uint64_t>();
    if (kind == Kind::Text)
        piece.text = input.Line().c_str();
    return piece;
}

/// Formats all pieces from `at` on, after the arguments collected so far.
template <class... Arguments>
std::u16string FormatAll(const std::vector<Piece>& pieces, const std::u16string& format,
                         Arguments... arguments) {
    constexpr std::size_t at = sizeof...(Arguments);
    if constexpr (at < 4) {
        if (at < pieces.size()) {
            const Piece& piece = pieces[at];
            switch (piece.kind) {
            case Kind::Integer:
                return FormatAll(pieces, format, arguments..., static_cast<int>(piece.bits));
            case Kind::Long:
                return FormatAll(pieces, format, arguments..., static_cast<long long>(piece.bits));
            case Kind::Real:
                return FormatAll(pieces, format, arguments..., piece.Real());
            case Kind::Text:
                return FormatAll(pieces, format, arguments..., piece.text.c_str());
            case Kind::Character:
                return FormatAll(pieces, format, arguments..., static_cast<int>(piece.bits & 0xFFFF));
            }
        }
    }
    return FormatString(format.c_str(), arguments...);
}

/// What the C library writes; empty where its rules are others: texts, and the flag 0 for what is no number.
std::string FromC(const Piece& piece) {
    std::string conversion = piece.conversion;
    if (conversion.rfind("I64", 0) == 0)
        conversion.replace(0, 3, "ll");
    const std::string format = "%" + piece.flags + conversion;
    char text[600];
    const auto print = [&](auto value) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
        const int length = std::snprintf(text, sizeof text, format.c_str(), value);
#pragma GCC diagnostic pop
        return std::string(text, static_cast<std::size_t>(length));
    };
    switch (piece.kind) {
    case Kind::Integer:
        return print(static_cast<int>(piece.bits));
    case Kind::Long:
        return print(static_cast<long long>(piece.bits));
    case Kind::Real:
        return print(piece.Real());
    default:
        return "";
    }
}

} // namespace

void Format(Input input) {
    std::vector<Piece> pieces;
    while (!input.IsEmpty() && pieces.size() < 4)
        pieces.push_back(ReadPiece(input));
    std::u16string format;
    std::u16string sum;
    for (const Piece& piece : pieces) {
        format += piece.format;
        const std::u16string alone = FormatAll({piece}, piece.format);
        const std::string known = FromC(piece);
        const std::u16string wide(known.begin(), known.end());
        if (!known.empty())
            ExpectSame(alone.substr(0, alone.find(u'\u00E9')), wide, "a number reads as in C");
        sum += alone;
    }
    ExpectSame(FormatAll(pieces, format), sum, "the whole is its pieces");
}

} // namespace fuzz
