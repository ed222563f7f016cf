#pragma once

#include "booking/BaggageInformationView.h"
#include "booking/BookingSession.h"
#include "booking/FlightInformationView.h"
#include "records/FlightAvailability.h"
#include "services/OWFlightAvailabilityProvider.h"

#include <memory>

namespace ombrivane {

/// The booking session of one way.
class OWBookingDetailsView final : public BookingSession {
public:
    explicit OWBookingDetailsView(BookingGiven given);

    Published<std::optional<OWFlightAvailability>> owFlightAvailability{fields, "owFlightAvailability"};

protected:
    bool requestAvailability() override;
    bool hasAvailability() const override { return owFlightAvailability->has_value(); }
    std::optional<AvailabilitySummary> availabilitySummary() const override;
    bool documentsRequired() const override;
    std::vector<std::string> allowedDocuments() const override;
    std::optional<std::int64_t> totalCost() const override;
    std::optional<TravelDates> travelDates() const override;
    Dictionary flightSummary() const override;

private:
    OWFlightAvailabilityProvider flightAvailabilityProvider_;
    std::shared_ptr<OWFlightInformationView> information_;
    std::shared_ptr<OWBaggageInformationView> baggage_;
    Part informationPart_;
    Part baggagePart_;
    Part contactPart_;
    Part paymentPart_;
    Link confirmation_;
};

} // namespace ombrivane
