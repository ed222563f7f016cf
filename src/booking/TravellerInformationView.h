#pragma once

#include "booking/DocumentType.h"
#include "booking/TravelDates.h"
#include "booking/TravellerInformationViewModel.h"
#include "booking/Travellers.h"
#include "dates/Calendar.h"
#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "parts/CustomSnackBarView.h"
#include "records/KeyedRecords.h"
#include "records/Passenger.h"
#include "words/Caption.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// What a traveller form is opened with.
struct TravellerGiven {
    Uuid uuid; ///< of the slot; becomes the passenger's
    std::string type;
    std::vector<std::string> allowedDocuments;
    bool documentsRequired;
    std::optional<TravelDates> travelDates; ///< of the session's own availability
    const Field<std::vector<Passenger>>& passengersList;
    const Field<DocumentList>& documentList;
};

/// One tile of the document types.
class DocumentTypeTile final : public Screen {
    std::string wireCode_;

public:
    /// @param isShown whether the flight asks for documents at all
    DocumentTypeTile(std::string wireCode, const Field<std::string>& chosen, std::function<bool()> isShown) :
        Screen("DocumentTypeTile"),
        wireCode_(std::move(wireCode)),
        tap(
            *this, "tap", [this] { documentType = wireCode_; }, std::move(isShown)),
        documentType(fields, "documentType", chosen) {}

    Derived<std::string> label{fields, "label", [this] { return documentLabel(wireCode_); }};
    Derived<bool> isSelected{fields, "isSelected", [this] { return documentType.get() == wireCode_; }};
    Action<> tap;

private:
    Binding<std::string> documentType;
};

/// The form of one traveller. Nothing is saved before "Save Details" passes.
class TravellerInformationView final : public Screen {
public:
    /// Without travel dates of its own it takes those of the last availability of its kind; without any it is
    /// a fault.
    explicit TravellerInformationView(TravellerGiven given);

    void appear() override { load(); }

    Published<Uuid> uuid;
    Published<std::string> type;
    Published<std::vector<std::string>> allowedDocuments;
    Published<bool> documentsRequired;
    Binding<std::vector<Passenger>> passengersList;
    Binding<DocumentList> documentList;
    /// The earliest expiry date and the earliest date of birth that can be picked.
    Published<Day> minPpDate{fields, "minPpDate"};
    Published<Day> minDOB{fields, "minDOB"};
    TravellerInformationViewModel TIVM;

    Caption title{fields, "title", Text::travellerTitle};
    Caption message{fields, "message", Text::fillMarkedFields};
    Caption saveText{fields, "saveText", Text::saveDetails};
    Derived<std::string> nationality{fields, "nationality", [this] { return TIVM.nationality.get(); }};
    Derived<std::string> dateOfBirthText{
        fields, "dateOfBirthText", [this] { return shownDate(TIVM.dateOfBirth); }};
    Derived<std::string> expiryDateText{
        fields, "expiryDateText", [this] { return shownDate(TIVM.expiryDate); }};
    Derived<bool> showsDocuments{fields, "showsDocuments", [this] { return documentsRequired.get(); }};
    Derived<bool> showsExpiryDate{fields, "showsExpiryDate", [this] {
                                      return documentsRequired && TIVM.documentType.get() == passportType;
                                  }};
    Derived<Day> latestDateOfBirth{fields, "latestDateOfBirth", [] { return calendar::today(); }};
    Derived<FormColour> nameColor{fields, "nameColor", [this] { return TIVM.nameColor(); }};
    Derived<FormColour> surnameColor{fields, "surnameColor", [this] { return TIVM.surnameColor(); }};
    Derived<FormColour> emailColor{fields, "emailColor", [this] { return TIVM.emailColor(); }};
    Derived<FormColour> dateOfBirthColor{
        fields, "dateOfBirthColor", [this] { return TIVM.dateOfBirthColor(); }};
    Derived<FormColour> documentNumberColor{
        fields, "documentNumberColor", [this] { return TIVM.documentNumberColor(); }};
    Derived<FormColour> expiryDateColor{fields, "expiryDateColor", [this] { return TIVM.expiryDateColor(); }};
    Derived<FormColour> documentImageColor{
        fields, "documentImageColor", [this] { return TIVM.documentImageColor(); }};
    Rows documentTypes{*this,
                       "documentTypes",
                       [this] { return allowedDocuments->size(); },
                       [this](std::size_t index) { return makeTile(index); }};

    Action<std::string> typeName{*this, "typeName", [this](const std::string& text) { TIVM.name = text; }};
    Action<std::string> typeSurname{
        *this, "typeSurname", [this](const std::string& text) { TIVM.surname = text; }};
    Action<std::string> typeEmail{*this, "typeEmail", [this](const std::string& text) { TIVM.email = text; }};
    Action<std::string> typeDocumentNumber{*this,
                                           "typeDocumentNumber",
                                           [this](const std::string& text) { TIVM.documentNumber = text; },
                                           [this] { return showsDocuments.get(); }};
    /// "Male" or "Female".
    Action<std::string> chooseGender{
        *this, "chooseGender", [this](const std::string& choice) { takeGender(choice); }};
    /// The dates that were picked, within their limits, as "yyyy-MM-dd".
    Action<std::string> pickDateOfBirth{
        *this, "pickDateOfBirth", [this](const std::string& day) { takeDateOfBirth(day); }};
    Action<std::string> pickExpiryDate{*this,
                                       "pickExpiryDate",
                                       [this](const std::string& day) { takeExpiryDate(day); },
                                       [this] { return showsExpiryDate.get(); }};
    Action<> openPhotoPicker{*this,
                             "openPhotoPicker",
                             [this] { TIVM.isShowingPhotoPicker = true; },
                             [this] { return showsDocuments.get(); }};
    Action<> close{*this, "close", [this] { dismiss(); }};
    Action<> save{*this, "save", [this] { saveDetails(); }};

private:
    static std::string shownDate(const std::optional<Day>& date);
    std::shared_ptr<Screen> makeTile(std::size_t index);
    std::shared_ptr<Screen> makePhotoPicker();
    void takeGender(const std::string& choice);
    void takeDateOfBirth(const std::string& day);
    void takeExpiryDate(const std::string& day);
    void setLimits(const std::optional<TravelDates>& dates);
    void load();
    void saveDetails();
    Passenger compose() const;

    Travellers travellers_{passengersList, documentList};
    Model model_{fields, "TIVM", TIVM.fields};
    CustomSnackBarView snackBar_{TIVM.showSnackBar};
    Link photoPicker_{
        *this, Presentation::sheet, TIVM.isShowingPhotoPicker, [this] { return makePhotoPicker(); }};
};

} // namespace ombrivane
