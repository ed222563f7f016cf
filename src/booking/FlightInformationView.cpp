#include "booking/FlightInformationView.h"

#include <algorithm>

namespace ombrivane {
namespace {

template <class Availability> auto summaryOf(const Field<std::optional<Availability>>& availability) {
    const auto& held = availability.get();
    return held ? std::optional(held->flightsSummary) : std::nullopt;
}

} // namespace

std::string passengerSummary(const std::vector<UniquePassanger>& slots) {
    const auto piece = [&slots](const char* type, const char* before, const char* letter) {
        const auto count = std::count_if(
            slots.begin(), slots.end(), [type](const UniquePassanger& slot) { return slot.type == type; });
        return count < 1 ? std::string() : before + std::to_string(count) + letter;
    };
    return piece("Adult", "", " A") + piece("Child", " , ", " C") + piece("Infant", " , ", " I");
}

FlightInformationView::FlightInformationView(std::string_view screenName, std::string cabinName,
                                             const Field<bool>& loading,
                                             const Field<std::vector<UniquePassanger>>& slots,
                                             std::function<std::vector<JourneyCard>()> cards,
                                             std::function<std::shared_ptr<Screen>()> details) :
    Screen(screenName),
    bookingClass(fields, "bookingClass", std::move(cabinName)),
    isLoading(fields, "isLoading", loading),
    uniquePassangers(fields, "uniquePassangers", slots),
    journeys(fields, "journeys", std::move(cards)),
    passengerLine(fields, "passengerLine",
                  [this] { return passengerSummary(uniquePassangers) + " | " + bookingClass.get(); }),
    detailsText(fields, "detailsText", [] { return std::string("View Flight Details"); }),
    viewDetails(
        *this, "viewDetails", [this] { navigationIsActive = true; }, [this] { return !isLoading; }),
    details_(*this, Presentation::push, navigationIsActive, std::move(details)) {}

OWFlightInformationView::OWFlightInformationView(
    const Field<std::optional<OWFlightAvailability>>& availability, std::string cabinName,
    const Field<bool>& loading, const Field<std::vector<UniquePassanger>>& slots) :
    FlightInformationView(
        "OWFlightInformationView", std::move(cabinName), loading, slots,
        [this] { return journeyCards(flightsSummary.get()); },
        [this] { return std::make_shared<OWFlightDetailsView>(flightsSummary.get()); }),
    flightsSummary(fields, "flightsSummary", [this] { return summaryOf(availability_); }),
    availability_(unkeyed_, "availability", availability) {}

RTFlightInformationView::RTFlightInformationView(
    const Field<std::optional<RTFlightAvailability>>& availability, std::string cabinName,
    const Field<bool>& loading, const Field<std::vector<UniquePassanger>>& slots) :
    FlightInformationView(
        "RTFlightInformationView", std::move(cabinName), loading, slots,
        [this] { return journeyCards(flightsSummary.get()); },
        [this] { return std::make_shared<RTFlightDetailsView>(flightsSummary.get()); }),
    flightsSummary(fields, "flightsSummary", [this] { return summaryOf(availability_); }),
    availability_(unkeyed_, "availability", availability) {}

} // namespace ombrivane
