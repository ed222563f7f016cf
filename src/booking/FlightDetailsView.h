#pragma once

#include "booking/JourneyCard.h"
#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "records/KeyedRecords.h"

#include <string>
#include <vector>

namespace ombrivane {

/// The journeys of an availability leg by leg: `OWFlightDetailsView` and `RTFlightDetailsView`.
class FlightDetailsView : public Screen {
public:
    Derived<std::string> title;
    Derived<std::string> originCity;
    Derived<std::string> destinationCity;
    Derived<std::string> routeImage;
    Derived<std::vector<JourneyCard>> journeys;
    Action<> close{*this, "close", [this] { dismiss(); }};

protected:
    FlightDetailsView(std::string_view name, const char* image, std::vector<JourneyCard> cards);

private:
    std::vector<JourneyCard> cards_;
};

class OWFlightDetailsView final : public FlightDetailsView {
public:
    explicit OWFlightDetailsView(const std::optional<FlightsSummary>& summary) :
        FlightDetailsView("OWFlightDetailsView", "toIcon", journeyCards(summary)),
        flightsSummary(fields, "flightsSummary", summary) {}

    Published<std::optional<FlightsSummary>> flightsSummary;
};

class RTFlightDetailsView final : public FlightDetailsView {
public:
    explicit RTFlightDetailsView(const std::optional<RTFlightsSummary>& summary) :
        FlightDetailsView("RTFlightDetailsView", "exchangeIcon", journeyCards(summary)),
        flightsSummary(fields, "flightsSummary", summary) {}

    Published<std::optional<RTFlightsSummary>> flightsSummary;
};

} // namespace ombrivane
