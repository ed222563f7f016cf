#include "results/ResultsModel.h"

#include "dates/DateFormatter.h"
#include "services/FlightQuery.h"
#include "services/ItineraryType.h"
#include "words/Words.h"

#include <algorithm>

namespace ombrivane {
namespace {

/// The costs are read once: an offer is a large record, and following its pointer at every comparison is what
/// sorting a long list would spend its time on.
template <class Offers> void sortOffers(Offers& offers) {
    struct Keyed {
        std::int64_t cost;
        typename Offers::value_type offer;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(offers.size());
    for (auto& offer : offers) {
        const std::int64_t cost = offer->fareInformation.totalCost;
        keyed.push_back({cost, std::move(offer)});
    }
    const auto cheaper = [](const Keyed& one, const Keyed& other) { return one.cost < other.cost; };
    if (!std::is_sorted(keyed.begin(), keyed.end(), cheaper))
        std::stable_sort(keyed.begin(), keyed.end(), cheaper);
    for (std::size_t i = 0; i < keyed.size(); ++i)
        offers[i] = std::move(keyed[i].offer);
}

std::string counted(const std::string& before, const std::string& count, Text text, const char* what) {
    const std::int64_t number = countFrom(count, what);
    return number >= 1 ? before + said(text, {{"count", number}}) : "";
}

} // namespace

std::string ResultsModel::formatHeaderSubtitle(std::optional<Day> departure, std::optional<Day> returning,
                                               const std::string& adults, const std::string& children,
                                               const std::string& infants) const {
    std::string dates = departure ? formatDay(*departure, dayPattern::calendar) : "";
    if (hasReturnDate && returning) {
        dates =
            said(Text::dateRange, {{"first", dates}, {"last", formatDay(*returning, dayPattern::calendar)}});
    }
    const std::string travellers = counted("", adults, Text::resultsAdults, "the adult count") +
                                   counted(", ", children, Text::resultsChildren, "the child count") +
                                   counted(", ", infants, Text::resultsInfants, "the infant count");
    return said(Text::resultsHeader, {{"dates", dates}, {"travellers", travellers}});
}

void ResultsModel::startSearch(bool roundTrip) {
    rulesAndRegulationViewIsActive = false;
    flightsListIsEmpty = false;
    noInternetConnection = false;
    hasReturnDate = roundTrip;
    isLoading = true;
    showContinueButton = false;
    tripType = roundTrip ? itineraryType::round : itineraryType::oneway;
    flight = std::nullopt;
}

void sortByTotalCost(OneWayOffers& offers) { sortOffers(offers); }

void sortByTotalCost(RoundTripOffers& offers) { sortOffers(offers); }

} // namespace ombrivane
