#include <KzXmlLib10/object/FormatString.h>
#include <KzXmlLib10/object/Text.h>

#include <benchmark/benchmark.h>

#include <string>

using namespace KzXmlLib10;

namespace {

// 16 KiB of 16-bit text, of the mixture that range(0) names: 0 ASCII, 1 with accents, 2 Chinese.
std::u16string SampleText(benchmark::State& state) {
    static const std::u16string pieces[] = {u"The quick brown fox. ", u"Voil\u00E0 d\u00E9j\u00E0 vu. ",
                                            u"\u4E2D\u6587\u6587\u672C"};
    static const char* const names[] = {"ascii", "latin", "chinese"};
    state.SetLabel(names[state.range(0)]);
    std::u16string text;
    while (text.size() < 8192)
        text += pieces[state.range(0)];
    return text;
}

void ConvertToUtf8(benchmark::State& state) {
    const std::u16string text = SampleText(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(KzXmlLib10::ConvertToUtf8(text));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size() * sizeof(char16_t)));
}
BENCHMARK(ConvertToUtf8)->DenseRange(0, 2);

void FromUtf8(benchmark::State& state) {
    const std::string text = ToUtf8(SampleText(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(KzXmlLib10::FromUtf8(text));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(FromUtf8)->DenseRange(0, 2);

void FormatMessage(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(FormatString(u"Element [%s] at line %d", u"customer", 4711));
}
BENCHMARK(FormatMessage);

} // namespace
