#include "services/PassengerDocumentsProvider.h"

#include "platform/Platform.h"
#include "services/Endpoints.h"
#include "services/Frame.h"
#include "services/MultipartForm.h"
#include "state/AppState.h"

namespace ombrivane {
namespace {

std::string pngOf(const Image& image) {
    auto png = platform().images->png(image);
    if (!png) fatalFault("a document picture has no PNG form");
    return *std::move(png);
}

} // namespace

void PassengerDocumentsProvider::upload(const std::vector<Passenger>& passengers,
                                        const std::vector<std::optional<Image>>& documents,
                                        const std::vector<FlightBookingPassenger>& bookedPassengers,
                                        const std::string& bookingReferenceID,
                                        const Completion<std::optional<FlightBooking>>& completion) const {
    MultipartForm form;
    ServiceCall call;
    call.endpoint = endpoint::documents;
    call.contentType = form.contentType();
    call.wholeInterval = limits::upload;
    call.body = [&]() -> std::optional<std::string> {
        form.addText("user_type", AppState::shared().userType.get());
        form.addText("bookingReferenceID", bookingReferenceID);
        for (std::size_t i = 0; i < bookedPassengers.size(); ++i) {
            if (i >= passengers.size() || i >= documents.size()) {
                fatalFault("the answer books more passengers than there are documents for");
            }
            const std::string& id = bookedPassengers[i].passengerID;
            form.addText("documentType[" + id + "]", passengers[i].documentType);
            if (documents[i]) {
                form.addFile("documentImage[" + id + "]", "imagename.png", "image/png", pngOf(*documents[i]));
            }
        }
        return form.finished();
    };
    send<std::optional<FlightBooking>>(
        call,
        [](const Envelope& envelope) { return envelope.record<FlightBooking>("bookingSummary"); },
        completion);
}

} // namespace ombrivane
