// Times what the libraries below take by themselves for a document, on the same clock and in the same form as
// the program orders does.
//
//     baselines8|baselines16 parse|deflate|inflate FILE ITERATIONS
//
// parse goes through the document with expat, with empty handlers; the two programs differ in the form of
// expat, 8-bit or 16-bit. deflate and inflate are zlib's, with its fastest level.
#include "support/Allocations.h"
#include "support/Measure.h"

#include <expat.h>
#include <zlib.h>

#include <exception>
#include <functional>
#include <iostream>

namespace {

using Bytes = std::vector<unsigned char>;

std::size_t Parse(const Bytes& text) {
    const XML_Parser parser = XML_ParserCreateNS(nullptr, '|');
    XML_SetElementHandler(
        parser, [](void*, const XML_Char*, const XML_Char**) {}, [](void*, const XML_Char*) {});
    XML_SetCharacterDataHandler(parser, [](void*, const XML_Char*, int) {});
    const XML_Status status =
        XML_Parse(parser, reinterpret_cast<const char*>(text.data()), static_cast<int>(text.size()), 1);
    XML_ParserFree(parser);
    if (status != XML_STATUS_OK)
        throw std::runtime_error("the document is not well-formed");
    return 0;
}

Bytes Deflate(const Bytes& text) {
    uLongf size = compressBound(text.size());
    Bytes result(size);
    compress2(result.data(), &size, text.data(), text.size(), Z_BEST_SPEED);
    result.resize(size);
    return result;
}

std::size_t Inflate(const Bytes& deflated, Bytes& text) {
    uLongf size = text.size();
    if (uncompress(text.data(), &size, deflated.data(), deflated.size()) != Z_OK)
        throw std::runtime_error("zlib cannot read what it wrote");
    return size;
}

std::function<std::size_t()> Prepare(const measure::Arguments& arguments) {
    Bytes text = measure::ReadFile(arguments.file);
    if (arguments.operation == "parse")
        return [text] { return Parse(text); };
    if (arguments.operation == "deflate")
        return [text] { return Deflate(text).size(); };
    if (arguments.operation == "inflate")
        return [deflated = Deflate(text), text]() mutable { return Inflate(deflated, text); };
    throw std::invalid_argument("the operations are: parse deflate inflate");
}

} // namespace

int main(int argc, char** argv) {
    try {
        const measure::Arguments arguments = measure::ReadArguments({argv, argv + argc});
        measure::Run(arguments, Prepare(arguments), CountAllocations);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
    }
    return 1;
}
