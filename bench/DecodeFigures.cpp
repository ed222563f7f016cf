#include "DoublePass.h"
#include "Figure.h"
#include "HeapMeter.h"
#include "Pipeline.h"
#include "SearchAnswer.h"
#include "Stopwatch.h"

#include <fmt/format.h>
#include <simdjson.h>

#include <array>
#include <stdexcept>
#include <string>
#include <utility>

namespace ombrivane::bench {
namespace {

constexpr std::size_t decodeRounds = 25;
constexpr std::size_t growthRounds = 9;

/// The same records in the same order; identities and the order of keys in the raw bytes differ by nature.
void requireSameRecords(const OneWayOffers& offers, const OneWayOffers& others) {
    bool same = offers.size() == others.size();
    for (std::size_t i = 0; same && i < offers.size(); ++i) {
        FlightSearchOneWay copy = *others[i];
        copy.id = offers[i]->id;
        copy.rawData = offers[i]->rawData;
        same = copy == *offers[i] && copy.rawData;
    }
    if (!same) throw std::runtime_error("the baseline decodes other records");
}

/// A parse that keeps its memory from one answer to the next: the fastest there is.
Timed bareParse(simdjson::dom::parser& parser, const simdjson::padded_string& json) {
    return {[&parser, &json] {
        if (parser.parse(json).error() != simdjson::SUCCESS) throw std::runtime_error("no JSON");
    }};
}

Timed decoding(const std::string& answer, OneWayOffers& offers) {
    return {[&answer, &offers] { offers = pipeline(answer); }, [] {}, [&offers] { offers.clear(); }};
}

void addComparisons(std::vector<Figure>& figures, const std::string& name, const std::string& answer) {
    simdjson::dom::parser parser;
    const simdjson::padded_string padded(answer);
    OneWayOffers offers;
    OneWayOffers others;
    const Timed baseline{[&] { others = doublePass(answer); }, [] {}, [&others] { others.clear(); }};
    const auto medians =
        interleavedMedians({bareParse(parser, padded), decoding(answer, offers), baseline}, decodeRounds);
    figures.push_back({name + ".parse_ms", medians[0] * 1e3});
    figures.push_back({name + ".pipeline_ms", medians[1] * 1e3});
    figures.push_back({name + ".double_pass_ms", medians[2] * 1e3});
    figures.push_back({name + ".vs_parse", medians[1] / medians[0]});
    figures.push_back({name + ".vs_double_pass", medians[2] / medians[1]});
}

void addMemory(std::vector<Figure>& figures, const std::string& name, const std::string& answer) {
    const HeapMeter meter;
    const OneWayOffers offers = pipeline(answer);
    const auto held = static_cast<double>(meter.held());
    figures.push_back({name + ".bytes_per_json_byte", held / static_cast<double>(answer.size())});
}

/// The cost per offer by the length of the list. Every sample decodes as many offers, so that none pays for
/// another's memory.
void addGrowth(std::vector<Figure>& figures, const std::string& name) {
    constexpr std::array<std::size_t, 4> lengths{10, 100, 1'000, 10'000};
    constexpr std::size_t sample = lengths.back();
    std::array<std::string, lengths.size()> answers;
    std::vector<Timed> works;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        answers[i] = searchAnswer(lengths[i]);
        works.push_back({[&answer = answers[i], lists = sample / lengths[i]] {
            for (std::size_t list = 0; list < lists; ++list)
                pipeline(answer);
        }});
    }
    const auto medians = interleavedMedians(works, growthRounds);
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        const double cost = medians[i] * 1e6 / static_cast<double>(sample);
        figures.push_back({fmt::format("{}.us_per_offer_{}", name, lengths[i]), cost});
    }
    figures.push_back({name + ".growth", medians.back() / medians.front()});
}

} // namespace

std::vector<Figure> decodeFigures() {
    // The instructions that simdjson has chosen or was told to use.
    const std::string instructions = "decode." + simdjson::get_active_implementation()->name();
    const std::string full = searchAnswer(1'000);
    const double begin = processorSeconds();
    pipeline(full);
    const double first = processorSeconds() - begin;

    std::vector<Figure> figures;
    for (const auto& [shape, answer] : {std::pair{"full", full}, std::pair{"sparse", sparseAnswer(1'000)}}) {
        requireSameRecords(pipeline(answer), doublePass(answer));
        const std::string name = instructions + "." + shape;
        figures.push_back({name + ".json_mb", static_cast<double>(answer.size()) / 1e6});
        addComparisons(figures, name, answer);
        addMemory(figures, name, answer);
    }
    OneWayOffers offers;
    const double warm = interleavedMedians({decoding(full, offers)}, decodeRounds).front();
    figures.push_back({instructions + ".first_over_warm", first / warm});
    addGrowth(figures, instructions);
    return figures;
}

} // namespace ombrivane::bench
