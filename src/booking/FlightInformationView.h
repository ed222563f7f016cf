#pragma once

#include "booking/FlightDetailsView.h"
#include "booking/JourneyCard.h"
#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "offers/CabinClass.h"
#include "records/FlightAvailability.h"
#include "records/KeyedRecords.h"
#include "records/UniquePassanger.h"
#include "words/Caption.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// The travellers of a booking in one line, as "2 A , 1 I".
std::string passengerSummary(const std::vector<UniquePassanger>& passengerSlots);

/// The summary card of what was priced, one block for each direction, with the way to the details.
class FlightInformationView : public Screen {
    std::function<std::vector<JourneyCard>()> cards_;
    std::function<std::shared_ptr<Screen>()> makeDetails_;

public:
    Published<std::string> bookingClass;
    Binding<bool> isLoading;
    Binding<std::vector<UniquePassanger>> uniquePassangers;
    Published<bool> navigationIsActive{fields, "navigationIsActive"};
    Derived<std::vector<JourneyCard>> journeys{fields, "journeys", [this] { return cards_(); }};
    Derived<std::string> passengerLine{fields, "passengerLine", [this] {
                                           return said(Text::sessionSummary,
                                                       {{"passengers", passengerSummary(uniquePassangers)},
                                                        {"cabin", cabinLabel(bookingClass)}});
                                       }};
    Caption detailsText{fields, "detailsText", Text::flightDetails};
    Action<> viewDetails{
        *this, "viewDetails", [this] { navigationIsActive = true; }, [this] { return !isLoading; }};

protected:
    FlightInformationView(std::string_view screenName, std::string cabinName, const Field<bool>& loading,
                          const Field<std::vector<UniquePassanger>>& passengerSlots,
                          std::function<std::vector<JourneyCard>()> cards,
                          std::function<std::shared_ptr<Screen>()> details) :
        Screen(screenName),
        cards_(std::move(cards)),
        makeDetails_(std::move(details)),
        bookingClass(fields, "bookingClass", std::move(cabinName)),
        isLoading(fields, "isLoading", loading),
        uniquePassangers(fields, "uniquePassangers", passengerSlots) {}

private:
    Link details_{*this, Presentation::push, navigationIsActive, [this] { return makeDetails_(); }};
};

template <class Trip> class FlightInformationOf final : public FlightInformationView {
    using Availability = std::optional<typename Trip::Availability>;

public:
    FlightInformationOf(const Field<Availability>& availability, std::string cabinName,
                        const Field<bool>& loading,
                        const Field<std::vector<UniquePassanger>>& passengerSlots) :
        FlightInformationView(
            TripScreens<Trip>::information, std::move(cabinName), loading, passengerSlots,
            [this] { return journeyCards(flightsSummary.get()); },
            [this] { return std::make_shared<FlightDetailsOf<Trip>>(flightsSummary.get()); }),
        availability_(unkeyed_, "availability", availability) {}

    Derived<std::optional<typename Trip::Summary>> flightsSummary{
        fields, "flightsSummary", [this] {
            const auto& held = availability_.get();
            return held ? std::optional(held->flightsSummary) : std::nullopt;
        }};

private:
    Fields unkeyed_;
    Binding<Availability> availability_;
};

using OWFlightInformationView = FlightInformationOf<OneWay>;
using RTFlightInformationView = FlightInformationOf<RoundTrip>;

} // namespace ombrivane
