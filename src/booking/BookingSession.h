#pragma once

#include "booking/BaggageInformationView.h"
#include "booking/FlightInformationView.h"
#include "booking/OWPessangerContactDetailView.h"
#include "booking/PaymentView.h"
#include "booking/SessionPhase.h"
#include "booking/TravelDates.h"
#include "events/Reporter.h"
#include "images/KeyedImage.h"
#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "parts/CustomSnackBarView.h"
#include "parts/Wait.h"
#include "platform/Platform.h"
#include "records/KeyedRecords.h"
#include "records/UniquePassanger.h"
#include "services/FlightBookingProvider.h"
#include "services/PassengerDocumentsProvider.h"
#include "state/AppState.h"
#include "state/CompletionCallback.h"
#include "words/Caption.h"
#include "words/Spoken.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// What the fare rules gate hands to a session.
struct BookingGiven {
    std::string itineraryType;
    std::optional<AnyFlight> flight;
    std::optional<AnyFlight> returnFlight; ///< of a domestic special round
    std::string bookingClass;              ///< cabin name
    std::string departLocation;
    std::string destLocation;
    CompletionCallback completionCallback;
};

/// One booking attempt, one way or round trip: the availability, ten minutes on the clock, the travellers and
/// the contact, the reservation, the upload of documents where they are demanded, and the hand-over to the
/// host. `SessionPhase` tells what may happen when.
class BookingSession : public Screen {
public:
    /// Seconds for which the service holds the price of an availability.
    static constexpr int timeAllowed = 600;

    void appear() override;
    void disappear() override { task_.cancel(); }

    /// What is shown inside of the session, also while the payment stands in the place of the others.
    virtual std::shared_ptr<FlightInformationView> information() const = 0;
    virtual std::shared_ptr<BaggageInformationView> baggage() const = 0;
    std::shared_ptr<OWPessangerContactDetailView> contact() const { return contact_; }
    std::shared_ptr<PaymentView> payment() const { return payment_; }

    Published<std::string> itineraryType;
    Published<std::optional<AnyFlight>> flight;
    Published<std::optional<AnyFlight>> returnFlight;
    Published<std::string> bookingClass;
    Published<std::string> departLocation;
    Published<std::string> destLocation;
    Published<int> timeRemaining{fields, "timeRemaining", timeAllowed};
    Published<bool> isLoading{fields, "isLoading", true};
    Published<std::string> appBarTitle{fields, "appBarTitle"};
    Published<std::vector<Passenger>> passengersList{fields, "passengersList"};
    Published<std::vector<std::optional<DocumentPicture>>> documentList{fields, "documentList"};
    Published<std::optional<BookingSummary>> bookingSummary{fields, "bookingSummary"};
    Published<std::optional<PaymentSummary>> paymentSummary{fields, "paymentSummary"};
    Published<std::optional<EmergencyContact>> emergencyContact{fields, "emergencyContact"};
    Published<std::vector<UniquePassanger>> uniquePassangerList{fields, "uniquePassangerList"};
    Published<bool> showSessionExpiredAlert{fields, "showSessionExpiredAlert"};
    Published<bool> showSnackBar{fields, "showSnackBar"};
    Published<bool> showProgressView{fields, "showProgressView"};
    Published<bool> showPaymentView{fields, "showPaymentView"};
    Published<std::string> errorMessage{fields, "errorMessage"};
    Published<std::string> progressMessage{fields, "progressMessage"};
    Published<bool> bookingDetailsViewRouteIsActive{fields, "bookingDetailsViewRouteIsActive"};

    Derived<std::string> phaseName{fields, "phase", [this] { return std::string(nameOf(phase())); }};
    Derived<std::string> clockText{fields, "clockText", [this] { return minutesAndSeconds(); }};
    Caption clockLabel{fields, "clockLabel", Text::sessionClockLabel};
    /// Of the time allowed, from 1 down to 0.
    Derived<double> clockPart{
        fields, "clockPart", [this] { return static_cast<double>(timeRemaining) / timeAllowed; }};
    Derived<bool> isLastMinute{fields, "isLastMinute", [this] { return timeRemaining <= 60; }};
    Caption totalLabel{fields, "totalLabel", Text::totalFare};
    Derived<std::string> total{fields, "total", [this] { return totalText(); }};
    /// What the offer cost before it was priced again; empty where the fare is as it was.
    Derived<std::string> formerTotal{fields, "formerTotal", [this] { return formerTotalText(); }};
    /// That the fare is another one, with what it was; empty where it is as it was.
    Derived<std::string> fareNotice{fields, "fareNotice", [this] { return fareNoticeText(); }};
    Derived<bool> fareFell{fields, "fareFell", [this] { return fareMove().value_or(0) < 0; }};
    Derived<bool> showsFoot{fields, "showsFoot", [this] { return !isLoading && !showPaymentView; }};
    Caption continueText{fields, "continueText", Text::continueOn};
    Caption expiredTitle{fields, "expiredTitle", Text::sessionExpired};
    /// What has become of what was entered, once the session has expired.
    Derived<std::string> expiredText{fields, "expiredText", [this] { return said(whatIsKept()); }};
    Caption expiredButtonText{fields, "expiredButtonText", Text::sessionCheckFares};

