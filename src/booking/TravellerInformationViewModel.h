#pragma once

#include "booking/FormMarks.h"
#include "dates/Day.h"
#include "images/KeyedImage.h"
#include "keyed/Field.h"
#include "platform/DocumentPicture.h"

#include <optional>
#include <string>

namespace ombrivane {

/// What a traveller form is editing, which of its fields are marked and whether it may be saved.
class TravellerInformationViewModel {
public:
    /// The colour of each field. These only read. The e-mail address is marked while it is empty, although a
    /// form without one saves.
    FormColour nameColor() const;
    FormColour surnameColor() const;
    FormColour emailColor() const;
    FormColour dateOfBirthColor() const;
    FormColour documentNumberColor() const;
    FormColour expiryDateColor() const;
    FormColour documentImageColor() const;

    /// Gives the marks their colours. @return true when the form must not be saved
    bool validate();

    /// "ADT", "CHD", "INF" or empty, from the type of the slot.
    std::string passengerTypeCode() const;

    Fields fields;
    Published<bool> showSnackBar{fields, "showSnackBar"};
    Published<bool> isShowingPhotoPicker{fields, "isShowingPhotoPicker"};
    Published<std::optional<DocumentPicture>> documentImage{fields, "documentImage"};
    Published<std::string> name{fields, "name"};
    Published<std::string> surname{fields, "surname"};
    Published<std::string> email{fields, "email"};
    Published<std::string> gender{fields, "gender", "Male"};
    Published<std::optional<Day>> dateOfBirth{fields, "dateOfBirth"};
    Published<std::string> nationality{fields, "nationality"};
    Published<std::string> documentType{fields, "documentType"};
    Published<std::string> documentNumber{fields, "documentNumber"};
    Published<std::optional<Day>> expiryDate{fields, "expiryDate"};
    Published<std::string> type{fields, "type"};
    Published<bool> documentsRequired{fields, "documentsRequired"};
    FormMarks marks{fields};
};

} // namespace ombrivane
