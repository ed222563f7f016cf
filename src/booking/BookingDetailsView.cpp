#include "booking/BookingDetailsView.h"

#include "base/Fault.h"
#include "booking/BookingConfirmationView.h"
#include "booking/HandOverFlight.h"
#include "platform/OnMain.h"
#include "services/ItineraryType.h"

namespace ombrivane {
namespace {

Dictionary summaryOf(const FlightsSummary& flights) {
    return Dictionary{{"departureFlight", handOverFlight(flights)}, {"returnFlight", nullptr}};
}

Dictionary summaryOf(const RTFlightsSummary& flights) {
    return Dictionary{{"departureFlight", handOverFlight(flights)},
                      {"returnFlight", handOverReturnFlight(flights)}};
}

} // namespace

template <class Trip> bool BookingDetailsView<Trip>::requestAvailability() {
    if (!flight.get()) return false;
    ask(onMain<Availability>(
        [hold = shared_from_this(), this](Availability record, std::optional<Error> error) {
            takeAvailability(std::move(record), error, flightAvailability);
        }));
    return true;
}

template <> void OWBookingDetailsView::ask(const Completion<Availability>& completion) {
    flightAvailabilityProvider_.fetchAvailability(itineraryType, *flight.get(), completion);
}

template <> void RTBookingDetailsView::ask(const Completion<Availability>& completion) {
    if (returnFlight.get()) {
        flightAvailabilityProvider_.fetchAvailability(
            itineraryType::roundSpecial, *flight.get(), *returnFlight.get(), completion);
    } else {
        flightAvailabilityProvider_.fetchAvailability(itineraryType, *flight.get(), completion);
    }
}

template <class Trip>
std::optional<AvailabilitySummary> BookingDetailsView<Trip>::availabilitySummary() const {
    const auto& held = flightAvailability.get();
    return held ? std::optional(held->availabilitySummary) : std::nullopt;
}

template <class Trip> bool BookingDetailsView<Trip>::documentsRequired() const {
    const auto& held = flightAvailability.get();
    return held && held->documentsRequired;
}

template <class Trip> std::vector<std::string> BookingDetailsView<Trip>::allowedDocuments() const {
    const auto& held = flightAvailability.get();
    return held ? held->allowedDocuments : std::vector<std::string>();
}

template <class Trip> std::optional<std::int64_t> BookingDetailsView<Trip>::totalCost() const {
    const auto& held = flightAvailability.get();
    return held ? std::optional(held->fareInformation.totalCost) : std::nullopt;
}

template <class Trip> std::optional<TravelDates> BookingDetailsView<Trip>::travelDates() const {
    const auto& held = flightAvailability.get();
    return held ? std::optional(travelDatesOf(held->flightsSummary)) : std::nullopt;
}

template <class Trip> Dictionary BookingDetailsView<Trip>::flightSummary() const {
    const auto& held = flightAvailability.get();
    if (!held) fatalFault("a reservation was answered without an availability");
    return summaryOf(held->flightsSummary);
}

template <> void OWBookingDetailsView::willUpload() const {}

template <> void RTBookingDetailsView::willUpload() const {
    platform().diagnostics->print("documents requird");
}

template <class Trip> std::shared_ptr<Screen> BookingDetailsView<Trip>::makeConfirmation() const {
    return std::make_shared<BookingConfirmationOf<Trip>>(
        flightAvailability, bookingSummary, bookingClass, passengersList, completionCallback());
}

template class BookingDetailsView<OneWay>;
template class BookingDetailsView<RoundTrip>;

} // namespace ombrivane
