// What the programs of the benchmarks share: their command line, their clock and their one line of output.
#pragma once

#include <sys/resource.h>
#include <time.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

namespace measure {

struct Arguments {
    std::string operation;
    std::string file;
    int iterations = 0;
};

/// Throws std::invalid_argument if the command line is not `PROGRAM OPERATION FILE ITERATIONS`.
inline Arguments ReadArguments(const std::vector<std::string>& words) {
    if (words.size() != 4)
        throw std::invalid_argument("usage: " + words.at(0) + " OPERATION FILE ITERATIONS");
    Arguments arguments{words[1], words[2], 0};
    const char* const end = words[3].data() + words[3].size();
    const auto [stop, error] = std::from_chars(words[3].data(), end, arguments.iterations);
    if (error != std::errc() || stop != end || arguments.iterations < 1)
        throw std::invalid_argument("ITERATIONS is a number from 1 on, not " + words[3]);
    return arguments;
}

inline std::vector<unsigned char> ReadFile(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot open " + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The largest resident size of the process so far, in KB of 1024 bytes.
inline long PeakResidentKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// What the process has had of the processor so far: other work on the machine does not count.
inline double ProcessorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// Runs `work`, which returns the number of bytes it made, and prints what it took. `countAllocations` gives
/// the number of allocations of the process so far.
template <class Work, class CountAllocations>
void Run(const Arguments& arguments, Work work, CountAllocations countAllocations) {
    std::vector<double> seconds(static_cast<std::size_t>(arguments.iterations));
    std::size_t outputBytes = 0;
    unsigned long allocations = 0;
    for (double& one : seconds) {
        const unsigned long before = countAllocations();
        const double start = ProcessorSeconds();
        outputBytes = work();
        one = ProcessorSeconds() - start;
        allocations = countAllocations() - before;
    }
    std::sort(seconds.begin(), seconds.end());
    std::printf("%s in=%ju out=%zu iterations=%d best=%.9f median=%.9f allocations=%lu peak=%ld\n",
                arguments.operation.c_str(), std::filesystem::file_size(arguments.file), outputBytes,
                arguments.iterations, seconds.front(), seconds[seconds.size() / 2], allocations,
                PeakResidentKilobytes());
}

} // namespace measure
