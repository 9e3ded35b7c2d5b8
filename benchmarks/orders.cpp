// Times reading and writing of a document through the classes of the example.
//
//     orders parse|roundtrip FILE ITERATIONS
//
// parse reads the document into objects; roundtrip also writes them back as UTF-8. The file is read into
// memory first; make_orders.py writes one of any size. One line comes out, for people and scripts both:
//
//     parse bytes=1060000 iterations=20 best=0.021000s median=0.022000s speed=50.5MB/s peak=25000KB
//
// MB/s are millions of bytes of the document in the best second; the peak is that of the whole process.
#include "classes/COrders.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/CBinaryData.h>

#include <sys/resource.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

using namespace KzXmlLib10;

namespace {

using Document = orders::COrders;

struct Arguments {
    std::string operation;
    std::string file;
    int iterations = 0;
};

/// Throws std::invalid_argument if the command line is not `orders parse|roundtrip FILE ITERATIONS`.
Arguments ReadArguments(const std::vector<std::string>& words) {
    if (words.size() != 4 || (words[1] != "parse" && words[1] != "roundtrip"))
        throw std::invalid_argument("usage: orders parse|roundtrip FILE ITERATIONS");
    Arguments arguments{words[1], words[2], 0};
    const char* const end = words[3].data() + words[3].size();
    const auto [stop, error] = std::from_chars(words[3].data(), end, arguments.iterations);
    if (error != std::errc() || stop != end || arguments.iterations < 1)
        throw std::invalid_argument("ITERATIONS is a number from 1 on, not " + words[3]);
    return arguments;
}

std::vector<unsigned char> ReadFile(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot open " + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Reads the document and, in a round trip, writes it. Returns the seconds that it took.
double SecondsOfWork(std::vector<unsigned char>& bytes, const CXmlSerializationContext& context,
                     bool roundtrip) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    Document document;
    document.FromXmlStream(bytes.data(), bytes.size(), context);
    if (roundtrip)
        document.ToXmlStream(true, true, XmlEncoding_UTF8, EOLType_LF, context, CompressionType_None);
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// The largest resident size of the process so far, in KB of 1024 bytes.
long PeakResidentKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

void Run(const Arguments& arguments) {
    std::vector<unsigned char> document = ReadFile(arguments.file);
    CXmlSerializationContext context;
    context.SetDefaultNamespaceURI(orders::ordersNamespace);
    std::vector<double> seconds(static_cast<std::size_t>(arguments.iterations));
    for (double& one : seconds)
        one = SecondsOfWork(document, context, arguments.operation == "roundtrip");
    std::sort(seconds.begin(), seconds.end());
    const double best = seconds.front();
    std::printf("%s bytes=%zu iterations=%d best=%.6fs median=%.6fs speed=%.1fMB/s peak=%ldKB\n",
                arguments.operation.c_str(), document.size(), arguments.iterations, best,
                seconds[seconds.size() / 2], static_cast<double>(document.size()) / best / 1e6,
                PeakResidentKilobytes());
}

} // namespace

int main(int argc, char** argv) {
    try {
        Run(ReadArguments({argv, argv + argc}));
        return 0;
    } catch (const CKzException& failure) {
        std::cerr << failure << '\n';
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
    }
    return 1;
}
