#include "services/DownloadTicketProvider.h"

#include "platform/Platform.h"
#include "services/Body.h"
#include "services/Endpoints.h"
#include "services/Frame.h"
#include "state/AppState.h"

namespace ombrivane {

void DownloadTicketProvider::download(const std::string& ticketReferenceID,
                                      const Completion<std::string>& completion) const {
    ServiceCall call;
    call.endpoint = endpoint::ticketDownload;
    call.body = [&] {
        auto body = Body()
                        .add("user_type", AppState::shared().userType.get())
                        .add("ticketReferenceID", ticketReferenceID)
                        .serialised();
        platform().diagnostics->print(body.value_or(""));
        return body;
    };
    send<std::string>(
        call, [](const Envelope& envelope) { return envelope.text("eticketLink"); }, completion);
}

} // namespace ombrivane
