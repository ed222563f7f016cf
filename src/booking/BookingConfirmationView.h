#pragma once

#include "booking/TicketTravellerInfo.h"
#include "booking/TripScreens.h"
#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "parts/CustomSnackBarView.h"
#include "parts/Wait.h"
#include "platform/Platform.h"
#include "records/FlightBooking.h"
#include "records/FlightTicketing.h"
#include "records/KeyedRecords.h"
#include "records/Passenger.h"
#include "services/DownloadTicketProvider.h"
#include "services/FlightTicketingProvider.h"
#include "state/CompletionCallback.h"
#include "words/Caption.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// One block for each direction, which say that they wait where there is no availability.
std::vector<TicketFlightBlock> ticketFlights(const std::optional<OWFlightAvailability>& availability);
std::vector<TicketFlightBlock> ticketFlights(const std::optional<RTFlightAvailability>& availability);

/// The ticket of a paid booking: issues it when it appears, reports the booking to the host, and hands the
/// ticket's document on. `OWBookingConfirmationView` and `RTBookingConfirmationView` differ in their flight
/// blocks.
class BookingConfirmationView : public Screen {
public:
    void appear() override { issueTicket(); }
    void disappear() override { task_.cancel(); }

    Published<std::optional<BookingSummary>> bookingSummary;
    Published<std::vector<Passenger>> passengers;
    Published<std::string> flightClass;
    Published<bool> isLoading{fields, "isLoading", true};
    Published<std::optional<FlightTicketing>> flightTicketing{fields, "flightTicketing"};
    Published<bool> showSnackBar{fields, "showSnackBar"};
    Published<bool> showProgressView{fields, "showProgressView"};
    Published<std::string> errorMessage{fields, "errorMessage"};
    Published<std::string> progressMessage{fields, "progressMessage"};
    Published<std::vector<FlightTicketingPassenger>> flightTicketingPassengers{fields,
                                                                               "flightTicketingPassengers"};

    Caption title{fields, "title", Text::ticketTitle};
    Caption text{fields, "text", Text::ticketText};
    Caption downloadText{fields, "downloadText", Text::ticketDownload};
    Derived<std::vector<TicketFlightBlock>> flightBlocks{
        fields, "flightBlocks", [this] { return flights_(); }};
    Derived<std::vector<TicketPassengerBlock>> passengerBlocks{
        fields, "passengerBlocks", [this] { return makePassengerBlocks(); }};
    Action<> back{*this, "back", [this] { leave(); }, [this] { return !isLoading; }};
    Action<> downloadTicket{
        *this, "downloadTicket", [this] { fetchDocument(); }, [this] { return !showProgressView; }};
    Action<> share{*this, "share", [this] { fetchDocument(); }, [this] { return !showProgressView; }};

protected:
    BookingConfirmationView(std::string_view name, std::function<std::vector<TicketFlightBlock>()> flights,
                            std::optional<BookingSummary> summary, std::string cabinName,
                            std::vector<Passenger> localPassengers, CompletionCallback completionCallback);

private:
    void leave();
    void issueTicket();
    void ticketIssued(std::optional<FlightTicketing> ticket, const std::optional<Error>& error);
    void reportBooking();
    void fetchDocument();
    std::vector<TicketPassengerBlock> makePassengerBlocks() const;
    std::optional<Awaited> awaited() const;

    Fields unkeyed_;
    Published<bool> isIssuing_{unkeyed_, "isIssuing"};
    std::function<std::vector<TicketFlightBlock>()> flights_;
    CompletionCallback completionCallback_;
    FlightTicketingProvider flightTicketingProvider_;
    DownloadTicketProvider downloadTicketProvider_;
    WorkItem task_;
    CustomSnackBarView snackBar_{showSnackBar};

public:
    /// What is said of a wait, and when.
    Wait wait{fields, [this] { return awaited(); }};
};

template <class Trip> class BookingConfirmationOf final : public BookingConfirmationView {
    using Availability = std::optional<typename Trip::Availability>;

public:
    BookingConfirmationOf(Availability availability, std::optional<BookingSummary> summary,
                          std::string cabinName, std::vector<Passenger> localPassengers,
                          CompletionCallback completionCallback) :
        BookingConfirmationView(
            TripScreens<Trip>::confirmation, [this] { return ticketFlights(flightAvailability.get()); },
            std::move(summary), std::move(cabinName), std::move(localPassengers),
            std::move(completionCallback)),
        flightAvailability(fields, TripScreens<Trip>::availabilityKey, std::move(availability)) {}

    Published<Availability> flightAvailability;
};

using OWBookingConfirmationView = BookingConfirmationOf<OneWay>;
using RTBookingConfirmationView = BookingConfirmationOf<RoundTrip>;

} // namespace ombrivane
