// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/RowsModel.h"
#include "adapters/ScreenAdapter.h"
#include "booking/TravellerInformationView.h"

namespace ombrivane::view {

/// What pages read of `TravellerInformationView`.
class TravellerAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(TravellerAdapter, ScreenAdapter, TravellerInformationView)
    OMBRIVANE_TEXT(earliestExpiryDate, core().minPpDate)
    OMBRIVANE_TEXT(earliestDateOfBirth, core().minDOB)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(message, core().message)
    OMBRIVANE_TEXT(saveText, core().saveText)
    OMBRIVANE_TEXT(nationality, core().nationality)
    OMBRIVANE_TEXT(dateOfBirth, core().dateOfBirthText)
    OMBRIVANE_TEXT(expiryDate, core().expiryDateText)
    OMBRIVANE_FLAG(showsDocuments, core().showsDocuments)
    OMBRIVANE_FLAG(showsExpiryDate, core().showsExpiryDate)
    OMBRIVANE_TEXT(latestDateOfBirth, core().latestDateOfBirth)
    OMBRIVANE_TEXT(nameColor, core().nameColor)
    OMBRIVANE_TEXT(surnameColor, core().surnameColor)
    OMBRIVANE_TEXT(emailColor, core().emailColor)
    OMBRIVANE_TEXT(dateOfBirthColor, core().dateOfBirthColor)
    OMBRIVANE_TEXT(documentNumberColor, core().documentNumberColor)
    OMBRIVANE_TEXT(expiryDateColor, core().expiryDateColor)
    OMBRIVANE_TEXT(documentImageColor, core().documentImageColor)
    OMBRIVANE_ROWS(documentTypes, core().documentTypes)
    OMBRIVANE_INPUT(typeName, core().typeName)
    OMBRIVANE_INPUT(typeSurname, core().typeSurname)
    OMBRIVANE_INPUT(typeEmail, core().typeEmail)
    OMBRIVANE_INPUT(typeDocumentNumber, core().typeDocumentNumber)
    OMBRIVANE_INPUT(chooseGender, core().chooseGender)
    OMBRIVANE_INPUT(pickDateOfBirth, core().pickDateOfBirth)
    OMBRIVANE_INPUT(pickExpiryDate, core().pickExpiryDate)
    OMBRIVANE_INTENT(openPhotoPicker, core().openPhotoPicker)
    OMBRIVANE_INTENT(close, core().close)
    OMBRIVANE_INTENT(save, core().save)
    OMBRIVANE_FLAG(showSnackBar, core().TIVM.showSnackBar)
    OMBRIVANE_FIELD(ombrivane::view::DocumentValue, document, core().TIVM.documentImage)
    OMBRIVANE_TEXT(name, core().TIVM.name)
    OMBRIVANE_TEXT(surname, core().TIVM.surname)
    OMBRIVANE_TEXT(email, core().TIVM.email)
    OMBRIVANE_TEXT(gender, core().TIVM.gender)
    OMBRIVANE_TEXT(dayOfBirth, core().TIVM.dateOfBirth)
    OMBRIVANE_TEXT(documentNumber, core().TIVM.documentNumber)
    OMBRIVANE_TEXT(expiryDay, core().TIVM.expiryDate)
};

} // namespace ombrivane::view
