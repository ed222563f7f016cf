#include "search/SelectOriginFlightView.h"

#include "search/SelectDestinationFlightView.h"

namespace ombrivane {

SelectOriginFlightView::SelectOriginFlightView(MainViewModel& model) :
    AirportSearch("SelectOriginFlightView", "originText", "Search Origin City"),
    originTextField(fields, "originTextField", model.originText),
    destinationTextField(fields, "destinationTextField", model.destinationText),
    departCityCode(fields, "departCityCode", model.departCityCode),
    departCity(fields, "departCity", model.departCity),
    departCountry(fields, "departCountry", model.departCountry),
    destCityCode(fields, "destCityCode", model.destCityCode),
    destCity(fields, "destCity", model.destCity),
    destCountry(fields, "destCountry", model.destCountry),
    model_(model),
    destination_(*this, Presentation::push, destinationIsActive, [this] {
        return std::make_shared<SelectDestinationFlightView>(
            model_, chosen_->code, [this, origin = *chosen_] { writeOrigin(origin); });
    }) {}

void SelectOriginFlightView::choose(const Airport& airport) {
    chosen_ = airport;
    destinationIsActive = true;
}

void SelectOriginFlightView::writeOrigin(const Airport& airport) {
    originTextField = describe(airport);
    departCountry = airport.country.value_or("");
    departCity = airport.city;
    departCityCode = airport.code;
}

} // namespace ombrivane
