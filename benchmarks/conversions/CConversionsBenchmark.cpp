#include <KzXmlLib10/conversions/CConversions.h>

#include <benchmark/benchmark.h>

using namespace KzXmlLib10;

namespace {

constexpr auto collapse = CWhitespaceUtils::WhitespaceRule_Collapse;

void IntegerFromString(benchmark::State& state) {
    const std::u16string text = u"-1234567";
    for (auto _ : state)
        benchmark::DoNotOptimize(CConversions::i4FromString(text, collapse));
}
BENCHMARK(IntegerFromString);

void IntegerToString(benchmark::State& state) {
    std::int32_t value = -1234567;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(CConversions::i4ToString(value));
    }
}
BENCHMARK(IntegerToString);

void DoubleFromString(benchmark::State& state) {
    const std::u16string text = u"3.141592653589793";
    for (auto _ : state)
        benchmark::DoNotOptimize(CConversions::r8FromString(text, collapse));
}
BENCHMARK(DoubleFromString);

void DoubleToString(benchmark::State& state) {
    double value = 3.141592653589793;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(CConversions::r8ToString(value));
    }
}
BENCHMARK(DoubleToString);

void BooleanFromString(benchmark::State& state) {
    const std::u16string text = u"true";
    for (auto _ : state)
        benchmark::DoNotOptimize(CConversions::booleanFromString(text, collapse));
}
BENCHMARK(BooleanFromString);

void TextCollapsed(benchmark::State& state) {
    const std::u16string text = u"  nuts and \t bolts,\n stainless,   assorted ";
    for (auto _ : state)
        benchmark::DoNotOptimize(CConversions::stringFromString(text, collapse));
}
BENCHMARK(TextCollapsed);

} // namespace
