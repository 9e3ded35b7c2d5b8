// Runs a target over the files of a folder: what a fuzzer once found stays found.
#include "support/Targets.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

int main(int argc, char** argv) {
    const auto* const target =
        std::find_if(std::begin(fuzz::targets), std::end(fuzz::targets),
                     [=](const fuzz::NamedTarget& t) { return argc == 3 && t.name == argv[1]; });
    if (target == std::end(fuzz::targets)) {
        std::cerr << "usage: Replay TARGET FOLDER\n";
        return 2;
    }
    fuzz::takesLongPatterns = true;
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argv[2])) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        std::cout << entry.path().filename() << std::endl;
        fuzz::Run(target->run, reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++count;
    }
    std::cout << count << " inputs\n";
    return count > 0 ? 0 : 1;
}
