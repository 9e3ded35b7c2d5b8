#include <KzXmlLib10/xml/CXmlDocument.h>

#include "xml/Records.h"

#include <KzXmlLib10/object/Text.h>

#include <benchmark/benchmark.h>

using namespace KzXmlLib10;

namespace {

std::u16string RecordsDocument() {
    CTextStream stream(XmlEncoding_UTF8);
    CXmlTextWriter writer(&stream);
    WriteRecords(writer, 100);
    writer.Close();
    return stream.GetBuffer().GetString();
}

void LoadBytes(benchmark::State& state) {
    const std::string xml = ToUtf8(RecordsDocument());
    for (auto _ : state) {
        CXmlDocument document;
        document.LoadXml(xml.c_str());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * xml.size()));
}
BENCHMARK(LoadBytes);

void LoadWideText(benchmark::State& state) {
    const std::u16string xml = RecordsDocument();
    for (auto _ : state) {
        CXmlDocument document;
        document.LoadXml(xml.c_str());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * xml.size() * sizeof(char16_t)));
}
BENCHMARK(LoadWideText);

} // namespace
