#include "DoublePass.h"
#include "Figure.h"
#include "Pipeline.h"
#include "SearchAnswer.h"
#include "platform/AdjustableClock.h"
#include "platform/Platform.h"
#include "platform/SystemLocalization.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <simdjson.h>

#include <cstdio>
#include <exception>
#include <string_view>

namespace {

using namespace ombrivane;

void countOffers(benchmark::State& state, const std::string& answer) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(answer.size()));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void decode(benchmark::State& state) {
    const std::string answer = bench::searchAnswer(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(bench::pipeline(answer));
    countOffers(state, answer);
}

void doublePass(benchmark::State& state) {
    const std::string answer = bench::searchAnswer(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(bench::doublePass(answer));
    countOffers(state, answer);
}

void parse(benchmark::State& state) {
    const std::string answer = bench::searchAnswer(static_cast<std::size_t>(state.range(0)));
    const simdjson::padded_string padded(answer);
    simdjson::dom::parser parser;
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(parser.parse(padded).error());
    countOffers(state, answer);
}

void sort(benchmark::State& state) {
    const auto answer = bench::searchAnswer(static_cast<std::size_t>(state.range(0)));
    const auto offers = Envelope(answer, SIZE_MAX).offers<FlightSearchOneWay>();
    for ([[maybe_unused]] auto round : state) {
        state.PauseTiming();
        OneWayOffers sorted = offers;
        state.ResumeTiming();
        sortByTotalCost(sorted);
    }
}

BENCHMARK(parse)->RangeMultiplier(10)->Range(10, 10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(decode)->RangeMultiplier(10)->Range(10, 10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(doublePass)->RangeMultiplier(10)->Range(10, 1'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(sort)->RangeMultiplier(10)->Range(10, 10'000)->Unit(benchmark::kMicrosecond);

int print(const std::vector<bench::Figure>& figures) {
    for (const bench::Figure& figure : figures)
        fmt::print("{} {:.4g}\n", figure.name, figure.value);
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    try {
        Platform ports;
        ports.clock = std::make_shared<AdjustableClock>();
        ports.localization = std::make_shared<SystemLocalization>();
        Platform::install(std::move(ports));
        const std::string_view asked = count == 2 ? arguments[1] : "";
        if (asked == "--decode") return print(bench::decodeFigures());
        if (asked == "--lists") return print(bench::searchFigures());
        benchmark::Initialize(&count, arguments);
        if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 2;
        benchmark::RunSpecifiedBenchmarks();
        return 0;
    } catch (const std::exception& error) {
        fmt::print(stderr, "ombrivane-bench: {}\n", error.what());
        return 1;
    }
}
