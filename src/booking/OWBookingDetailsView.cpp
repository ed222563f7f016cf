#include "booking/OWBookingDetailsView.h"

#include "booking/BookingConfirmationView.h"
#include "booking/HandOverFlight.h"
#include "platform/OnMain.h"

namespace ombrivane {

OWBookingDetailsView::OWBookingDetailsView(BookingGiven given) :
    BookingSession("OWBookingDetailsView", std::move(given)),
    information_(std::make_shared<OWFlightInformationView>(owFlightAvailability, bookingClass.get(),
                                                           isLoading, uniquePassangerList)),
    baggage_(std::make_shared<OWBaggageInformationView>(owFlightAvailability, isLoading)),
    informationPart_(*this, "information", [this] { return showPaymentView ? nullptr : information_; }),
    baggagePart_(*this, "baggage", [this] { return showPaymentView ? nullptr : baggage_; }),
    contactPart_(*this, "contact", [this] { return contactInPlace(); }),
    paymentPart_(*this, "payment", [this] { return paymentInPlace(); }),
    confirmation_(*this, Presentation::push, bookingDetailsViewRouteIsActive, [this] {
        return std::make_shared<OWBookingConfirmationView>(
            owFlightAvailability, bookingSummary, bookingClass, passengersList, completionCallback());
    }) {}

bool OWBookingDetailsView::requestAvailability() {
    if (!flight.get()) return false;
    using Answer = std::optional<OWFlightAvailability>;
    flightAvailabilityProvider_.fetchAvailability(
        itineraryType,
        *flight.get(),
        onMain<Answer>([hold = shared_from_this(), this](Answer record, std::optional<Error> error) {
            takeAvailability(std::move(record), error, owFlightAvailability);
        }));
    return true;
}

std::optional<AvailabilitySummary> OWBookingDetailsView::availabilitySummary() const {
    const auto& held = owFlightAvailability.get();
    return held ? std::optional(held->availabilitySummary) : std::nullopt;
}

bool OWBookingDetailsView::documentsRequired() const {
    const auto& held = owFlightAvailability.get();
    return held && held->documentsRequired;
}

std::vector<std::string> OWBookingDetailsView::allowedDocuments() const {
    const auto& held = owFlightAvailability.get();
    return held ? held->allowedDocuments : std::vector<std::string>();
}

std::optional<std::int64_t> OWBookingDetailsView::totalCost() const {
    const auto& held = owFlightAvailability.get();
    return held ? std::optional(held->fareInformation.totalCost) : std::nullopt;
}

std::optional<TravelDates> OWBookingDetailsView::travelDates() const {
    const auto& held = owFlightAvailability.get();
    return held ? std::optional(travelDatesOf(held->flightsSummary)) : std::nullopt;
}

Dictionary OWBookingDetailsView::flightSummary() const {
    const auto& held = owFlightAvailability.get();
    if (!held) fatalFault("a reservation was answered without an availability");
    return Dictionary{{"departureFlight", handOverFlight(held->flightsSummary)}, {"returnFlight", nullptr}};
}

} // namespace ombrivane
