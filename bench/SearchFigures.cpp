#include "CopiedOffers.h"
#include "Figure.h"
#include "OfferList.h"
#include "Pipeline.h"
#include "SearchAnswer.h"
#include "Stopwatch.h"

#include <algorithm>
#include <stdexcept>

namespace ombrivane::bench {
namespace {

constexpr std::size_t searchRounds = 15;
constexpr std::size_t tapsPerRound = 1'000;

/// One setting of the filter: as it opens, and each of its three conditions at work.
struct Setting {
    double price;
    const char* airline;
    const char* time;
};
constexpr std::array<Setting, 4> settings{{{10'000'000, "All Airlines", ""},
                                           {10'000'000, "Monsoon Line", ""},
                                           {90'000, "All Airlines", ""},
                                           {150'000, "All Airlines", "morning"}}};

/// The offers as the service sends them, before they are sorted.
OneWayOffers unsorted(std::size_t count) {
    return Envelope(searchAnswer(count), SIZE_MAX).offers<FlightSearchOneWay>();
}

std::vector<FlightSearchOneWay> copied(const OneWayOffers& offers) {
    std::vector<FlightSearchOneWay> copies;
    copies.reserve(offers.size());
    for (const auto& offer : offers)
        copies.push_back(*offer);
    return copies;
}

/// Taps that choose each drawn row in turn and take it back.
template <class List> Timed taps(List& list) {
    return {[&list] {
        for (std::size_t i = 0; i < tapsPerRound; ++i)
            list.tap(i / 2 % 10);
    }};
}

void requireSameKept(const OfferList& list, const CopiedOffers& copies) {
    const OneWayOffers& kept = list.filterModel().filteredOnewayFlights;
    const auto same = [](const OneWayOffer& offer, const FlightSearchOneWay& copy) {
        return offer->id == copy.id;
    };
    if (!std::equal(kept.begin(), kept.end(), copies.filtered().begin(), copies.filtered().end(), same)) {
        throw std::runtime_error("the filter keeps other offers than its baseline");
    }
}

} // namespace

std::vector<Figure> searchFigures() {
    const OneWayOffers offers = unsorted(10'000);
    OneWayOffers sorted;
    std::vector<FlightSearchOneWay> sortedCopies;
    OfferList list(offers);
    OfferList shortList(unsorted(10));
    CopiedOffers copies(copied(offers));

    std::vector<Timed> works{
        {[&] { sortByTotalCost(sorted); }, [&] { sorted = offers; }},
        {[&] { CopiedOffers::sort(sortedCopies); }, [&] { sortedCopies = copies.offers(); }},
        {[&] { list.openFilter(); }},
        {[&] { copies.openFilter(); }},
        taps(list),
        taps(shortList),
        taps(copies),
    };
    const std::size_t filters = works.size();
    for (const Setting& setting : settings) {
        works.push_back({[&] { list.filter(setting.price, setting.airline, setting.time); }});
        works.push_back({[&] { copies.filter(setting.price, setting.airline, setting.time); },
                         [] {},
                         [&] { requireSameKept(list, copies); }});
    }
    const auto medians = interleavedMedians(works, searchRounds);

    double slowest = 0;
    double slowestCopied = 0;
    for (std::size_t i = filters; i < medians.size(); i += 2) {
        slowest = std::max(slowest, medians[i]);
        slowestCopied = std::max(slowestCopied, medians[i + 1]);
    }
    const double perTap = 1e6 / static_cast<double>(tapsPerRound);
    return {{"search.sort_ms", medians[0] * 1e3},
            {"search.sort_copied_ms", medians[1] * 1e3},
            {"search.filter_ms", slowest * 1e3},
            {"search.filter_copied_ms", slowestCopied * 1e3},
            {"search.open_filter_ms", medians[2] * 1e3},
            {"search.open_filter_copied_ms", medians[3] * 1e3},
            {"search.tap_us", medians[4] * perTap},
            {"search.tap_us_10", medians[5] * perTap},
            {"search.tap_copied_us", medians[6] * perTap}};
}

} // namespace ombrivane::bench
