#include "services/RTFlightAvailabilityProvider.h"

#include "platform/Platform.h"
#include "records/Encode.h"
#include "services/AvailabilityAnswer.h"
#include "services/Endpoints.h"
#include "services/FlightsSummarySlots.h"
#include "services/Frame.h"
#include "services/ItineraryBody.h"
#include "state/AppState.h"

namespace ombrivane {

void RTFlightAvailabilityProvider::fetchAvailability(
    const std::string& itineraryType, const AnyFlight& flight,
    const Completion<std::optional<RTFlightAvailability>>& completion) const {
    const auto& offer = flight.roundTrip();
    ServiceCall call;
    call.answerBytes = limits::lookupBytes;
    call.endpoint = endpoint::availability;
    call.body = [&] {
        Body body;
        body.add("user_type", AppState::shared().userType.get()).add("itinerary_type", itineraryType);
        addRawItinerary(body, offer.rawData);
        return body.serialisedOrFail();
    };
    send<std::optional<RTFlightAvailability>>(
        call,
        [](const Envelope& envelope) {
            auto availability = availabilityOf<RTFlightAvailability>(envelope);
            platform().diagnostics->print(encode(availability).dump());
            storeFlightsSummary(availability.flightsSummary);
            return availability;
        },
        completion);
}

void RTFlightAvailabilityProvider::fetchAvailability(
    const std::string& itineraryType, const AnyFlight& flight, const AnyFlight& returnFlight,
    const Completion<std::optional<RTFlightAvailability>>& completion) const {
    const auto& departing = flight.oneWay();
    const auto& returning = returnFlight.oneWay();
    ServiceCall call;
    call.answerBytes = limits::lookupBytes;
    call.endpoint = endpoint::availability;
    call.body = [&] {
        return Body()
            .add("user_type", AppState::shared().userType.get())
            .add("itinerary_type", itineraryType)
            .add("itinerary", encode(departing))
            .add("itinerary_return", encode(returning))
            .serialisedOrFail();
    };
    send<std::optional<RTFlightAvailability>>(
        call,
        [](const Envelope& envelope) { return availabilityOf<RTFlightAvailability>(envelope); },
        completion);
}

} // namespace ombrivane
