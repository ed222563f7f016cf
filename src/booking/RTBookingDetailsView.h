#pragma once

#include "booking/BaggageInformationView.h"
#include "booking/BookingSession.h"
#include "booking/FlightInformationView.h"
#include "records/FlightAvailability.h"
#include "services/RTFlightAvailabilityProvider.h"

#include <memory>

namespace ombrivane {

/// The booking session of a round trip, international or of two domestic offers.
class RTBookingDetailsView final : public BookingSession {
public:
    explicit RTBookingDetailsView(BookingGiven given);

    Published<std::optional<RTFlightAvailability>> rtFlightAvailability{fields, "rtFlightAvailability"};

protected:
    bool requestAvailability() override;
    bool hasAvailability() const override { return rtFlightAvailability->has_value(); }
    std::optional<AvailabilitySummary> availabilitySummary() const override;
    bool documentsRequired() const override;
    std::vector<std::string> allowedDocuments() const override;
    std::optional<std::int64_t> totalCost() const override;
    std::optional<TravelDates> travelDates() const override;
    Dictionary flightSummary() const override;
    void willUpload() const override;

private:
    RTFlightAvailabilityProvider flightAvailabilityProvider_;
    std::shared_ptr<RTFlightInformationView> information_;
    std::shared_ptr<RTBaggageInformationView> baggage_;
    Part informationPart_;
    Part baggagePart_;
    Part contactPart_;
    Part paymentPart_;
    Link confirmation_;
};

} // namespace ombrivane
