#pragma once

#include <cstdint>

/// The built-in encoding algorithms and restricted alphabets, by their numbers in ITU-T X.891.
namespace KzXmlLib10::fastinfoset {

enum Algorithm : std::uint32_t {
    AlgorithmHexadecimal = 1,
    AlgorithmBase64 = 2,
    AlgorithmShort = 3,
    AlgorithmInt = 4,
    AlgorithmLong = 5,
    AlgorithmBoolean = 6,
    AlgorithmFloat = 7,
    AlgorithmDouble = 8,
    AlgorithmUuid = 9,
    AlgorithmCdata = 10,
};

enum Alphabet : std::uint32_t {
    AlphabetNumeric = 1,
    AlphabetDateAndTime = 2,
};

} // namespace KzXmlLib10::fastinfoset
