#include "booking/TravellerInformationView.h"

#include "booking/DocumentType.h"
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

/// The greatest age on the last day of travel.
int oldest(const std::string& type) {
    if (type == "Infant") return 2;
    return type == "Child" ? 12 : 100;
}

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

std::string shownDate(const std::optional<Day>& date) {
    return date ? formatDay(*date, dayPattern::form) : "";
}

Day pickedDate(const std::string& text) {
    const auto day = Day::parse(text);
    if (!day) throw KeyedError("wants a day such as \"2026-11-21\"");
    return *day;
}

} // namespace

DocumentTypeTile::DocumentTypeTile(const std::string& wireCode, const Field<std::string>& chosen,
                                   std::function<bool()> isShown) :
    Screen("DocumentTypeTile"),
    label(fields, "label", [wireCode] { return documentLabel(wireCode); }),
    isSelected(fields, "isSelected", [this, wireCode] { return documentType.get() == wireCode; }),
    tap(
        *this, "tap", [this, wireCode] { documentType = wireCode; }, std::move(isShown)),
    documentType(fields, "documentType", chosen) {}

TravellerInformationView::TravellerInformationView(TravellerGiven given) :
    Screen("TravellerInformationView"),
    uuid(fields, "uuid", given.uuid),
    type(fields, "type", given.type),
    allowedDocuments(fields, "allowedDocuments", std::move(given.allowedDocuments)),
    documentsRequired(fields, "documentsRequired", given.documentsRequired),
    passengersList(fields, "passengersList", given.passengersList),
    documentList(fields, "documentList", given.documentList),
    minPpDate(fields, "minPpDate"),
    minDOB(fields, "minDOB"),
    title(fields, "title", constant("Traveller Information")),
    message(fields, "message", constant("Please fill the marked fields.")),
    saveText(fields, "saveText", constant("Save Details")),
    nationality(fields, "nationality", [this] { return TIVM.nationality.get(); }),
    dateOfBirthText(fields, "dateOfBirthText", [this] { return shownDate(TIVM.dateOfBirth); }),
    expiryDateText(fields, "expiryDateText", [this] { return shownDate(TIVM.expiryDate); }),
    showsDocuments(fields, "showsDocuments", [this] { return documentsRequired.get(); }),
    showsExpiryDate(fields, "showsExpiryDate",
                    [this] { return documentsRequired && TIVM.documentType.get() == passportType; }),
    latestDateOfBirth(fields, "latestDateOfBirth", [] { return calendar::today(); }),
    nameColor(fields, "nameColor", [this] { return TIVM.nameColor(); }),
    surnameColor(fields, "surnameColor", [this] { return TIVM.surnameColor(); }),
    emailColor(fields, "emailColor", [this] { return TIVM.emailColor(); }),
    dateOfBirthColor(fields, "dateOfBirthColor", [this] { return TIVM.dateOfBirthColor(); }),
    documentNumberColor(fields, "documentNumberColor", [this] { return TIVM.documentNumberColor(); }),
    expiryDateColor(fields, "expiryDateColor", [this] { return TIVM.expiryDateColor(); }),
    documentImageColor(fields, "documentImageColor", [this] { return TIVM.documentImageColor(); }),
    documentTypes(
        *this, "documentTypes", [this] { return allowedDocuments->size(); },
        [this](std::size_t index) {
            return std::make_shared<DocumentTypeTile>(
                allowedDocuments->at(index), TIVM.documentType, [this] { return documentsRequired.get(); });
        }),
    typeName(*this, "typeName", [this](const std::string& text) { TIVM.name = text; }),
    typeSurname(*this, "typeSurname", [this](const std::string& text) { TIVM.surname = text; }),
    typeEmail(*this, "typeEmail", [this](const std::string& text) { TIVM.email = text; }),
    typeDocumentNumber(
        *this, "typeDocumentNumber", [this](const std::string& text) { TIVM.documentNumber = text; },
        [this] { return showsDocuments.get(); }),
    chooseGender(*this, "chooseGender",
                 [this](const std::string& choice) {
                     if (choice == "Male" || choice == "Female") TIVM.gender = choice;
                 }),
    pickDateOfBirth(*this, "pickDateOfBirth",
                    [this](const std::string& day) {
                        const Day born = pickedDate(day);
                        if (born >= minDOB && born <= latestDateOfBirth.get()) TIVM.dateOfBirth = born;
                    }),
    pickExpiryDate(
        *this, "pickExpiryDate",
        [this](const std::string& day) {
            const Day expires = pickedDate(day);
            if (expires >= minPpDate) TIVM.expiryDate = expires;
        },
        [this] { return showsExpiryDate.get(); }),
    openPhotoPicker(
        *this, "openPhotoPicker", [this] { TIVM.isShowingPhotoPicker = true; },
        [this] { return showsDocuments.get(); }),
    close(*this, "close", [this] { dismiss(); }),
    save(*this, "save", [this] { saveDetails(); }),
    model_(fields, "TIVM", TIVM.fields),
    photoPicker_(*this, Presentation::sheet, TIVM.isShowingPhotoPicker,
                 [this] { return std::make_shared<PhotoPicker>(TIVM.documentImage); }) {
    setLimits(given.travelDates);
    TIVM.documentType = allowedDocuments->empty() ? std::string() : allowedDocuments->front();
    TIVM.type = given.type;
    TIVM.documentsRequired = given.documentsRequired;
    TIVM.nationality = AppState::shared().nationalityText.get();
}

void TravellerInformationView::setLimits(const std::optional<TravelDates>& dates) {
    const TravelDates held = heldDates(dates);
    minDOB = held.last.plusYears(-oldest(type));
    minPpDate = held.first.plusMonths(passportMonths);
}

std::optional<std::size_t> TravellerInformationView::position() const {
    const auto& list = passengersList.get();
    const auto found = std::find_if(
        list.begin(), list.end(), [this](const Passenger& passenger) { return passenger.id == uuid.get(); });
    if (found == list.end()) return std::nullopt;
    return static_cast<std::size_t>(found - list.begin());
}

void TravellerInformationView::load() {
    const auto saved = position();
    if (!saved) return;
    const Passenger& passenger = passengersList->at(*saved);
    const auto& documents = documentList.get();
    TIVM.name = passenger.firstName;
    TIVM.surname = passenger.lastName;
    TIVM.email = passenger.email;
    TIVM.gender = capitalised(passenger.gender);
    TIVM.dateOfBirth = Day::parse(passenger.dob);
    TIVM.documentType = passenger.documentType;
    TIVM.documentNumber = passenger.documentNumber.value_or("");
    TIVM.expiryDate = Day::parse(passenger.documentExpiryDate.value_or(""));
    TIVM.documentImage = *saved < documents.size() ? documents.at(*saved) : std::nullopt;
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
    auto passengers = passengersList.get();
    auto documents = documentList.get();
    if (const auto saved = position()) {
        passengers.at(*saved) = compose();
        if (documents.empty()) {
            documents.push_back(TIVM.documentImage);
        } else {
            documents.resize(std::max(documents.size(), *saved + 1));
            documents.at(*saved) = TIVM.documentImage;
        }
    } else {
        // A passenger written by the contact form has no entry among the documents: each position of one list
        // belongs to the same position of the other.
        documents.resize(std::max(documents.size(), passengers.size()));
        passengers.push_back(compose());
        documents.push_back(TIVM.documentImage);
    }
    passengersList = std::move(passengers);
    documentList = std::move(documents);
    dismiss();
}

} // namespace ombrivane
