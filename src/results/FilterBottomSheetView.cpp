#include "results/FilterBottomSheetView.h"

#include "base/Fault.h"
#include "offers/OfferFormat.h"
#include "parts/CustomRadioButtonFieldView.h"
#include "results/TimeBucket.h"
#include "results/WholeNumber.h"

#include <algorithm>

namespace ombrivane {
namespace {

constexpr const char* allAirlines = "All Airlines";

} // namespace

TimeCardView::TimeCardView(std::size_t bucket, const Field<std::string>& chosenTime) :
    Screen("TimeCardView"),
    iconName(fields, "iconName", constant(timeBuckets.at(bucket).icon)),
    title(fields, "title", constant(timeBuckets.at(bucket).title)),
    subTitle(fields, "subTitle", constant(timeBuckets.at(bucket).label)),
    value(fields, "value", constant(timeBuckets.at(bucket).key)),
    isSelected(fields, "isSelected", [this] { return time.get() == value.get(); }),
    tap(*this, "tap", [this] { time = value.get(); }),
    time(fields, "time", chosenTime) {}

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
    title(fields, "title", constant("Search Filter")),
    resetText(fields, "resetText", constant("Reset All")),
    priceTitle(fields, "priceTitle", constant("Price")),
    priceRange(fields, "priceRange",
               [this] {
                   const auto amount = [this](double value) {
                       return OfferFormat::price(FBSVM.currency, wholeNumber(value, "a bound of the price"));
                   };
                   return amount(FBSVM.minPrice) + " - " + amount(FBSVM.maxPrice);
               }),
    chosenPrice(
        fields, "chosenPrice",
        [this] { return OfferFormat::price(FBSVM.currency, wholeNumber(price, "the filter's price")); }),
    minPrice(fields, "minPrice", [this] { return FBSVM.minPrice.get(); }),
    maxPrice(fields, "maxPrice", [this] { return FBSVM.maxPrice.get(); }),
    airlinesTitle(fields, "airlinesTitle", constant("Airlines")),
    timeTitle(fields, "timeTitle", constant("Time")),
    applyText(fields, "applyText", constant("Apply Filter")),
    airlines(
        *this, "airlines", [this] { return FBSVM.airLines->size() + 1; },
        [this](std::size_t index) {
            const std::string name = index == 0 ? allAirlines : FBSVM.airLines->at(index - 1);
            return std::make_shared<CustomRadioButtonFieldView>(
                name,
                name,
                [this, name] { return selectedId.get() == name; },
                [this, name] { selectedId = name; });
        }),
    times(
        *this, "times", [] { return timeBuckets.size(); },
        [this](std::size_t index) { return std::make_shared<TimeCardView>(index, time); }),
    slide(*this, "slide",
          [this](double value) { price = std::clamp(value, minPrice.get(), maxPrice.get()); }),
    resetAll(*this, "resetAll",
             [this] {
                 time = "";
                 selectedId = allAirlines;
                 price = FBSVM.maxPrice.get();
             }),
    apply(*this, "apply",
          [this] {
              callback_();
              FBSVM.applyFilter(price, selectedId, time);
              filteredOnewayFlights = FBSVM.filteredOnewayFlights.get();
              filteredRoundtripFlights = FBSVM.filteredRoundtripFlights.get();
              dismiss();
          }),
    model_(fields, "FBSVM", FBSVM.fields),
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

} // namespace ombrivane
