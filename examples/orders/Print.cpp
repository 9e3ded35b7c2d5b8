#include "Print.h"

#include <KzXmlLib10/object/Text.h>

#include <fstream>
#include <iostream>
#include <string>

namespace orders::demo {

using namespace KzXmlLib10;

void PrintHeading(std::string_view text) { std::cout << '\n' << text << '\n'; }

void PrintLine(std::string_view text) { std::cout << "  " << text << '\n'; }

void PrintFile(const std::filesystem::path& file) {
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);)
        std::cout << "    " << line << '\n';
}

void PrintFailure(const std::function<void()>& action) {
    try {
        action();
        PrintLine("no failure");
    } catch (const CKzException& failure) {
        std::string indent;
        for (const CKzException* level = &failure; level; level = level->GetInnerException(), indent += "  ")
            PrintLine(indent + ToUtf8(level->GetMessageW()));
    }
}

} // namespace orders::demo
