#pragma once

#include "booking/JourneyCard.h"
#include "booking/TripScreens.h"
#include "keyed/Action.h"
#include "keyed/Constant.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "records/KeyedRecords.h"
#include "words/Caption.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// The journeys of an availability leg by leg: `OWFlightDetailsView` and `RTFlightDetailsView`.
class FlightDetailsView : public Screen {
    std::function<std::vector<JourneyCard>()> cards_;

public:
    Caption title{fields, "title", Text::flightDetailsTitle};
    Derived<std::string> originCity{fields, "originCity", [this] { return cards_().front().originCity; }};
    Derived<std::string> destinationCity{
        fields, "destinationCity", [this] { return cards_().front().destinationCity; }};
    Constant routeImage;
    Derived<std::vector<JourneyCard>> journeys{fields, "journeys", [this] { return cards_(); }};
    Action<> close{*this, "close", [this] { dismiss(); }};

protected:
    FlightDetailsView(std::string_view screenName, const char* image,
                      std::function<std::vector<JourneyCard>()> cards) :
        Screen(screenName), cards_(std::move(cards)), routeImage(fields, "routeImage", image) {}
};

template <class Trip> class FlightDetailsOf final : public FlightDetailsView {
    using Summary = std::optional<typename Trip::Summary>;

public:
    explicit FlightDetailsOf(const Summary& summary) :
        FlightDetailsView(TripScreens<Trip>::details, TripScreens<Trip>::routeImage,
                          [this] { return journeyCards(flightsSummary.get()); }),
        flightsSummary(fields, "flightsSummary", summary) {}

    Published<Summary> flightsSummary;
};

using OWFlightDetailsView = FlightDetailsOf<OneWay>;
using RTFlightDetailsView = FlightDetailsOf<RoundTrip>;

} // namespace ombrivane
