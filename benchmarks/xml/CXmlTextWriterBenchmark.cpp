#include <KzXmlLib10/xml/CXmlTextWriter.h>

#include <benchmark/benchmark.h>

#include <string>

using namespace KzXmlLib10;

namespace {

const std::u16string none;
const std::u16string uri = u"http://example.org/schema/orders";

void CountText(benchmark::State& state, CTextStream& stream) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * stream.GetBuffer().GetLength() *
                            2);
}

void WriteLine(CXmlTextWriter& writer, const std::u16string& namespaceUri) {
    static const std::u16string item = u"item", id = u"id", name = u"productName", quantity = u"quantity";
    writer.StartElement(item, namespaceUri);
    writer.WriteAttribute(id, none, u"A-4711", ItemType_string);
    writer.StartElement(name, namespaceUri);
    writer.WriteText(u"Screwdriver, flat & long", ItemType_string);
    writer.EndElement();
    writer.StartElement(quantity, namespaceUri);
    writer.WriteText(u"12", ItemType_i4);
    writer.EndElement();
    writer.EndElement();
}

// A document of 1000 records. range(0): 0 no namespace, 1 a default namespace, 2 a prefix; range(1):
// formatted.
void WriteRecords(benchmark::State& state) {
    CTextStream stream(XmlEncoding_None);
    for (auto _ : state) {
        CXmlTextWriter writer(&stream);
        writer.SetFormatted(state.range(1) != 0);
        if (state.range(0) == 1)
            writer.SetDefaultNamespace(uri);
        else if (state.range(0) == 2)
            writer.AddNamespace(u"o", uri);
        const std::u16string& namespaceUri = state.range(0) == 0 ? none : uri;
        writer.StartElement(u"order", namespaceUri);
        for (int i = 0; i < 1000; ++i)
            WriteLine(writer, namespaceUri);
        writer.EndElement();
        writer.Close();
        benchmark::DoNotOptimize(stream.GetBuffer().GetString());
    }
    CountText(state, stream);
}
BENCHMARK(WriteRecords)->ArgNames({"namespace", "formatted"})->ArgsProduct({{0, 1, 2}, {0, 1}});

// Text of 64 Ki characters with an escape every range(0) characters.
void WriteLongText(benchmark::State& state) {
    std::u16string text(65536, u'x');
    for (std::size_t i = 0; i < text.size(); i += static_cast<std::size_t>(state.range(0)))
        text[i] = u'&';
    CTextStream stream(XmlEncoding_None);
    for (auto _ : state) {
        CXmlTextWriter writer(&stream);
        writer.StartElement(u"text", none);
        writer.WriteText(text, ItemType_string);
        writer.EndElement();
        benchmark::DoNotOptimize(stream.GetBuffer().GetString());
    }
    CountText(state, stream);
}
BENCHMARK(WriteLongText)->Arg(4)->Arg(64)->Arg(65536);

// Elements inside each other, each in a namespace that is new to it.
void NestNewNamespaces(benchmark::State& state) {
    CTextStream stream(XmlEncoding_None);
    for (auto _ : state) {
        CXmlTextWriter writer(&stream);
        writer.SetFormatted(false);
        std::u16string each = u"urn:";
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            each.resize(4);
            each += {static_cast<char16_t>(u'a' + i / 1000), static_cast<char16_t>(u'a' + i % 1000)};
            writer.StartElement(u"e", each);
        }
    }
    CountText(state, stream);
}
BENCHMARK(NestNewNamespaces)->Arg(100)->Arg(1000)->Arg(10000);

} // namespace
