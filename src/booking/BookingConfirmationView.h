#pragma once

#include "booking/TicketTravellerInfo.h"
#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "parts/CustomSnackBarView.h"
#include "platform/Platform.h"
#include "records/FlightAvailability.h"
#include "records/FlightBooking.h"
#include "records/FlightTicketing.h"
#include "records/KeyedRecords.h"
#include "records/Passenger.h"
#include "services/DownloadTicketProvider.h"
#include "services/FlightTicketingProvider.h"
#include "state/CompletionCallback.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

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

    Derived<std::string> title;
    Derived<std::string> text;
    Derived<std::string> downloadText;
    Derived<std::vector<TicketFlightBlock>> flightBlocks;
    Derived<std::vector<TicketPassengerBlock>> passengerBlocks;
    Action<> back;
    Action<> downloadTicket;
    Action<> share;

protected:
    BookingConfirmationView(std::string_view name, std::vector<TicketFlightBlock> flights,
                            std::optional<BookingSummary> summary, std::string cabinName,
                            std::vector<Passenger> localPassengers, CompletionCallback completionCallback);

private:
    void issueTicket();
    void ticketIssued(std::optional<FlightTicketing> ticket, const std::optional<Error>& error);
    void reportBooking();
    void fetchDocument();
    std::vector<TicketPassengerBlock> makePassengerBlocks() const;

    std::vector<TicketFlightBlock> flights_;
    CompletionCallback completionCallback_;
    FlightTicketingProvider flightTicketingProvider_;
    DownloadTicketProvider downloadTicketProvider_;
    WorkItem task_;
    CustomSnackBarView snackBar_{showSnackBar};
};

class OWBookingConfirmationView final : public BookingConfirmationView {
public:
    OWBookingConfirmationView(std::optional<OWFlightAvailability> availability,
                              std::optional<BookingSummary> summary, std::string cabinName,
                              std::vector<Passenger> localPassengers, CompletionCallback completionCallback);

    Published<std::optional<OWFlightAvailability>> owFlightAvailability;
};

class RTBookingConfirmationView final : public BookingConfirmationView {
public:
    RTBookingConfirmationView(std::optional<RTFlightAvailability> availability,
                              std::optional<BookingSummary> summary, std::string cabinName,
                              std::vector<Passenger> localPassengers, CompletionCallback completionCallback);

    Published<std::optional<RTFlightAvailability>> rtFlightAvailability;
};

} // namespace ombrivane
