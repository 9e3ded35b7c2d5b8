// Random cases for the arithmetic of the Values target, without a fuzzer: integers, decimals, dates moved by
// durations, each against its slow reference version.
//
//      fuzz_differences 10000000       that many cases; an optional second argument is the seed
#include "support/Targets.h"

#include <cstdlib>
#include <iostream>
#include <iterator>
#include <random>

int main(int argc, char** argv) {
    const unsigned long cases = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 10000;
    const unsigned long seed = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1;
    std::mt19937_64 random(seed);
    std::uint8_t bytes[64];
    unsigned long counts[std::size(fuzz::arithmetic)] = {};
    for (unsigned long i = 0; i < cases; ++i) {
        for (std::uint8_t& byte : bytes)
            byte = static_cast<std::uint8_t>(random());
        const std::size_t kind = i % std::size(fuzz::arithmetic);
        fuzz::arithmetic[kind].run(fuzz::Input(bytes, sizeof bytes)); // none of these may throw
        ++counts[kind];
    }
    for (std::size_t kind = 0; kind < std::size(counts); ++kind)
        std::cout << fuzz::arithmetic[kind].name << ": " << counts[kind] << " cases\n";
    std::cout << "0 differences; seed " << seed << "\n";
}
