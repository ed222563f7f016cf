#include "sandbox/service/Documents.h"

#include "sandbox/wire/Refusal.h"
#include "sandbox/world/Png.h"

#include <fmt/format.h>

namespace ombrivane::sandbox {

namespace {

/// Goes through the parts in their order.
class FormWalk {
public:
    explicit FormWalk(const std::vector<FormPart>& form) : form_(form) {}

    [[nodiscard]] bool isAt(const std::string& name) const {
        return position_ < form_.size() && form_[position_].name == name;
    }

    const FormPart& take(const std::string& name) {
        if (!isAt(name)) throw Refusal(fmt::format("Part {} of the form must be {}.", position_ + 1, name));
        return form_[position_++];
    }

    std::string takeText(const std::string& name) {
        const FormPart& part = take(name);
        if (part.fileName) throw Refusal(fmt::format("The part {} must be text.", name));
        return std::string(part.data);
    }

    void expectEnd() const {
        if (position_ < form_.size())
            throw Refusal(fmt::format("The part {} does not belong there.", form_[position_].name));
    }

private:
    const std::vector<FormPart>& form_;
    std::size_t position_ = 0;
};

void checkImage(const FormPart& part) {
    if (part.fileName != "imagename.png") throw Refusal(fmt::format("{} must be imagename.png.", part.name));
    if (part.contentType != "image/png") throw Refusal(fmt::format("{} must be image/png.", part.name));
    const std::string fault = pngFault(part.data);
    if (!fault.empty()) throw Refusal(fmt::format("{} is no PNG picture: {}.", part.name, fault));
}

} // namespace

Json acceptDocuments(const std::vector<FormPart>& form, const std::string& userType, Bookings& bookings) {
    FormWalk walk(form);
    if (walk.takeText("user_type") != userType) throw Refusal("The user_type is not the one of the token.");
    const std::string reference = walk.takeText("bookingReferenceID");
    if (reference.empty()) throw Refusal("The bookingReferenceID field is required.");
    Booking& booking = bookings.reserved(reference);
    Reservation& reservation = booking.reservations.back();
    for (const Traveller& traveller : reservation.travellers) {
        const std::string type = walk.takeText(fmt::format("documentType[{}]", traveller.id));
        if (type != traveller.documentType)
            throw Refusal(fmt::format("documentType[{}] is not the type of the reservation.", traveller.id));
        const std::string image = fmt::format("documentImage[{}]", traveller.id);
        if (booking.documents.required || walk.isAt(image)) checkImage(walk.take(image));
    }
    walk.expectEnd();
    if (reservation.state == BookingState::Reserved) reservation.state = BookingState::Documented;
    return {{"bookingSummary", bookingSummary(booking, reservation, true)}};
}

} // namespace ombrivane::sandbox
