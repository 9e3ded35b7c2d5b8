/// orders parse|roundtrip FILE ITERATIONS
///
/// Times the generated classes of examples/orders on a document that make_orders.py wrote. The bytes of the
/// file are loaded once. `parse` makes an object of them and destroys it, `roundtrip` also writes the object
/// as formatted UTF-8. Prints one line: operation, bytes, iterations, best and median seconds of one
/// iteration, megabytes of the file per second at best, and the peak of resident memory.

#include "classes/COrders.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/CBinaryData.h>

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace {

using namespace KzXmlLib10;

CBinaryData Load(const char* file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error(std::string("cannot read ") + file);
    std::vector<char> bytes((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    return CBinaryData(reinterpret_cast<unsigned char*>(bytes.data()), bytes.size(), false);
}

void Parse(const CBinaryData& document, const CXmlSerializationContext& context) {
    const CSmartPtr<orders::COrders> object = new orders::COrders;
    object->FromXmlStream(document, context);
}

void RoundTrip(const CBinaryData& document, const CXmlSerializationContext& context) {
    const CSmartPtr<orders::COrders> object = new orders::COrders;
    object->FromXmlStream(document, context);
    if (object->ToXmlStream(true, true, XmlEncoding_UTF8, EOLType_LF, context, CompressionType_None)
            .GetLength() == 0)
        throw std::runtime_error("nothing was written");
}

/// Seconds of each iteration, in ascending order.
template <class Operation>
std::vector<double> Time(Operation operation, int iterations) {
    std::vector<double> seconds;
    for (int i = 0; i < iterations; ++i) {
        const auto start = std::chrono::steady_clock::now();
        operation();
        seconds.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(seconds.begin(), seconds.end());
    return seconds;
}

long PeakResidentKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

int Run(std::string_view operation, const char* file, int iterations) {
    const CBinaryData document = Load(file);
    CXmlSerializationContext context;
    context.SetDefaultNamespaceURI(orders::ordersNamespace);
    const auto run = operation == "parse" ? Parse : RoundTrip;
    const std::vector<double> seconds = Time([&] { run(document, context); }, iterations);
    std::printf("%s bytes=%u iterations=%d best_s=%.6f median_s=%.6f MB_per_s=%.2f peak_rss_kb=%ld\n",
                std::string(operation).c_str(), document.GetLength(), iterations, seconds.front(),
                seconds[seconds.size() / 2], document.GetLength() / seconds.front() / 1e6,
                PeakResidentKilobytes());
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    const std::string_view operation = argc == 4 ? argv[1] : "";
    const int iterations = argc == 4 ? std::atoi(argv[3]) : 0;
    if ((operation != "parse" && operation != "roundtrip") || iterations < 1) {
        std::cerr << "usage: orders parse|roundtrip FILE ITERATIONS\n";
        return EXIT_FAILURE;
    }
    try {
        return Run(operation, argv[2], iterations);
    } catch (const CKzException& failure) {
        std::cerr << failure << '\n';
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
    }
    return EXIT_FAILURE;
}
