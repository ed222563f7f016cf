#include "booking/RTBookingDetailsView.h"

#include "booking/BookingConfirmationView.h"
#include "booking/HandOverFlight.h"
#include "platform/OnMain.h"
#include "services/ItineraryType.h"

namespace ombrivane {

RTBookingDetailsView::RTBookingDetailsView(BookingGiven given) :
    BookingSession("RTBookingDetailsView", std::move(given)),
    information_(std::make_shared<RTFlightInformationView>(rtFlightAvailability, bookingClass.get(),
                                                           isLoading, uniquePassangerList)),
    baggage_(std::make_shared<RTBaggageInformationView>(rtFlightAvailability, isLoading)),
    informationPart_(*this, "information", [this] { return showPaymentView ? nullptr : information_; }),
    baggagePart_(*this, "baggage", [this] { return showPaymentView ? nullptr : baggage_; }),
    contactPart_(*this, "contact", [this] { return contactInPlace(); }),
    paymentPart_(*this, "payment", [this] { return paymentInPlace(); }),
    confirmation_(*this, Presentation::push, bookingDetailsViewRouteIsActive, [this] {
        return std::make_shared<RTBookingConfirmationView>(
            rtFlightAvailability, bookingSummary, bookingClass, passengersList, completionCallback());
    }) {}

bool RTBookingDetailsView::requestAvailability() {
    if (!flight.get()) return false;
    using Answer = std::optional<RTFlightAvailability>;
    const auto answered =
        onMain<Answer>([hold = shared_from_this(), this](Answer record, std::optional<Error> error) {
            takeAvailability(std::move(record), error, rtFlightAvailability);
        });
    if (returnFlight.get()) {
        flightAvailabilityProvider_.fetchAvailability(
            itineraryType::roundSpecial, *flight.get(), *returnFlight.get(), answered);
    } else {
        flightAvailabilityProvider_.fetchAvailability(itineraryType, *flight.get(), answered);
    }
    return true;
}

std::optional<AvailabilitySummary> RTBookingDetailsView::availabilitySummary() const {
    const auto& held = rtFlightAvailability.get();
    return held ? std::optional(held->availabilitySummary) : std::nullopt;
}

bool RTBookingDetailsView::documentsRequired() const {
    const auto& held = rtFlightAvailability.get();
    return held && held->documentsRequired;
}

std::vector<std::string> RTBookingDetailsView::allowedDocuments() const {
    const auto& held = rtFlightAvailability.get();
    return held ? held->allowedDocuments : std::vector<std::string>();
}

std::optional<std::int64_t> RTBookingDetailsView::totalCost() const {
    const auto& held = rtFlightAvailability.get();
    return held ? std::optional(held->fareInformation.totalCost) : std::nullopt;
}

std::optional<TravelDates> RTBookingDetailsView::travelDates() const {
    const auto& held = rtFlightAvailability.get();
    return held ? std::optional(travelDatesOf(held->flightsSummary)) : std::nullopt;
}

void RTBookingDetailsView::willUpload() const { platform().diagnostics->print("documents requird"); }

Dictionary RTBookingDetailsView::flightSummary() const {
    const auto& held = rtFlightAvailability.get();
    if (!held) fatalFault("a reservation was answered without an availability");
    return Dictionary{{"departureFlight", handOverFlight(held->flightsSummary)},
                      {"returnFlight", handOverReturnFlight(held->flightsSummary)}};
}

} // namespace ombrivane
