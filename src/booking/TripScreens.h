#pragma once

#include "records/Trip.h"
#include "services/FlightAvailabilityProvider.h"

namespace ombrivane {

/// What tells the booking screens of one kind of trip from those of the other.
template <class Trip> struct TripScreens;

template <> struct TripScreens<OneWay> {
    using AvailabilityProvider = OWFlightAvailabilityProvider;
    static constexpr const char* session = "OWBookingDetailsView";
    static constexpr const char* information = "OWFlightInformationView";
    static constexpr const char* baggage = "OWBaggageInformationView";
    static constexpr const char* details = "OWFlightDetailsView";
    static constexpr const char* confirmation = "OWBookingConfirmationView";
    static constexpr const char* availabilityKey = "owFlightAvailability";
    static constexpr const char* routeImage = "toIcon";
};

template <> struct TripScreens<RoundTrip> {
    using AvailabilityProvider = RTFlightAvailabilityProvider;
    static constexpr const char* session = "RTBookingDetailsView";
    static constexpr const char* information = "RTFlightInformationView";
    static constexpr const char* baggage = "RTBaggageInformationView";
    static constexpr const char* details = "RTFlightDetailsView";
    static constexpr const char* confirmation = "RTBookingConfirmationView";
    static constexpr const char* availabilityKey = "rtFlightAvailability";
    static constexpr const char* routeImage = "exchangeIcon";
};

} // namespace ombrivane
