#include "booking/BookingConfirmationView.h"

#include "base/Https.h"
#include "base/Url.h"
#include "offers/CabinClass.h"
#include "offers/OfferFormat.h"
#include "platform/OnMain.h"
#include "records/Encode.h"
#include "services/CustomError.h"
#include "state/AppState.h"

namespace ombrivane {
namespace {

/// What a block holds before its availability has arrived.
TicketFlightBlock waitingBlock(Text title) {
    const std::string waiting = said(Text::loading);
    return {said(title), waiting, waiting, waiting, waiting, waiting, waiting, waiting};
}

} // namespace

std::vector<TicketFlightBlock> ticketFlights(const std::optional<OWFlightAvailability>& availability) {
    if (!availability) return {waitingBlock(Text::ticketDeparting)};
    const auto& flights = availability->flightsSummary;
    const auto& baggage = availability->baggageDetails;
    return {{said(Text::ticketDeparting),
             flights.departCityName,
             flights.deptTime,
             flights.destCityName,
             flights.destTime,
             OfferFormat::formatDate(flights.deptDate),
             baggage.cabin,
             baggage.baggage}};
}

std::vector<TicketFlightBlock> ticketFlights(const std::optional<RTFlightAvailability>& availability) {
    if (!availability) {
        return {waitingBlock(Text::ticketDeparting), waitingBlock(Text::ticketReturning)};
    }
    const auto& flights = availability->flightsSummary;
    const auto& going = availability->baggageDetails.outbound;
    const auto& coming = availability->baggageDetails.baggageDetailsReturn;
    return {{said(Text::ticketDeparting),
             flights.departCityName,
             flights.deptTime,
             flights.destCityName,
             flights.destTime,
             OfferFormat::formatDate(flights.deptDate),
             going.cabin,
             going.baggage},
            {said(Text::ticketReturning),
             flights.returnDepartCityName,
             flights.returnDeptTime,
             flights.returnDestCityName,
             flights.returnDestTime,
             OfferFormat::formatDate(flights.returnDeptDate),
             coming.cabin,
             coming.baggage}};
}

BookingConfirmationView::BookingConfirmationView(std::string_view screenName,
                                                 std::function<std::vector<TicketFlightBlock>()> flights,
                                                 std::optional<BookingSummary> summary, std::string cabinName,
                                                 std::vector<Passenger> localPassengers,
                                                 CompletionCallback completionCallback) :
    Screen(screenName),
    bookingSummary(fields, "bookingSummary", std::move(summary)),
    passengers(fields, "passengers", std::move(localPassengers)),
    flightClass(fields, "flightClass", std::move(cabinName)),
    flights_(std::move(flights)),
    completionCallback_(std::move(completionCallback)) {}

void BookingConfirmationView::leave() {
    const auto callback = completionCallback_;
    AppState::shared().resetNavigation();
    callback(std::nullopt, std::nullopt);
}

void BookingConfirmationView::issueTicket() {
    using Answer = std::optional<FlightTicketing>;
    isIssuing_ = true;
    flightTicketingProvider_.issueTicket(
        bookingSummary,
        onMain<Answer>([hold = shared_from_this(), this](Answer ticket, std::optional<Error> error) {
            ticketIssued(std::move(ticket), error);
        }));
}

void BookingConfirmationView::ticketIssued(std::optional<FlightTicketing> ticket,
                                           const std::optional<Error>& error) {
    isIssuing_ = false;
    if (error || !ticket) {
        task_ = mainQueue().after(messageDuration, [this] {
            if (!viewIsGone()) AppState::shared().resetNavigation();
        });
        // The bar says what `errorMessage` holds, which nothing has written.
        showSnackBar = true;
        return;
    }
    isLoading = false;
    reportBooking();
    flightTicketingPassengers = ticket->passengers;
    flightTicketing = std::move(ticket);
}

std::optional<Awaited> BookingConfirmationView::awaited() const {
    if (showProgressView) return Awaited{Text::ticketFetching, Text::waitForTicket};
    if (isIssuing_) return Awaited{Text::ticketIssuing, Text::waitForTicket};
    return std::nullopt;
}

void BookingConfirmationView::reportBooking() {
    const auto& summary = bookingSummary.get();
    if (!summary) {
        completionCallback_(
            std::nullopt,
            Error{
                errorDomain::encoding, 0, "The booking could not be reported.", "bookingSummary: is absent"});
        return;
    }
    completionCallback_(Dictionary{{"exit", false}, {"bookingSummary", encode(*summary)}}, std::nullopt);
}

void BookingConfirmationView::fetchDocument() {
    showProgressView = true;
    const auto& ticket = flightTicketing.get();
    downloadTicketProvider_.download(
        ticket ? ticket->ticketSummary.ticketReferenceID : "",
        onMain<std::string>([hold = shared_from_this(), this](std::string link, std::optional<Error> error) {
            showProgressView = false;
            // What is no address at all ends in silence; one that leads elsewhere is worth a word.
            if (!error && !isUrl(link)) return;
            if (!error && isHttps(link)) return platform().sharing->share(link);
            errorMessage = error.value_or(makeError(CustomError::invalidUrl)).localizedDescription;
            showSnackBar = true;
        }));
}

std::vector<TicketPassengerBlock> BookingConfirmationView::makePassengerBlocks() const {
    std::vector<TicketPassengerBlock> blocks;
    for (const auto& passenger : flightTicketingPassengers.get()) {
        TicketPassengerBlock& block = blocks.emplace_back();
        block.title = said(Text::ticketPassenger, {{"number", static_cast<std::int64_t>(blocks.size())}});
        block.name = passenger.passengerName;
        block.lines = {
            {said(Text::ticketType), passenger.passengerType, said(Text::ticketReservation), passenger.pnr},
            {said(Text::ticketETicket),
             passenger.eticketNumber,
             said(Text::ticketClass),
             cabinLabel(flightClass)},
            {said(Text::ticketStatus), said(Text::ticketConfirmed), "", ""}};
    }
    return blocks;
}

} // namespace ombrivane
