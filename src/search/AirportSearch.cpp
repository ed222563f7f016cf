#include "search/AirportSearch.h"

#include "platform/OnMain.h"

namespace ombrivane {

FlightListItemView::FlightListItemView(const Airport& airport, std::function<void()> choose) :
    Screen("FlightListItemView"),
    city(fields, "city", [text = airport.city] { return text; }),
    code(fields, "code", [text = airport.code] { return text; }),
    name_(fields, "name", [text = airport.name] { return text; }),
    country(fields, "country", [text = airport.country.value_or("")] { return text; }),
    mainText(fields, "mainText", [this] { return city.get() + ", " + country.get(); }),
    tap(*this, "tap", std::move(choose)) {}

AirportSearch::AirportSearch(std::string_view screenName, std::string_view textKey,
                             const char* placeholderText) :
    Screen(screenName),
    placeholder(fields, "placeholder", [placeholderText] { return std::string(placeholderText); }),
    rows(
        *this, "rows", [this] { return airports->size(); },
        [this](std::size_t index) {
            const Airport& airport = airports->at(index);
            return std::make_shared<FlightListItemView>(airport, [this, airport] { choose(airport); });
        },
        [this] { return identitiesOf(airports.get(), &Airport::code); }),
    type(*this, "type",
         [this](const std::string& typed) {
             text = typed;
             searchFor(typed);
         }),
    close(*this, "close", [this] { leave(); }),
    text(fields, textKey) {}

std::string AirportSearch::describe(const Airport& airport) {
    return airport.code + " - " + airport.city + ", " + airport.name;
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
