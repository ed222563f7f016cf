#include "services/RestrictionProvider.h"

#include "records/Encode.h"
#include "services/Body.h"
#include "services/Endpoints.h"
#include "services/Frame.h"
#include "state/AppState.h"

#include <functional>

namespace ombrivane {
namespace {

/// The answer tells `hasRestrictions` and `message` beside `success`.
void sendForRestrictions(std::function<std::optional<std::string>()> body,
                         const Completion<std::optional<std::string>>& completion) {
    ServiceCall call;
    call.answerBytes = limits::lookupBytes;
    call.endpoint = endpoint::restrictions;
    call.body = std::move(body);
    send<std::optional<std::string>>(
        call,
        [](const Envelope& envelope) -> std::optional<std::string> {
            if (!envelope.topLevelFlag("hasRestrictions")) return std::nullopt;
            return envelope.topLevelText("message");
        },
        completion);
}

} // namespace

template <class Trip>
void RestrictionProvider<Trip>::fetchRestrictions(
    const std::string& itineraryType, const AnyFlight& flight,
    const Completion<std::optional<std::string>>& completion) const {
    const auto& offer = Trip::offerOf(flight);
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

template class RestrictionProvider<OneWay>;
template class RestrictionProvider<RoundTrip>;

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
