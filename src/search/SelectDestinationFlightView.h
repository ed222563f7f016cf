#pragma once

#include "search/AirportSearch.h"
#include "search/MainViewModel.h"
#include "state/AppState.h"

#include <functional>

namespace ombrivane {

/// Chooses the destination, which is never the origin, and returns to the form.
class SelectDestinationFlightView final : public AirportSearch {
private:
    MainViewModel& model_;

public:
    /// @param originCode left out of the list; empty leaves nothing out
    /// @param callback writes the origin when the screen is left by a row or by its close control; may be
    /// empty
    SelectDestinationFlightView(MainViewModel& model, std::string originCode, std::function<void()> callback);

    Binding<std::string> destinationTextField{fields, "destinationTextField", model_.destinationText};
    Binding<std::string> destCityCode{fields, "destCityCode", model_.destCityCode};
    Binding<std::string> destCity{fields, "destCity", model_.destCity};
    Binding<std::string> destCountry{fields, "destCountry", model_.destCountry};
    Published<std::string> selectedOriginCityCode;

protected:
    std::vector<Airport> shown(std::vector<Airport> found) const override;
    void choose(const Airport& airport) override;
    void leave() override;

private:
    std::function<void()> callback_;
};

} // namespace ombrivane
