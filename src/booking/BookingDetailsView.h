#pragma once

#include "booking/BookingSession.h"
#include "booking/TripScreens.h"

#include <memory>

namespace ombrivane {

/// The booking session of one kind of trip: `OWBookingDetailsView` and `RTBookingDetailsView`.
template <class Trip> class BookingDetailsView final : public BookingSession {
    using Availability = std::optional<typename Trip::Availability>;

public:
    explicit BookingDetailsView(BookingGiven given) :
        BookingSession(TripScreens<Trip>::session, std::move(given)) {}

    std::shared_ptr<FlightInformationView> information() const override { return information_; }
    std::shared_ptr<BaggageInformationView> baggage() const override { return baggage_; }

    Published<Availability> flightAvailability{fields, TripScreens<Trip>::availabilityKey};

protected:
    bool requestAvailability() override;
    bool hasAvailability() const override { return flightAvailability->has_value(); }
    std::optional<AvailabilitySummary> availabilitySummary() const override;
    bool documentsRequired() const override;
    std::vector<std::string> allowedDocuments() const override;
    std::optional<std::int64_t> totalCost() const override;
    std::optional<TravelDates> travelDates() const override;
    Dictionary flightSummary() const override;
    void willUpload() const override;

private:
    void ask(const Completion<Availability>& completion);
    std::shared_ptr<Screen> makeConfirmation() const;

    typename TripScreens<Trip>::AvailabilityProvider flightAvailabilityProvider_;
    std::shared_ptr<FlightInformationView> information_ = std::make_shared<FlightInformationOf<Trip>>(
        flightAvailability, bookingClass.get(), isLoading, uniquePassangerList);
    std::shared_ptr<BaggageInformationView> baggage_ =
        std::make_shared<BaggageInformationOf<Trip>>(flightAvailability, isLoading);
    Part informationPart_{*this, "information", [this] { return showPaymentView ? nullptr : information_; }};
    Part baggagePart_{*this, "baggage", [this] { return showPaymentView ? nullptr : baggage_; }};
    Part contactPart_{*this, "contact", [this] { return contactInPlace(); }};
    Part paymentPart_{*this, "payment", [this] { return paymentInPlace(); }};
    Link confirmation_{
        *this, Presentation::push, bookingDetailsViewRouteIsActive, [this] { return makeConfirmation(); }};
};

using OWBookingDetailsView = BookingDetailsView<OneWay>;
using RTBookingDetailsView = BookingDetailsView<RoundTrip>;

template <> void OWBookingDetailsView::ask(const Completion<Availability>& completion);
template <> void RTBookingDetailsView::ask(const Completion<Availability>& completion);
template <> void OWBookingDetailsView::willUpload() const;
template <> void RTBookingDetailsView::willUpload() const;
extern template class BookingDetailsView<OneWay>;
extern template class BookingDetailsView<RoundTrip>;

} // namespace ombrivane
