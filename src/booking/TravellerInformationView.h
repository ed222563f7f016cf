#pragma once

#include "booking/TravelDates.h"
#include "booking/TravellerInformationViewModel.h"
#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "parts/CustomSnackBarView.h"
#include "records/KeyedRecords.h"
#include "records/Passenger.h"

#include <functional>
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
    const Field<std::vector<std::optional<DocumentPicture>>>& documentList;
};

/// One tile of the document types.
class DocumentTypeTile final : public Screen {
public:
    /// @param isShown whether the flight asks for documents at all
    DocumentTypeTile(const std::string& wireCode, const Field<std::string>& chosen,
                     std::function<bool()> isShown);

    Derived<std::string> label;
    Derived<bool> isSelected;
    Action<> tap;

private:
    Binding<std::string> documentType;
};

/// The form of one traveller. Nothing is saved before "Save Details" passes.
class TravellerInformationView final : public Screen {
public:
    /// A session without travel dates is a fault.
    explicit TravellerInformationView(TravellerGiven given);

    void appear() override { load(); }

    Published<Uuid> uuid;
    Published<std::string> type;
    Published<std::vector<std::string>> allowedDocuments;
    Published<bool> documentsRequired;
    Binding<std::vector<Passenger>> passengersList;
    Binding<std::vector<std::optional<DocumentPicture>>> documentList;
    /// The earliest expiry date and the earliest date of birth that can be picked.
    Published<Day> minPpDate;
    Published<Day> minDOB;
    TravellerInformationViewModel TIVM;

    Derived<std::string> title;
    Derived<std::string> message;
    Derived<std::string> saveText;
    Derived<std::string> nationality;
    Derived<std::string> dateOfBirthText;
    Derived<std::string> expiryDateText;
    Derived<bool> showsDocuments;
    Derived<bool> showsExpiryDate;
    Derived<Day> latestDateOfBirth;
    Derived<FormColour> nameColor;
    Derived<FormColour> surnameColor;
    Derived<FormColour> emailColor;
    Derived<FormColour> dateOfBirthColor;
    Derived<FormColour> documentNumberColor;
    Derived<FormColour> expiryDateColor;
    Derived<FormColour> documentImageColor;
    Rows documentTypes;

    Action<std::string> typeName;
    Action<std::string> typeSurname;
    Action<std::string> typeEmail;
    Action<std::string> typeDocumentNumber;
    /// "Male" or "Female".
    Action<std::string> chooseGender;
    /// The dates that were picked, within their limits, as "yyyy-MM-dd".
    Action<std::string> pickDateOfBirth;
    Action<std::string> pickExpiryDate;
    Action<> openPhotoPicker;
    Action<> close;
    Action<> save;

private:
    void setLimits(const std::optional<TravelDates>& dates);
    void load();
    void saveDetails();
    Passenger compose() const;
    std::optional<std::size_t> position() const;

    Model model_;
    CustomSnackBarView snackBar_{TIVM.showSnackBar};
    Link photoPicker_;
};

} // namespace ombrivane
