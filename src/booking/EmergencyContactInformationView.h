#pragma once

#include "booking/EmergencyContactInformationViewModel.h"
#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "parts/CustomSnackBarView.h"
#include "records/EmergencyContact.h"
#include "records/KeyedRecords.h"
#include "records/Passenger.h"
#include "words/Caption.h"
#include "words/Spoken.h"

#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// The form of the emergency contact. Its box makes the person typed here the passenger of the first slot.
class EmergencyContactInformationView final : public Screen {
public:
    /// @param uuid identity given to a passenger written from this form
    /// @param type passenger type code written with such a passenger
    EmergencyContactInformationView(const Uuid& uuid, std::string type,
                                    std::vector<std::string> allowedDocuments,
                                    const Field<std::optional<EmergencyContact>>& contact,
                                    const Field<std::vector<Passenger>>& passengers);

    void appear() override { load(); }

    Published<Uuid> uuid;
    Published<std::string> type;
    Published<std::vector<std::string>> allowedDocuments;
    Binding<std::optional<EmergencyContact>> emergencyContact;
    Binding<std::vector<Passenger>> passengersList;
    Published<std::string> message{fields, "message"};
    EmergencyContactInformationViewModel ECIVM;

    Caption title{fields, "title", Text::contactTitle};
    Caption boxText{fields, "boxText", Text::contactIsPassenger};
    Caption saveText{fields, "saveText", Text::saveDetails};
    Derived<FormColour> nameColor{fields, "nameColor", [this] { return ECIVM.nameColor(); }};
    Derived<FormColour> surnameColor{fields, "surnameColor", [this] { return ECIVM.surnameColor(); }};
    Derived<FormColour> emailColor{fields, "emailColor", [this] { return ECIVM.emailColor(); }};
    Derived<FormColour> phoneNumberColor{
        fields, "phoneNumberColor", [this] { return ECIVM.phoneNumberColor(); }};

    Action<std::string> typeName{*this, "typeName", [this](const std::string& text) { ECIVM.name = text; }};
    Action<std::string> typeSurname{
        *this, "typeSurname", [this](const std::string& text) { ECIVM.surname = text; }};
    Action<std::string> typeEmail{
        *this, "typeEmail", [this](const std::string& text) { ECIVM.email = text; }};
    Action<std::string> typePhoneNumber{
        *this, "typePhoneNumber", [this](const std::string& text) { ECIVM.phoneNumber = text; }};
    Action<> tapBox{*this, "tapBox", [this] { ECIVM.isPassanger = !ECIVM.isPassanger.get(); }};
    Action<> close{*this, "close", [this] { dismiss(); }};
    Action<> save{*this, "save", [this] { saveDetails(); }};

private:
    void load();
    void saveDetails();
    void refuse(Text text);
    void writePassenger();

    Model model_{fields, "ECIVM", ECIVM.fields};
    SpokenField messageWords_{message, Text::contactFillAllFields};
    CustomSnackBarView snackBar_{ECIVM.showSnackBar};
};

} // namespace ombrivane
