#include "booking/OWPessangerContactDetailView.h"

#include "booking/EmergencyContactInformationView.h"
#include "booking/PassengerType.h"
#include "booking/TravellerInformationView.h"

#include <algorithm>

namespace ombrivane {

OWPessangerContactDetailView::OWPessangerContactDetailView(ContactGiven given) :
    Screen("OWPessangerContactDetailView"),
    documentsRequired(fields, "documentsRequired", std::move(given.documentsRequired)),
    allowedDocuments(fields, "allowedDocuments", std::move(given.allowedDocuments)),
    isLoading(fields, "isLoading", given.isLoading),
    emergencyContact(fields, "emergencyContact", given.emergencyContact),
    documentList(fields, "documentList", given.documentList),
    passengersList(fields, "passengersList", given.passengersList),
    uniquePassengersList(fields, "uniquePassengersList", given.uniquePassengersList),
    travelDates_(std::move(given.travelDates)) {}

std::optional<std::string> OWPessangerContactDetailView::contactName() const {
    const auto& contact = emergencyContact.get();
    return contact ? std::optional(contact->name) : std::nullopt;
}

std::optional<std::string> OWPessangerContactDetailView::nameOf(const Uuid& slot) const {
    for (const Passenger& passenger : passengersList.get()) {
        if (passenger.id == slot) return passenger.firstName + " " + passenger.lastName;
    }
    return std::nullopt;
}

bool OWPessangerContactDetailView::isComplete(const Uuid& slot) const {
    const auto& passengers = passengersList.get();
    return std::any_of(passengers.begin(), passengers.end(), [&](const Passenger& passenger) {
        return passenger.id == slot && !passenger.dob.empty();
    });
}

std::int64_t OWPessangerContactDetailView::done() const {
    const auto& slots = uniquePassengersList.get();
    return (emergencyContact->has_value() ? 1 : 0) +
           std::count_if(slots.begin(), slots.end(), [this](const UniquePassanger& slot) {
               return isComplete(slot.id);
           });
}

std::shared_ptr<Screen> OWPessangerContactDetailView::makeLine(std::size_t index) {
    const UniquePassanger slot = uniquePassengersList->at(index);
    return std::make_shared<ContactLine>(
        "PassengerLine",
        [slot] {
            return said(Text::sessionPassenger,
                        {{"number", slot.count}, {"type", passengerTypeLabel(slot.type)}});
        },
        [this, slot] { return nameOf(slot.id); },
        [this, slot] { return isComplete(slot.id); },
        [this] { return marksMissing.get(); },
        [this, index] {
            tapped_ = index;
            travellerFormIsActive = true;
        },
        [this] { return !isLoading; });
}

std::shared_ptr<Screen> OWPessangerContactDetailView::makeContactForm() const {
    const auto& slots = uniquePassengersList.get();
    return std::make_shared<EmergencyContactInformationView>(slots.empty() ? Uuid::random()
                                                                           : slots.front().id,
                                                             "ADT",
                                                             allowedDocuments.get(),
                                                             emergencyContact,
                                                             passengersList);
}

std::shared_ptr<Screen> OWPessangerContactDetailView::makeTravellerForm() const {
    const UniquePassanger& slot = uniquePassengersList->at(tapped_);
    return std::make_shared<TravellerInformationView>(TravellerGiven{slot.id,
                                                                     slot.type,
                                                                     allowedDocuments.get(),
                                                                     documentsRequired.get(),
                                                                     travelDates_(),
                                                                     passengersList,
                                                                     documentList});
}

} // namespace ombrivane
