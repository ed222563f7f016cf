#include "services/PassengerDocumentsProvider.h"

#include "base/ErrorTexts.h"
#include "platform/Platform.h"
#include "services/Endpoints.h"
#include "services/Frame.h"
#include "services/MultipartForm.h"
#include "state/AppState.h"

#include <algorithm>

namespace ombrivane {
namespace {

/// @throws Error for a picture that cannot be written
std::string pngOf(ImageCodec& images, const DocumentPicture& picture) {
    auto png = picture.jpeg ? images.pngOfJpeg(*picture.jpeg, documentLimits()) : std::nullopt;
    if (!png) throw Error{errorDomain::encoding, 0, errorText::documentNotSent, "a picture has no PNG form"};
    return *std::move(png);
}

} // namespace

void PassengerDocumentsProvider::upload(const std::vector<Passenger>& passengers,
                                        const std::vector<std::optional<DocumentPicture>>& documents,
                                        const std::vector<FlightBookingPassenger>& bookedPassengers,
                                        const std::string& bookingReferenceID,
                                        const Completion<std::optional<FlightBooking>>& completion) const {
    MultipartForm form;
    ServiceCall call;
    call.endpoint = endpoint::documents;
    call.contentType = form.contentType();
    call.wholeInterval = limits::upload;
    form.addText("user_type", AppState::shared().credentials().userType);
    form.addText("bookingReferenceID", bookingReferenceID);
    call.pieces = [form, passengers, documents, bookedPassengers, images = platform().images]() mutable {
        // The answer may book more than were sent: nothing is known of those.
        const auto known = std::min(bookedPassengers.size(), passengers.size());
        for (std::size_t i = 0; i < known; ++i) {
            const std::string& id = bookedPassengers[i].passengerID;
            form.addText("documentType[" + id + "]", passengers[i].documentType);
            if (i < documents.size() && documents[i]) {
                form.addFile(
                    "documentImage[" + id + "]", "imagename.png", "image/png", pngOf(*images, *documents[i]));
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
