#include "services/OWRestrictionProvider.h"

#include "records/Encode.h"
#include "services/Body.h"
#include "services/RestrictionAnswer.h"
#include "state/AppState.h"

namespace ombrivane {

void OWRestrictionProvider::fetchRestrictions(
    const std::string& itineraryType, const AnyFlight& flight,
    const Completion<std::optional<std::string>>& completion) const {
    const auto& offer = flight.oneWay();
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

} // namespace ombrivane
