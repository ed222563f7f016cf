#include "booking/TravellerInformationView.h"

#include "booking/DocumentType.h"
#include "booking/PassengerType.h"
#include "dates/Calendar.h"
#include "dates/DateFormatter.h"
#include "images/PhotoPicker.h"
#include "services/FlightsSummarySlots.h"
#include "state/AppState.h"

#include <algorithm>
#include <cctype>

namespace ombrivane {
namespace {

constexpr int passportMonths = 6;

/// Of the session's own availability, else of the last one that the process has seen.
TravelDates heldDates(const std::optional<TravelDates>& session) {
    if (session) return *session;
    if (const auto oneWay = owFlightsSummary()) return travelDatesOf(*oneWay);
    if (const auto roundTrip = rtFlightsSummary()) return travelDatesOf(*roundTrip);
    fatalFault("a traveller form was opened without an availability");
}

std::string capitalised(std::string text) {
    if (!text.empty())
        text.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
    return text;
}

Day pickedDate(const std::string& text) {
    const auto day = Day::parse(text);
    if (!day) throw KeyedError("wants a day such as \"2026-11-21\"");
    return *day;
}

} // namespace

TravellerInformationView::TravellerInformationView(TravellerGiven given) :
    Screen("TravellerInformationView"),
    uuid(fields, "uuid", given.uuid),
    type(fields, "type", given.type),
    allowedDocuments(fields, "allowedDocuments", std::move(given.allowedDocuments)),
    documentsRequired(fields, "documentsRequired", given.documentsRequired),
    passengersList(fields, "passengersList", given.passengersList),
    documentList(fields, "documentList", given.documentList) {
    setLimits(given.travelDates);
    TIVM.documentType = allowedDocuments->empty() ? std::string() : allowedDocuments->front();
    TIVM.type = given.type;
    TIVM.documentsRequired = given.documentsRequired;
    TIVM.nationality = AppState::shared().nationalityText.get();
}

std::string TravellerInformationView::shownDate(const std::optional<Day>& date) {
    return date ? formatDay(*date, dayPattern::form) : "";
}

std::shared_ptr<Screen> TravellerInformationView::makeTile(std::size_t index) {
    return std::make_shared<DocumentTypeTile>(
        allowedDocuments->at(index), TIVM.documentType, [this] { return documentsRequired.get(); });
}

std::shared_ptr<Screen> TravellerInformationView::makePhotoPicker() {
    return std::make_shared<PhotoPicker>(TIVM.documentImage);
}

void TravellerInformationView::takeGender(const std::string& choice) {
    if (choice == "Male" || choice == "Female") TIVM.gender = choice;
}

void TravellerInformationView::takeDateOfBirth(const std::string& day) {
    const Day born = pickedDate(day);
    if (born >= minDOB && born <= latestDateOfBirth.get()) TIVM.dateOfBirth = born;
}

void TravellerInformationView::takeExpiryDate(const std::string& day) {
    const Day expires = pickedDate(day);
    if (expires >= minPpDate) TIVM.expiryDate = expires;
}

void TravellerInformationView::setLimits(const std::optional<TravelDates>& dates) {
    const TravelDates held = heldDates(dates);
    minDOB = held.last.plusYears(-oldestAge(type));
    minPpDate = held.first.plusMonths(passportMonths);
}

void TravellerInformationView::load() {
    const auto saved = travellers_.position(uuid);
    if (!saved) return;
    const Passenger& passenger = passengersList->at(*saved);
    TIVM.name = passenger.firstName;
    TIVM.surname = passenger.lastName;
    TIVM.email = passenger.email;
    TIVM.gender = capitalised(passenger.gender);
    TIVM.dateOfBirth = Day::parse(passenger.dob);
    TIVM.documentType = passenger.documentType;
    TIVM.documentNumber = passenger.documentNumber.value_or("");
    TIVM.expiryDate = Day::parse(passenger.documentExpiryDate.value_or(""));
    TIVM.documentImage = travellers_.document(*saved);
}

Passenger TravellerInformationView::compose() const {
    Passenger passenger;
    passenger.id = uuid;
    passenger.dob = TIVM.dateOfBirth.get()->text();
    if (const auto& expiry = TIVM.expiryDate.get()) passenger.documentExpiryDate = expiry->text();
    passenger.documentIssuedDateSerialNo = "";
    if (!TIVM.documentNumber->empty()) passenger.documentNumber = TIVM.documentNumber.get();
    passenger.documentType = TIVM.documentType;
    passenger.firstName = TIVM.name;
    passenger.gender = TIVM.gender;
    passenger.lastName = TIVM.surname;
    passenger.email = TIVM.email;
    passenger.nationality = AppState::shared().nationality;
    passenger.type = TIVM.passengerTypeCode();
    return passenger;
}

void TravellerInformationView::saveDetails() {
    if (TIVM.validate()) {
        TIVM.showSnackBar = true;
        return;
    }
    travellers_.put(compose(), TIVM.documentImage);
    dismiss();
}

} // namespace ombrivane
