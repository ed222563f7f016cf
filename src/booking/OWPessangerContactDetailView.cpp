#include "booking/OWPessangerContactDetailView.h"

#include "booking/EmergencyContactInformationView.h"
#include "booking/TravellerInformationView.h"

namespace ombrivane {
namespace {

constexpr const char* toDo = "Fill the passenger details";

} // namespace

ContactLine::ContactLine(std::string_view lineName, std::function<std::string()> titleText,
                         std::function<std::optional<std::string>()> filledIn, std::function<void()> open,
                         std::function<bool()> isReady) :
    Screen(lineName),
    title(fields, "title", std::move(titleText)),
    detail(fields, "detail", [filledIn] { return filledIn().value_or(toDo); }),
    isFilled(fields, "isFilled", [filledIn] { return filledIn().has_value(); }),
    tap(*this, "tap", std::move(open), std::move(isReady)) {}

OWPessangerContactDetailView::OWPessangerContactDetailView(ContactGiven given) :
    Screen("OWPessangerContactDetailView"),
    documentsRequired(fields, "documentsRequired", std::move(given.documentsRequired)),
    allowedDocuments(fields, "allowedDocuments", std::move(given.allowedDocuments)),
    isLoading(fields, "isLoading", given.isLoading),
    emergencyContact(fields, "emergencyContact", given.emergencyContact),
    documentList(fields, "documentList", given.documentList),
    passengersList(fields, "passengersList", given.passengersList),
    uniquePassengersList(fields, "uniquePassengersList", given.uniquePassengersList),
    contactTitle(fields, "contactTitle", constant("Passenger Contact Details")),
    passengerTitle(fields, "passengerTitle", constant("Passenger Information")),
    contactLine(std::make_shared<ContactLine>(
        "ContactLine", constant("Emergency contact"),
        [this]() -> std::optional<std::string> {
            const auto& contact = emergencyContact.get();
            return contact ? std::optional(contact->name) : std::nullopt;
        },
        [this] { contactFormIsActive = true; }, [this] { return !isLoading; })),
    rows(
        *this, "rows", [this] { return uniquePassengersList->size(); },
        [this](std::size_t index) {
            const UniquePassanger slot = uniquePassengersList->at(index);
            return std::make_shared<ContactLine>(
                "PassengerLine",
                [slot] { return "Passenger " + std::to_string(slot.count) + " - " + slot.type; },
                [this, slot] { return nameOf(slot.id); },
                [this, index] {
                    tapped_ = index;
                    travellerFormIsActive = true;
                },
                [this] { return !isLoading; });
        },
        [this] { return identitiesOf(uniquePassengersList.get(), &UniquePassanger::id); }),
    travelDates_(std::move(given.travelDates)),
    contactForm_(*this, Presentation::push, contactFormIsActive,
                 [this] {
                     const auto& slots = uniquePassengersList.get();
                     return std::make_shared<EmergencyContactInformationView>(
                         slots.empty() ? Uuid::random() : slots.front().id,
                         "ADT",
                         allowedDocuments.get(),
                         emergencyContact,
                         passengersList);
                 }),
    travellerForm_(*this, Presentation::push, travellerFormIsActive, [this] {
        const UniquePassanger& slot = uniquePassengersList->at(tapped_);
        return std::make_shared<TravellerInformationView>(TravellerGiven{slot.id,
                                                                         slot.type,
                                                                         allowedDocuments.get(),
                                                                         documentsRequired.get(),
                                                                         travelDates_(),
                                                                         passengersList,
                                                                         documentList});
    }) {}

std::optional<std::string> OWPessangerContactDetailView::nameOf(const Uuid& slot) const {
    for (const Passenger& passenger : passengersList.get()) {
        if (passenger.id == slot) return passenger.firstName + " " + passenger.lastName;
    }
    return std::nullopt;
}

} // namespace ombrivane
