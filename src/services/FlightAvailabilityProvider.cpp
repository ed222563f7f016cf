#include "services/FlightAvailabilityProvider.h"

#include "platform/Platform.h"
#include "records/Encode.h"
#include "services/AvailabilityAnswer.h"
#include "services/Endpoints.h"
#include "services/FlightsSummarySlots.h"
#include "services/Frame.h"
#include "services/ItineraryBody.h"
#include "state/AppState.h"

namespace ombrivane {
namespace {

ServiceCall callWith(std::function<std::optional<std::string>()> body) {
    ServiceCall call;
    call.answerBytes = limits::lookupBytes;
    call.endpoint = endpoint::availability;
    call.body = std::move(body);
    return call;
}

/// An offer that cannot be written is not asked for, although what goes out is the JSON that it came as.
template <class Offer> void requireWritable(const Offer& offer) {
    Body().add("itinerary", encode(offer)).serialisedOrFail();
}

void print(const OWFlightAvailability& /*availability*/) {}
void print(const RTFlightAvailability& availability) {
    platform().diagnostics->print(encode(availability).dump());
}

} // namespace

template <class Trip>
void FlightAvailabilityProvider<Trip>::fetchAvailability(const std::string& itineraryType,
                                                         const AnyFlight& flight,
                                                         const Completion<Availability>& completion) const {
    const auto& offer = Trip::offerOf(flight);
    send<Availability>(
        callWith([&] {
            requireWritable(offer);
            Body body;
            body.add("user_type", AppState::shared().userType.get()).add("itinerary_type", itineraryType);
            addRawItinerary(body, offer.rawData);
            return body.serialisedOrFail();
        }),
        [](const Envelope& envelope) {
            auto availability = availabilityOf<typename Trip::Availability>(envelope);
            print(availability);
            storeFlightsSummary(availability.flightsSummary);
            return availability;
        },
        completion);
}

template class FlightAvailabilityProvider<OneWay>;
template class FlightAvailabilityProvider<RoundTrip>;

void RTFlightAvailabilityProvider::fetchAvailability(const std::string& itineraryType,
                                                     const AnyFlight& flight, const AnyFlight& returnFlight,
                                                     const Completion<Availability>& completion) const {
    const auto& departing = flight.oneWay();
    const auto& returning = returnFlight.oneWay();
    send<Availability>(
        callWith([&] {
            return Body()
                .add("user_type", AppState::shared().userType.get())
                .add("itinerary_type", itineraryType)
                .add("itinerary", encode(departing))
                .add("itinerary_return", encode(returning))
                .serialisedOrFail();
        }),
        [](const Envelope& envelope) { return availabilityOf<RTFlightAvailability>(envelope); },
        completion);
}

} // namespace ombrivane
