#include "services/FlightBookingProvider.h"

#include "records/Encode.h"
#include "services/Body.h"
#include "services/Endpoints.h"
#include "services/Frame.h"
#include "state/AppState.h"
#include "words/Words.h"

namespace ombrivane {
namespace {

Error notEncodable() {
    return {errorDomain::encoding,
            0,
            said(Text::errorBookingNotSent),
            "availabilitySummary: encodes to no object"};
}

} // namespace

void FlightBookingProvider::reserve(const std::vector<Passenger>& passengers,
                                    const std::optional<AvailabilitySummary>& availabilitySummary,
                                    const EmergencyContact& emergencyContact,
                                    const Completion<std::optional<FlightBooking>>& completion) const {
    ServiceCall call;
    call.endpoint = endpoint::reservation;
    call.body = [&]() -> std::optional<std::string> {
        if (!availabilitySummary) {
            reportFailedCall(endpoint::reservation, notEncodable());
            completion.fail(notEncodable());
            return std::nullopt;
        }
        return Body()
            .add("user_type", AppState::shared().credentials().userType)
            .add("availabilitySummary", encode(*availabilitySummary))
            .add("emergencyContact", encode(emergencyContact))
            .add("passengers", Encoder<std::vector<Passenger>>::encode(passengers))
            .serialised();
    };
    send<std::optional<FlightBooking>>(
        call,
        [](const Envelope& envelope) { return envelope.record<FlightBooking>("bookingSummary"); },
        completion);
}

} // namespace ombrivane
