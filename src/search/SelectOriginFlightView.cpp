#include "search/SelectOriginFlightView.h"

#include "search/SelectDestinationFlightView.h"

namespace ombrivane {

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

std::shared_ptr<Screen> SelectOriginFlightView::makeDestinationSearch() {
    return std::make_shared<SelectDestinationFlightView>(
        model_, chosen_->code, [this, origin = *chosen_] { writeOrigin(origin); });
}

} // namespace ombrivane
