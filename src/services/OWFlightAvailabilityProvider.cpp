#include "services/OWFlightAvailabilityProvider.h"

#include "services/AvailabilityAnswer.h"
#include "services/Endpoints.h"
#include "services/FlightsSummarySlots.h"
#include "services/Frame.h"
#include "services/ItineraryBody.h"
#include "state/AppState.h"

namespace ombrivane {

void OWFlightAvailabilityProvider::fetchAvailability(
    const std::string& itineraryType, const AnyFlight& flight,
    const Completion<std::optional<OWFlightAvailability>>& completion) const {
    const auto& offer = flight.oneWay();
    ServiceCall call;
    call.answerBytes = limits::lookupBytes;
    call.endpoint = endpoint::availability;
    call.body = [&] {
        Body body;
        body.add("user_type", AppState::shared().userType.get()).add("itinerary_type", itineraryType);
        addRawItinerary(body, offer.rawData);
        return body.serialisedOrFail();
    };
    send<std::optional<OWFlightAvailability>>(
        call,
        [](const Envelope& envelope) {
            auto availability = availabilityOf<OWFlightAvailability>(envelope);
            storeFlightsSummary(availability.flightsSummary);
            return availability;
        },
        completion);
}

} // namespace ombrivane
