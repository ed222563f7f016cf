#include "services/AirportSearchProvider.h"

#include "services/Endpoints.h"
#include "services/Frame.h"
#include "state/AppState.h"

namespace ombrivane {

void AirportSearchProvider::searchAirports(const std::string& query,
                                           const Completion<std::vector<Airport>>& completion) const {
    ServiceCall call;
    call.answerBytes = limits::lookupBytes;
    call.method = "GET";
    call.endpoint = endpoint::airportSearch;
    call.query = "?q=" + query + "&user_type=" + AppState::shared().userType.get();
    send<std::vector<Airport>>(
        call, [](const Envelope& envelope) { return envelope.records<Airport>("airports"); }, completion);
}

} // namespace ombrivane
