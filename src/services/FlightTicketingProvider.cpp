#include "services/FlightTicketingProvider.h"

#include "services/Body.h"
#include "services/Endpoints.h"
#include "services/Frame.h"
#include "state/AppState.h"

namespace ombrivane {

void FlightTicketingProvider::issueTicket(
    const std::optional<BookingSummary>& bookingSummary,
    const Completion<std::optional<FlightTicketing>>& completion) const {
    const BookingSummary summary = bookingSummary.value_or(BookingSummary());
    ServiceCall call;
    call.endpoint = endpoint::ticketIssue;
    call.body = [&] {
        return Body()
            .add("user_type", AppState::shared().userType.get())
            .add("bookingReferenceID", summary.bookingReferenceID)
            .add("PNR", summary.pnr)
            .add("tripType", summary.tripType)
            .add("currency", summary.currency)
            .serialised();
    };
    send<std::optional<FlightTicketing>>(
        call, [](const Envelope& envelope) { return envelope.record<FlightTicketing>(); }, completion);
}

} // namespace ombrivane
