#include "search/SelectDestinationFlightView.h"

namespace ombrivane {

SelectDestinationFlightView::SelectDestinationFlightView(MainViewModel& model, std::string originCode,
                                                         std::function<void()> callback) :
    AirportSearch("SelectDestinationFlightView", "destinationText", Text::airportsSearchDestination),
    model_(model),
    selectedOriginCityCode(fields, "selectedOriginCityCode", std::move(originCode)),
    callback_(std::move(callback)) {}

std::vector<Airport> SelectDestinationFlightView::shown(std::vector<Airport> found) const {
    const std::string& origin = selectedOriginCityCode;
    if (origin.empty()) return found;
    std::erase_if(found, [&origin](const Airport& airport) { return airport.code == origin; });
    return found;
}

void SelectDestinationFlightView::choose(const Airport& airport) {
    destinationTextField = describe(airport);
    destCity = airport.city;
    destCountry = airport.country.value_or("");
    destCityCode = airport.code;
    leave();
}

void SelectDestinationFlightView::leave() {
    if (callback_) callback_();
    AppState::shared().resetNavigation();
}

} // namespace ombrivane
