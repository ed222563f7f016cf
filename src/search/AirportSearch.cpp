#include "search/AirportSearch.h"

#include "platform/OnMain.h"

namespace ombrivane {

FlightListItemView::FlightListItemView(const Airport& airport, std::function<void()> choose) :
    Screen("FlightListItemView"),
    city(fields, "city", airport.city),
    code(fields, "code", airport.code),
    name_(fields, "name", airport.name),
    country(fields, "country", airport.country.value_or("")),
    tap(*this, "tap", std::move(choose)) {}

std::string AirportSearch::describe(const Airport& airport) {
    return airport.code + " - " + airport.city + ", " + airport.name;
}

std::shared_ptr<Screen> AirportSearch::makeRow(const Airport& airport) {
    return std::make_shared<FlightListItemView>(airport, [this, airport] { choose(airport); });
}

void AirportSearch::searchFor(const std::string& query) {
    awaited_ = awaited_ + 1;
    airportsProvider_.searchAirports(
        query,
        onMain<std::vector<Airport>>(
            [self = shared_from_this(), this, query](std::vector<Airport> found, std::optional<Error> error) {
                awaited_ = awaited_ - 1;
                take(query, std::move(found), error);
            }));
}

void AirportSearch::take(const std::string& query, std::vector<Airport> found,
                         const std::optional<Error>& error) {
    errorMessage = error ? error->localizedDescription : "";
    if (error) return;
    answered = query;
    airports = shown(std::move(found));
}

std::string AirportSearch::sayNothing() const {
    if (isLoading.get() || answered->empty() || !airports->empty()) return "";
    return said(Text::airportsNone, {{"query", answered.get()}});
}

} // namespace ombrivane
