// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "booking/EmergencyContactInformationView.h"

namespace ombrivane::view {

/// What pages read of `EmergencyContactInformationView`.
class EmergencyAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(EmergencyAdapter, ScreenAdapter, EmergencyContactInformationView)
    OMBRIVANE_TEXT(message, core().message)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(boxText, core().boxText)
    OMBRIVANE_TEXT(saveText, core().saveText)
    OMBRIVANE_TEXT(nameColor, core().nameColor)
    OMBRIVANE_TEXT(surnameColor, core().surnameColor)
    OMBRIVANE_TEXT(emailColor, core().emailColor)
    OMBRIVANE_TEXT(phoneNumberColor, core().phoneNumberColor)
    OMBRIVANE_INPUT(typeName, core().typeName)
    OMBRIVANE_INPUT(typeSurname, core().typeSurname)
    OMBRIVANE_INPUT(typeEmail, core().typeEmail)
    OMBRIVANE_INPUT(typePhoneNumber, core().typePhoneNumber)
    OMBRIVANE_INTENT(tapBox, core().tapBox)
    OMBRIVANE_INTENT(close, core().close)
    OMBRIVANE_INTENT(save, core().save)
    OMBRIVANE_FLAG(showSnackBar, core().ECIVM.showSnackBar)
    OMBRIVANE_FLAG(isPassanger, core().ECIVM.isPassanger)
    OMBRIVANE_TEXT(name, core().ECIVM.name)
    OMBRIVANE_TEXT(surname, core().ECIVM.surname)
    OMBRIVANE_TEXT(email, core().ECIVM.email)
    OMBRIVANE_TEXT(phoneNumber, core().ECIVM.phoneNumber)
};

} // namespace ombrivane::view
