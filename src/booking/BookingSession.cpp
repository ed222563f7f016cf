#include "booking/BookingSession.h"

#include "base/ErrorDomains.h"
#include "base/WholeNumber.h"
#include "booking/Travellers.h"
#include "dates/DateFormatter.h"
#include "platform/OnMain.h"
#include "records/Encode.h"

#include <fmt/core.h>

#include <algorithm>

namespace ombrivane {
namespace {

constexpr std::chrono::milliseconds second{1000};

/// The service answered with success and nothing else.
Error noReservation() {
    return {errorDomain::service,
            static_cast<int>(ServiceError::noReservation),
            said(Text::errorReservationNotAnswered)};
}

} // namespace

BookingSession::BookingSession(std::string_view screenName, BookingGiven given) :
    Screen(screenName),
    itineraryType(fields, "itineraryType", std::move(given.itineraryType)),
    flight(fields, "flight", std::move(given.flight)),
    returnFlight(fields, "returnFlight", std::move(given.returnFlight)),
    bookingClass(fields, "bookingClass", std::move(given.bookingClass)),
    departLocation(fields, "departLocation", std::move(given.departLocation)),
    destLocation(fields, "destLocation", std::move(given.destLocation)),
    completionCallback_(std::move(given.completionCallback)),
    timer_(mainQueue().every(second, [this] { tick(); })) {}

std::string BookingSession::minutesAndSeconds() const {
    constexpr int minute = 60;
    return fmt::format("{:02}:{:02}", timeRemaining / minute, timeRemaining % minute);
}

std::string BookingSession::totalText() const { return "NPR " + formatNumber(totalCost().value_or(1)); }

/// Both offers of a special round together; nothing where what was priced is in another currency.
std::optional<std::int64_t> BookingSession::offeredCost() const {
    const auto& offer = flight.get();
    const auto priced = availabilitySummary();
    if (!offer || !priced || offer->currency() != priced->currency) return std::nullopt;
    return sumOf(offer->totalCost(), returnFlight.get() ? returnFlight->value().totalCost() : 0);
}

/// By how much what was priced is more than the offer, or less; nothing where they are the same.
std::optional<std::int64_t> BookingSession::fareMove() const {
    const auto offered = offeredCost();
    const auto cost = totalCost();
    return offered && cost && *offered != *cost ? std::optional(*cost > *offered ? 1 : -1) : std::nullopt;
}

std::string BookingSession::formerTotalText() const {
    return fareMove() ? "NPR " + formatNumber(*offeredCost()) : "";
}

std::string BookingSession::fareNoticeText() const {
    const std::string former = formerTotalText();
    return former.empty() ? "" : said(Text::sessionFareChanged, {{"price", former}});
}

/// The fare rules behind this screen hold the flight; the next session begins with empty forms.
Text BookingSession::whatIsKept() const {
    if (showProgressView) return Text::sessionExpiredReserving;
    const bool entered = emergencyContact.get() || !passengersList->empty();
    return entered ? Text::sessionExpiredEntered : Text::sessionExpiredUntouched;
}

std::optional<Awaited> BookingSession::awaited() const {
    if (showSessionExpiredAlert) return std::nullopt;
    if (showProgressView && isUploading_) return Awaited{Text::sessionUploading, Text::waitForUpload};
    if (showProgressView) return Awaited{Text::sessionReserving, Text::waitForReservation};
    if (isAsking_) return Awaited{Text::sessionCheckingFare, Text::waitOrGoBack};
    return std::nullopt;
}

SessionPhase BookingSession::phase() const {
    return phaseOf({showSessionExpiredAlert, showProgressView, showPaymentView, isLoading});
}

void BookingSession::appear() {
    // A form that is left while the availability loads brings the screen into view again.
    if (hasAvailability() || isAsking_) return;
    reporter_.asks();
    isAsking_ = requestAvailability();
}

void BookingSession::tick() {
    if (timeRemaining >= 1) {
        timeRemaining = timeRemaining - 1;
        return;
    }
    const auto hold = shared_from_this(); // whoever hears of it may drop the view
    if (!showSessionExpiredAlert) reporter_.happened({.kind = EventKind::expired});
    showSessionExpiredAlert = true;
}

bool BookingSession::lendsInput() const {
    const SessionPhase now = phase();
    return now != SessionPhase::reserving && now != SessionPhase::expired;
}

void BookingSession::tellOpened() const {
    reporter_.answered({.kind = EventKind::bookingOpened});
    if (fareMove())
        reporter_.happened({.kind = EventKind::fareMoved, .formerFare = offeredCost(), .fare = totalCost()});
}

void BookingSession::tellReserved(bool booked, const std::optional<Error>& error) const {
    Event event{.kind = EventKind::reservationAnswered};
    if (!booked) {
        event.error = kindOf(error ? *error : noReservation());
        if (!cannotHaveHappened(*event.error)) event.kind = EventKind::reservationUnknown;
    }
    reporter_.answered(event);
}

void BookingSession::failAvailability(const std::optional<Error>& error) {
    if (hasAvailability()) return; // a price that is held is not thrown away
    reporter_.answered(
        {.kind = EventKind::bookingRefused, .error = error ? kindOf(*error) : ErrorKind::answerMissing});
    task_ = mainQueue().after(messageDuration, [this] { dismiss(); });
    refuse(error ? error->localizedDescription : "");
}

void BookingSession::refuse(std::string message) {
    errorMessage = std::move(message);
    showSnackBar = true;
}

bool BookingSession::everySlotIsFilled() const {
    const auto& passengers = passengersList.get();
    const auto& slots = uniquePassangerList.get();
    return !slots.empty() && passengers.size() == slots.size() &&
           std::all_of(slots.begin(), slots.end(), [this](const UniquePassanger& slot) {
               return contact_->isComplete(slot.id);
           });
}

void BookingSession::sayMissing(Text message) {
    contact_->marksMissing = true;
    refuse(said(message));
}

void BookingSession::proceed() {
    if (!emergencyContact.get()) return sayMissing(Text::sessionContactMissing);
    if (!everySlotIsFilled()) return sayMissing(Text::sessionPassengersMissing);
    isUploading_ = false;
    showProgressView = true;
    credentials_ = AppState::shared().credentials();
    reporter_.sent(EventKind::reservationSent);
    reserve();
}

void BookingSession::reserve() {
    const SendingAs same(credentials_);
    flightBookingProvider_.reserve(
        passengersList,
        availabilitySummary(),
        *emergencyContact.get(),
        Completion<std::optional<FlightBooking>>::twice(
            [hold = heldForMain(shared_from_this()),
             this](std::optional<FlightBooking> booking, std::optional<Error> error) {
                mainQueue().async(
                    [hold, this, booking = std::move(booking), error = std::move(error)]() mutable {
                        reservationAnswered(std::move(booking), error);
                    });
            }));
}

void BookingSession::reservationAnswered(std::optional<FlightBooking> booking,
                                         const std::optional<Error>& error) {
    tellReserved(booking.has_value(), error);
    if (error) return failReservation(*error);
    if (!booking) return failReservation(noReservation());
    if (!documentsRequired()) return handOver(*booking);
    willUpload();
    isUploading_ = true;
    upload(*booking);
}

void BookingSession::upload(const FlightBooking& booking) {
    reporter_.sent(EventKind::uploadSent);
    const SendingAs same(credentials_);
    passengerDocumentsProvider_.upload(
        passengersList,
        Travellers(passengersList, documentList).documents(),
        booking.passengers,
        booking.bookingReferenceID,
        onMain<std::optional<FlightBooking>>([hold = shared_from_this(), this, booking](
                                                 std::optional<FlightBooking>, std::optional<Error> error) {
            reporter_.answered({.kind = EventKind::uploadAnswered,
                                .error = error ? std::optional(kindOf(*error)) : std::nullopt});
            if (error) return failReservation(*error);
            handOver(booking);
        }));
}

void BookingSession::failReservation(const Error& error) {
    errorMessage = error.localizedDescription;
    showProgressView = false;
    showSnackBar = true;
}

void BookingSession::handOver(const FlightBooking& booking) {
    const auto hold = shared_from_this();
    showProgressView = false;
    if (!viewIsGone()) AppState::shared().resetNavigation();
    completionCallback_(handOverDictionary(booking), std::nullopt);
}

Dictionary BookingSession::handOverDictionary(const FlightBooking& booking) const {
    const auto contact = emergencyContact->value_or(EmergencyContact());
    const auto cost = totalCost();
    return Dictionary{
        {"exit", true},
        {"flightSummary", flightSummary()},
        {"emergencyContact",
         Dictionary{{"contact", contact.contact}, {"email", contact.email}, {"name", contact.name}}},
        {"bookingSummary", encode(booking)},
        {"bearerToken", credentials_.accessToken},
        {"totalCost", cost ? Dictionary(*cost) : Dictionary("")}};
}

std::shared_ptr<PaymentView> BookingSession::paymentInPlace() const {
    return showPaymentView ? payment_ : nullptr;
}

std::shared_ptr<OWPessangerContactDetailView> BookingSession::contactInPlace() const {
    return showPaymentView ? nullptr : contact_;
}

} // namespace ombrivane
