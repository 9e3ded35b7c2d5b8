/// guide SAMPLES FOLDER
///
/// Copies the sample documents of the folder SAMPLES into FOLDER, goes there, and runs what the guide shows.

#include "Guide.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace guide {

void Section(std::string_view name) { std::cout << '[' << name << "]\n"; }

void ShowFailure(const std::function<void()>& action) {
    try {
        action();
        std::cout << "no failure\n";
    } catch (const CKzException& failure) {
        std::cout << failure << '\n';
    }
}

void Print(std::u16string_view text) {
    if (text.ends_with(u'\n'))
        text.remove_suffix(1);
    std::cout << ToUtf8(text) << '\n';
}

void PrintFile(const char* name) { std::cout << std::ifstream(name).rdbuf(); }

} // namespace guide

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: guide SAMPLES FOLDER\n";
        return EXIT_FAILURE;
    }
    try {
        std::filesystem::create_directories(argv[2]);
        for (const char* name : {"orders.xml", "orders-faulty.xml", "shipment.xml", "shipment-faulty.xml"})
            std::filesystem::copy_file(std::filesystem::path(argv[1]) / name,
                                       std::filesystem::path(argv[2]) / name,
                                       std::filesystem::copy_options::overwrite_existing);
        std::filesystem::current_path(argv[2]);
        guide::Reading();
        guide::Writing();
        guide::Checking();
        guide::Content();
        guide::Collections();
        guide::LargeDocuments();
        guide::FastInfoset();
        guide::Values();
        guide::Errors();
        guide::Threads();
        guide::Generators();
        return EXIT_SUCCESS;
    } catch (const KzXmlLib10::CKzException& failure) {
        std::cerr << failure << '\n';
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
    }
    return EXIT_FAILURE;
}
