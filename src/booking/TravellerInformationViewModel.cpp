#include "booking/TravellerInformationViewModel.h"

#include "booking/DocumentType.h"
#include "booking/PassengerType.h"

namespace ombrivane {

FormColour TravellerInformationViewModel::nameColor() const { return marks.of(!name->empty()); }

FormColour TravellerInformationViewModel::surnameColor() const { return marks.of(!surname->empty()); }

FormColour TravellerInformationViewModel::emailColor() const { return marks.of(!email->empty()); }

FormColour TravellerInformationViewModel::dateOfBirthColor() const {
    return marks.of(dateOfBirth->has_value());
}

FormColour TravellerInformationViewModel::documentNumberColor() const {
    return marks.of(!documentNumber->empty() || !documentsRequired);
}

FormColour TravellerInformationViewModel::expiryDateColor() const {
    return marks.of(expiryDate->has_value() || !documentsRequired);
}

FormColour TravellerInformationViewModel::documentImageColor() const {
    return marks.of(documentImage->has_value() || !documentsRequired);
}

bool TravellerInformationViewModel::validate() {
    marks.begin();
    if (name->empty() || surname->empty() || !dateOfBirth->has_value()) return true;
    if (documentsRequired && (documentNumber->empty() || !documentImage->has_value())) return true;
    // A passport needs its expiry date also where no document is demanded.
    return documentType.get() == passportType && !expiryDate->has_value();
}

std::string TravellerInformationViewModel::passengerTypeCode() const {
    return ombrivane::passengerTypeCode(type);
}

} // namespace ombrivane