    Action<> back{*this, "back", [this] { dismiss(); }, [this] { return allowsNow(SessionControl::back); }};
    Action<> continue_{
        *this, "continue", [this] { proceed(); }, [this] { return allowsNow(SessionControl::proceed); }};
    Action<> checkLatestFares{*this,
                              "checkLatestFares",
                              [this] { dismiss(); },
                              [this] { return allowsNow(SessionControl::checkLatestFares); }};

protected:
    BookingSession(std::string_view name, BookingGiven given);

    /// What lies under the progress and the expiry takes no input.
    bool lendsInput() const override;

    /// Asks for the availability; called when the screen appears, none is held and none is under way.
    /// @return whether there was something to ask for
    virtual bool requestAvailability() = 0;
    virtual bool hasAvailability() const = 0;
    virtual std::optional<AvailabilitySummary> availabilitySummary() const = 0;
    virtual bool documentsRequired() const = 0;
    virtual std::vector<std::string> allowedDocuments() const = 0;
    virtual std::optional<std::int64_t> totalCost() const = 0;
    virtual std::optional<TravelDates> travelDates() const = 0;
    /// The journeys as the host receives them.
    virtual Dictionary flightSummary() const = 0;
    /// Called before the documents of a reservation are uploaded.
    virtual void willUpload() const {}

    /// Takes an availability in: `store` keeps the record.
    template <class Availability>
    void takeAvailability(std::optional<Availability> record, const std::optional<Error>& error,
                          Field<std::optional<Availability>>& held) {
        isAsking_ = false;
        if (error || !record) return failAvailability(error);
        isLoading = false;
        held.set(std::move(record));
        tellOpened();
        if (uniquePassangerList->empty()) uniquePassangerList = passengerSlots(availabilitySummary());
    }

    CompletionCallback completionCallback() const { return completionCallback_; }

private:
    SessionPhase phase() const;
    std::string minutesAndSeconds() const;
    std::string totalText() const;
    std::optional<std::int64_t> offeredCost() const;
    std::optional<std::int64_t> fareMove() const;
    std::string formerTotalText() const;
    std::string fareNoticeText() const;
    Text whatIsKept() const;
    std::optional<Awaited> awaited() const;
    bool allowsNow(SessionControl control) const { return allows(phase(), control); }
    bool everySlotIsFilled() const;
    void tick();
    void failAvailability(const std::optional<Error>& error);
    void refuse(std::string message);
    void sayMissing(Text message);
    void proceed();
    void reserve();
    void reservationAnswered(std::optional<FlightBooking> booking, const std::optional<Error>& error);
    void upload(const FlightBooking& booking);
    void failReservation(const Error& error);
    void handOver(const FlightBooking& booking);
    Dictionary handOverDictionary(const FlightBooking& booking) const;

    void tellOpened() const;
    void tellReserved(bool booked, const std::optional<Error>& error) const;

    Reporter reporter_;
    Credentials credentials_; ///< with which the reservation was asked for
    /// Steps that no key tells of.
    Fields unkeyed_;
    Published<bool> isAsking_{unkeyed_, "isAsking"};       ///< an availability is under way
    Published<bool> isUploading_{unkeyed_, "isUploading"}; ///< of a reservation that was made
    CompletionCallback completionCallback_;
    FlightBookingProvider flightBookingProvider_;
    PassengerDocumentsProvider passengerDocumentsProvider_;
    WorkItem task_;
    WorkItem timer_;
    SpokenField titleWords_{appBarTitle, Text::sessionTitle};
    SpokenField progressWords_{progressMessage, Text::sessionWait};
    CustomSnackBarView snackBar_{showSnackBar};
    std::shared_ptr<OWPessangerContactDetailView> contact_ =
        std::make_shared<OWPessangerContactDetailView>(ContactGiven{[this] { return documentsRequired(); },
                                                                    [this] { return allowedDocuments(); },
                                                                    [this] { return travelDates(); },
                                                                    isLoading,
                                                                    emergencyContact,
                                                                    documentList,
                                                                    passengersList,
                                                                    uniquePassangerList});
    std::shared_ptr<PaymentView> payment_ =
        std::make_shared<PaymentView>(PaymentGiven{paymentSummary,
                                                   bookingSummary,
                                                   bookingDetailsViewRouteIsActive,
                                                   errorMessage,
                                                   showSnackBar,
                                                   Text::paymentVerify});

public:
    /// What is said of a wait, and when.
    Wait wait{fields, [this] { return awaited(); }};

protected:
    /// The payment in place of the content, while its flag is raised.
    std::shared_ptr<PaymentView> paymentInPlace() const;
    std::shared_ptr<OWPessangerContactDetailView> contactInPlace() const;
};

} // namespace ombrivane
