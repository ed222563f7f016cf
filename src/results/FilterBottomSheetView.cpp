#include "results/FilterBottomSheetView.h"

#include "base/Fault.h"
#include "base/WholeNumber.h"
#include "offers/OfferFormat.h"
#include "parts/CustomRadioButtonFieldView.h"

namespace ombrivane {

FilterBottomSheetView::FilterBottomSheetView(const FilterBindings& bindings, std::function<void()> callback) :
    Screen("FilterBottomSheetView"),
    onewayFlights(fields, "onewayFlights", bindings.onewayFlights),
    roundtripFlights(fields, "roundtripFlights",
                     bindings.roundtripFlights != nullptr ? *bindings.roundtripFlights : noRoundtripFlights),
    filteredOnewayFlights(fields, "filteredOnewayFlights", bindings.filteredOnewayFlights),
    filteredRoundtripFlights(fields, "filteredRoundtripFlights",
                             bindings.filteredRoundtripFlights != nullptr ? *bindings.filteredRoundtripFlights
                                                                          : noFilteredRoundtripFlights),
    selectedId(fields, "selectedId", bindings.selectedId),
    price(fields, "price", bindings.price),
    time(fields, "time", bindings.time),
    callback_(std::move(callback)) {
    FBSVM.onewayFlights = onewayFlights.get();
    FBSVM.roundtripFlights = roundtripFlights.get();
    FBSVM.calculateMaxPrice();
    FBSVM.calculateMinPrice();
    FBSVM.collectAirlines();
    FBSVM.readCurrency();
    if (price.get() == 0.0) price = FBSVM.maxPrice.get();
    if (FBSVM.minPrice.get() > FBSVM.maxPrice.get()) fatalFault("the filter's price range is empty");
}

std::string FilterBottomSheetView::describeRange() const {
    constexpr const char* bound = "a bound of the price";
    return priceText(FBSVM.minPrice, bound) + " - " + priceText(FBSVM.maxPrice, bound);
}

std::string FilterBottomSheetView::priceText(double amount, const char* what) const {
    return OfferFormat::price(FBSVM.currency, wholeNumber(amount, what));
}

std::shared_ptr<Screen> FilterBottomSheetView::makeAirline(std::size_t index) {
    const std::string name = index == 0 ? allAirlines : FBSVM.airLines->at(index - 1);
    return std::make_shared<CustomRadioButtonFieldView>(
        name,
        [name] { return name == allAirlines ? said(Text::filterAllAirlines) : name; },
        [this, name] { return selectedId.get() == name; },
        [this, name] { selectedId = name; });
}

void FilterBottomSheetView::applyChoices() {
    callback_();
    FBSVM.applyFilter(price, selectedId, time);
    filteredOnewayFlights = FBSVM.filteredOnewayFlights.get();
    filteredRoundtripFlights = FBSVM.filteredRoundtripFlights.get();
    dismiss();
}

} // namespace ombrivane
