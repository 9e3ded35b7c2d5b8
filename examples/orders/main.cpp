/// orders_demo SAMPLES OUTPUT
///
/// Reads the sample documents of the folder SAMPLES into typed objects, prints them, changes them, writes
/// them into the folder OUTPUT, and shows what becomes of faulty documents.

#include "Demo.h"

#include <KzXmlLib10/object/CKzException.h>

#include <cstdlib>
#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: orders_demo SAMPLES OUTPUT\n";
        return EXIT_FAILURE;
    }
    try {
        std::filesystem::create_directories(argv[2]);
        orders::demo::ShowOrders(argv[1], argv[2]);
        orders::demo::ShowShipment(argv[1], argv[2]);
        orders::demo::ShowFastInfoset(argv[1]);
        return EXIT_SUCCESS;
    } catch (const KzXmlLib10::CKzException& failure) {
        std::cerr << failure << '\n';
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
    }
    return EXIT_FAILURE;
}
