// Times reading and writing of a document through the classes of the example.
//
//     orders OPERATION FILE ITERATIONS
//
// FILE is a text document; make_orders.py writes one of any size. It is read into memory first, except for
// `records`. The operations are the rows of a table below. One line comes out, for people and scripts both:
//
//     parse in=1057757 out=0 iterations=20 best=0.021000000 median=0.022000000 allocations=9000 peak=25000
//
// `in` are the bytes of the text document and `out` those of what was written, both in all forms; seconds are
// those that the processor gave one iteration, allocations those of the last one; the peak is the resident
// size of the whole process in KB of 1024 bytes.
#include "support/Allocations.h"
#include "support/Measure.h"

#include "classes/COrders.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/object/Text.h>
#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/xml/AsyncFiles.h>
#include <KzXmlLib10/xml/CXmlDocument.h>
#include <KzXmlLib10/xml/Compression.h>

#include <exception>
#include <functional>
#include <iostream>
#include <string_view>

using namespace KzXmlLib10;

namespace {

using Document = orders::COrders;
/// Returns the number of bytes it made.
using Work = std::function<std::size_t()>;

CXmlSerializationContext MakeContext(bool suggestedValues) {
    CXmlSerializationContext context;
    context.SetDefaultNamespaceURI(orders::ordersNamespace);
    if (suggestedValues) {
        // Dates with a fraction or a positive offset do not fit the suggested alphabet.
        CFastInfosetContext& fastInfoset = context.GetFIContext();
        const auto plain = fastInfoset.GetEncoding(ItemType_datetime);
        fastInfoset.SetSuggestedValues();
        fastInfoset.SetEncoding(ItemType_datetime, plain);
    }
    return context;
}

const CXmlSerializationContext plainContext = MakeContext(false);
const CXmlSerializationContext suggestedContext = MakeContext(true);

CBinaryData WriteText(const Document& document, CompressionType compression) {
    return document.ToXmlStream(true, true, XmlEncoding_UTF8, EOLType_LF, plainContext, compression);
}

CBinaryData WriteFastInfoset(const Document& document, const CXmlSerializationContext& context) {
    return document.ToFastInfosetStream(FInfoDecl_None, context, CompressionType_None);
}

CBinaryData ReadText(const std::string& file) {
    std::vector<unsigned char> bytes = measure::ReadFile(file);
    return {bytes.data(), bytes.size(), false};
}

CSmartPtr<Document> ReadObjects(const CBinaryData& bytes, const CXmlSerializationContext& context) {
    CSmartPtr<Document> document = new Document;
    document->FromXmlStream(bytes, context);
    return document;
}

/// Reads bytes into new objects.
Work Reading(const CBinaryData& bytes, const CXmlSerializationContext& context) {
    return [bytes, &context] {
        Document().FromXmlStream(bytes, context);
        return std::size_t{0};
    };
}

/// Writes objects that stand in memory.
template <class Write>
Work Writing(const std::string& file, Write write) {
    return [document = ReadObjects(ReadText(file), plainContext), write] {
        return std::size_t{write(*document).GetLength()};
    };
}

Work ReadingFastInfoset(const std::string& file, const CXmlSerializationContext& context) {
    return Reading(WriteFastInfoset(*ReadObjects(ReadText(file), plainContext), context), context);
}

Work WritingFastInfoset(const std::string& file, const CXmlSerializationContext& context) {
    return Writing(file,
                   [&context](const Document& document) { return WriteFastInfoset(document, context); });
}

template <CompressionType compression>
Work ReadingCompressed(const std::string& file) {
    CBinaryData bytes = ReadText(file);
    Compress(bytes, compression);
    return Reading(bytes, plainContext);
}

template <CompressionType compression>
Work WritingText(const std::string& file) {
    return Writing(file, [](const Document& document) { return WriteText(document, compression); });
}

Work RoundTrip(const std::string& file) {
    return [text = ReadText(file)] {
        Document document;
        document.FromXmlStream(text, plainContext);
        return std::size_t{WriteText(document, CompressionType_None).GetLength()};
    };
}

/// Makes an object of each order as it ends, and drops both.
bool TakeOrder(CXmlElement* element) {
    if (element->GetLocalName() != u"order")
        return false;
    orders::COrder(u"order").FromXmlElement(element, plainContext);
    return true;
}

/// Reads the file by the overlapped road, an order at a time.
Work ReadingRecords(const std::string& file) {
    return [name = FromUtf8(file)] {
        AsyncFromXmlFile(true);
        CXmlDocument document(TakeOrder, plainContext);
        document.Load(name.c_str());
        return std::size_t{0};
    };
}

struct Operation {
    std::string_view name;
    Work (*prepare)(const std::string& file);
};

constexpr Operation operations[] = {
    {"parse", [](const std::string& file) { return Reading(ReadText(file), plainContext); }},
    {"write", WritingText<CompressionType_None>},
    {"roundtrip", RoundTrip},
    {"records", ReadingRecords},
    {"gzip-read", ReadingCompressed<CompressionType_GZip>},
    {"gzip-write", WritingText<CompressionType_GZip>},
    {"zlib-read", ReadingCompressed<CompressionType_ZLib>},
    {"zlib-write", WritingText<CompressionType_ZLib>},
    {"fi-read", [](const std::string& file) { return ReadingFastInfoset(file, plainContext); }},
    {"fi-write", [](const std::string& file) { return WritingFastInfoset(file, plainContext); }},
    {"fi-suggested-read", [](const std::string& file) { return ReadingFastInfoset(file, suggestedContext); }},
    {"fi-suggested-write",
     [](const std::string& file) { return WritingFastInfoset(file, suggestedContext); }},
};

Work Prepare(const measure::Arguments& arguments) {
    std::string names;
    for (const Operation& operation : operations) {
        if (operation.name == arguments.operation)
            return operation.prepare(arguments.file);
        names.append(" ").append(operation.name);
    }
    throw std::invalid_argument("the operations are:" + names);
}

} // namespace

int main(int argc, char** argv) {
    try {
        const measure::Arguments arguments = measure::ReadArguments({argv, argv + argc});
        measure::Run(arguments, Prepare(arguments), CountAllocations);
        return 0;
    } catch (const CKzException& failure) {
        std::cerr << failure << '\n';
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
    }
    return 1;
}
