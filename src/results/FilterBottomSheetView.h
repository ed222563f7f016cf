#pragma once

#include "keyed/Action.h"
#include "keyed/Constant.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "results/AllAirlines.h"
#include "results/FilterBottomSheetViewModel.h"
#include "results/TimeBucket.h"
#include "words/Caption.h"

#include <algorithm>
#include <functional>
#include <memory>
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
private:
    const TimeBucket bucket_;

public:
    TimeCardView(const TimeBucket& bucket, const Field<std::string>& chosenTime) :
        Screen("TimeCardView"), bucket_(bucket), time(fields, "time", chosenTime) {}

    Constant iconName{fields, "iconName", bucket_.icon};
    Caption title{fields, "title", bucket_.title};
    Constant subTitle{fields, "subTitle", bucket_.label};
    Constant value{fields, "value", bucket_.key};
    Derived<bool> isSelected{fields, "isSelected", [this] { return time.get() == value.get(); }};
    Action<> tap{*this, "tap", [this] { time = value.get(); }};

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

    Caption title{fields, "title", Text::filterTitle};
    Caption resetText{fields, "resetText", Text::filterReset};
    Caption priceTitle{fields, "priceTitle", Text::filterPrice};
    Derived<std::string> priceRange{fields, "priceRange", [this] { return describeRange(); }};
    Derived<std::string> chosenPrice{
        fields, "chosenPrice", [this] { return priceText(price, "the filter's price"); }};
    Derived<double> minPrice{fields, "minPrice", [this] { return FBSVM.minPrice.get(); }};
    Derived<double> maxPrice{fields, "maxPrice", [this] { return FBSVM.maxPrice.get(); }};
    Caption airlinesTitle{fields, "airlinesTitle", Text::filterAirlines};
    Caption timeTitle{fields, "timeTitle", Text::filterTime};
    Caption applyText{fields, "applyText", Text::filterApply};
    /// "All Airlines", then the airlines of the list.
    Rows airlines{*this,
                  "airlines",
                  [this] { return FBSVM.airLines->size() + 1; },
                  [this](std::size_t index) { return makeAirline(index); }};
    Rows times{
        *this,
        "times",
        [] { return timeBuckets.size(); },
        [this](std::size_t index) { return std::make_shared<TimeCardView>(timeBuckets.at(index), time); }};
    /// The customer moved the slider.
    Action<double> slide{
        *this, "slide", [this](double value) { price = std::clamp(value, minPrice.get(), maxPrice.get()); }};
    Action<> resetAll{*this, "resetAll", [this] {
                          time = "";
                          selectedId = allAirlines;
                          price = FBSVM.maxPrice.get();
                      }};
    Action<> apply{*this, "apply", [this] { applyChoices(); }};

private:
    std::string describeRange() const;
    std::string priceText(double amount, const char* what) const;
    std::shared_ptr<Screen> makeAirline(std::size_t index);
    void applyChoices();

    Model model_{fields, "FBSVM", FBSVM.fields};
    std::function<void()> callback_;
};

} // namespace ombrivane
