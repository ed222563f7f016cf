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
    airportsProvider_.searchAirports(
        query,
        onMain<std::vector<Airport>>(
            [self = shared_from_this(), this](std::vector<Airport> found, std::optional<Error> error) {
                if (!error) airports = shown(std::move(found));
            }));
}

} // namespace ombrivane
