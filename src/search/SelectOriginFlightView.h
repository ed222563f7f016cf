#pragma once

#include "keyed/Link.h"
#include "search/AirportSearch.h"
#include "search/MainViewModel.h"

#include <memory>
#include <optional>

namespace ombrivane {

/// Chooses the origin. Each row leads on to the choice of the destination; the origin reaches the form only
/// when that screen is left through a row or its close control.
class SelectOriginFlightView final : public AirportSearch {
private:
    MainViewModel& model_;

public:
    explicit SelectOriginFlightView(MainViewModel& model) :
        AirportSearch("SelectOriginFlightView", "originText", Text::airportsSearchOrigin), model_(model) {}

    Binding<std::string> originTextField{fields, "originTextField", model_.originText};
    Binding<std::string> destinationTextField{fields, "destinationTextField", model_.destinationText};
    Binding<std::string> departCityCode{fields, "departCityCode", model_.departCityCode};
    Binding<std::string> departCity{fields, "departCity", model_.departCity};
    Binding<std::string> departCountry{fields, "departCountry", model_.departCountry};
    Binding<std::string> destCityCode{fields, "destCityCode", model_.destCityCode};
    Binding<std::string> destCity{fields, "destCity", model_.destCity};
    Binding<std::string> destCountry{fields, "destCountry", model_.destCountry};
    /// The destination screen is pushed, by the row that was tapped last.
    Published<bool> destinationIsActive{fields, "destinationIsActive"};

protected:
    void choose(const Airport& airport) override;
    void leave() override { dismiss(); }

private:
    void writeOrigin(const Airport& airport);
    std::shared_ptr<Screen> makeDestinationSearch();

    std::optional<Airport> chosen_;
    Link destination_{
        *this, Presentation::push, destinationIsActive, [this] { return makeDestinationSearch(); }};
};

} // namespace ombrivane
