#include "services/RTRestrictionProvider.h"

#include "records/Encode.h"
#include "services/Body.h"
#include "services/RestrictionAnswer.h"
#include "state/AppState.h"

namespace ombrivane {

void RTRestrictionProvider::fetchRestrictions(
    const std::string& itineraryType, const AnyFlight& flight,
    const Completion<std::optional<std::string>>& completion) const {
    const auto& offer = flight.roundTrip();
    sendForRestrictions(
        [&] {
            return Body()
                .add("user_type", AppState::shared().userType.get())
                .add("itinerary_type", itineraryType)
                .add("itinerary", encode(offer))
                .serialisedOrFail();
        },
        completion);
}

void RTRestrictionProvider::fetchRestrictions(
    const std::string& itineraryType, const AnyFlight& flight, const AnyFlight& returnFlight,
    const Completion<std::optional<std::string>>& completion) const {
    const auto& departing = flight.oneWay();
    const auto& returning = returnFlight.oneWay();
    sendForRestrictions(
        [&] {
            return Body()
                .add("itinerary_type", itineraryType)
                .add("itinerary", encode(departing))
                .add("itinerary_return", encode(returning))
                .serialisedOrFail();
        },
        completion);
}

} // namespace ombrivane
