#include <KzXmlLib10/xml/CXmlTextWriter.h>

#include "xml/Records.h"

#include <benchmark/benchmark.h>

using namespace KzXmlLib10;

namespace {

void WriteText(benchmark::State& state) {
    std::size_t bytes = 0;
    for (auto _ : state) {
        CTextStream stream(XmlEncoding_UTF8);
        CXmlTextWriter writer(&stream);
        writer.SetFormatted(state.range(0) != 0);
        WriteRecords(writer, 100);
        writer.Close();
        bytes = stream.GetBytes().GetLength();
    }
    state.SetLabel(state.range(0) != 0 ? "formatted" : "compact");
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
}
BENCHMARK(WriteText)->DenseRange(0, 1);

} // namespace
