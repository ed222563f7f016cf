#pragma once

#include "keyed/Link.h"
#include "search/AirportSearch.h"
#include "search/MainViewModel.h"

#include <optional>

namespace ombrivane {

/// Chooses the origin. Each row leads on to the choice of the destination; the origin reaches the form only
/// when that screen is left through a row or its close control.
class SelectOriginFlightView final : public AirportSearch {
public:
    explicit SelectOriginFlightView(MainViewModel& model);

    Binding<std::string> originTextField;
    Binding<std::string> destinationTextField;
    Binding<std::string> departCityCode;
    Binding<std::string> departCity;
    Binding<std::string> departCountry;
    Binding<std::string> destCityCode;
    Binding<std::string> destCity;
    Binding<std::string> destCountry;
    /// The destination screen is pushed, by the row that was tapped last.
    Published<bool> destinationIsActive{fields, "destinationIsActive"};

protected:
    void choose(const Airport& airport) override;
    void leave() override { dismiss(); }

private:
    void writeOrigin(const Airport& airport);

    MainViewModel& model_;
    std::optional<Airport> chosen_;
    Link destination_;
};

} // namespace ombrivane
