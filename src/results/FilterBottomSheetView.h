#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "results/FilterBottomSheetViewModel.h"

#include <functional>
#include <string>

namespace ombrivane {

/// The lists and the selection that a filter sheet works on. A list of one-way offers alone has no round-trip
/// lists.
struct FilterBindings {
    const Field<OneWayOffers>& onewayFlights;
    const Field<RoundTripOffers>* roundtripFlights;
    const Field<OneWayOffers>& filteredOnewayFlights;
    const Field<RoundTripOffers>* filteredRoundtripFlights;
    const Field<std::string>& selectedId;
    const Field<double>& price;
    const Field<std::string>& time;
};

/// One of the four choices of a departure time.
class TimeCardView final : public Screen {
public:
    TimeCardView(std::size_t bucket, const Field<std::string>& chosenTime);

    Derived<std::string> iconName;
    Derived<std::string> title;
    Derived<std::string> subTitle;
    Derived<std::string> value;
    Derived<bool> isSelected;
    Action<> tap;

private:
    Binding<std::string> time;
};

/// The sheet that narrows a result list. Nothing is filtered before "Apply Filter".
class FilterBottomSheetView final : public Screen {
public:
    /// @param callback clears the selection of the list, run first by "Apply Filter"
    FilterBottomSheetView(const FilterBindings& bindings, std::function<void()> callback);

    Fields unkeyed;
    Published<RoundTripOffers> noRoundtripFlights{unkeyed, "roundtripFlights"};
    Published<RoundTripOffers> noFilteredRoundtripFlights{unkeyed, "filteredRoundtripFlights"};

    Binding<OneWayOffers> onewayFlights;
    Binding<RoundTripOffers> roundtripFlights;
    Binding<OneWayOffers> filteredOnewayFlights;
    Binding<RoundTripOffers> filteredRoundtripFlights;
    Binding<std::string> selectedId;
    Binding<double> price;
    Binding<std::string> time;
    FilterBottomSheetViewModel FBSVM;

    Derived<std::string> title;
    Derived<std::string> resetText;
    Derived<std::string> priceTitle;
    Derived<std::string> priceRange;
    Derived<std::string> chosenPrice;
    Derived<double> minPrice;
    Derived<double> maxPrice;
    Derived<std::string> airlinesTitle;
    Derived<std::string> timeTitle;
    Derived<std::string> applyText;
    /// "All Airlines", then the airlines of the list.
    Rows airlines;
    Rows times;
    /// The customer moved the slider.
    Action<double> slide;
    Action<> resetAll;
    Action<> apply;

private:
    Model model_;
    std::function<void()> callback_;
};

} // namespace ombrivane
