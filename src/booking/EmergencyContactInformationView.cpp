#include "booking/EmergencyContactInformationView.h"

#include "base/Fault.h"
#include "state/AppState.h"

#include <algorithm>

namespace ombrivane {
namespace {

/// The pieces between single blanks, empty ones included.
std::vector<std::string> pieces(const std::string& text) {
    std::vector<std::string> result;
    std::size_t start = 0;
    for (auto blank = text.find(' '); blank != std::string::npos; blank = text.find(' ', start)) {
        result.push_back(text.substr(start, blank - start));
        start = blank + 1;
    }
    result.push_back(text.substr(start));
    return result;
}

} // namespace

EmergencyContactInformationView::EmergencyContactInformationView(
    const Uuid& slot, std::string typeCode, std::vector<std::string> documents,
    const Field<std::optional<EmergencyContact>>& contact, const Field<std::vector<Passenger>>& passengers) :
    Screen("EmergencyContactInformationView"),
    uuid(fields, "uuid", slot),
    type(fields, "type", std::move(typeCode)),
    allowedDocuments(fields, "allowedDocuments", std::move(documents)),
    emergencyContact(fields, "emergencyContact", contact),
    passengersList(fields, "passengersList", passengers) {}

void EmergencyContactInformationView::load() {
    const auto& contact = emergencyContact.get();
    // Without a contact, blanks enough for two empty pieces.
    const auto words = pieces(contact ? contact->name : "   ");
    if (words.size() < 2) fatalFault("the contact's name has no blank");
    ECIVM.name = words[0];
    ECIVM.surname = words[1];
    ECIVM.email = contact ? contact->email : "";
    ECIVM.phoneNumber = contact ? contact->contact : "";
    ECIVM.isPassanger = contact && contact->isPassenger;
}

void EmergencyContactInformationView::refuse(Text text) {
    message = said(text);
    ECIVM.showSnackBar = true;
}

void EmergencyContactInformationView::saveDetails() {
    if (ECIVM.validate()) return refuse(Text::fillMarkedFields);
    if (ECIVM.numberIsShort()) return refuse(Text::contactInvalidNumber);
    EmergencyContact contact;
    contact.contact = ECIVM.phoneNumber;
    contact.email = ECIVM.email;
    contact.name = ECIVM.name.get() + " " + ECIVM.surname.get();
    contact.isPassenger = ECIVM.isPassanger;
    emergencyContact = contact;
    if (ECIVM.isPassanger) writePassenger();
    dismiss();
}

/// The person becomes the passenger of the first slot: a new one without a date of birth, or the one of that
/// slot, whose date of birth and document stay. No other passenger is touched.
void EmergencyContactInformationView::writePassenger() {
    auto passengers = passengersList.get();
    auto first = std::find_if(passengers.begin(), passengers.end(), [this](const Passenger& passenger) {
        return passenger.id == uuid.get();
    });
    if (first == passengers.end()) {
        first = passengers.emplace(first);
        Passenger& stub = *first;
        stub.id = uuid;
        stub.documentIssuedDateSerialNo = "";
        stub.documentNumber = "";
        stub.documentType = allowedDocuments->empty() ? std::string() : allowedDocuments->front();
        stub.gender = "Male";
    }
    first->firstName = ECIVM.name;
    first->lastName = ECIVM.surname;
    first->email = ECIVM.email;
    first->nationality = AppState::shared().nationality;
    first->type = type;
    passengersList = std::move(passengers);
}

} // namespace ombrivane
