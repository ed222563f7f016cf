#pragma once

#include "booking/EmergencyContactInformationViewModel.h"
#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "parts/CustomSnackBarView.h"
#include "records/EmergencyContact.h"
#include "records/KeyedRecords.h"
#include "records/Passenger.h"

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
    Published<std::string> message{fields, "message", "Please fill in all the required fields."};
    EmergencyContactInformationViewModel ECIVM;

    Derived<std::string> title;
    Derived<std::string> boxText;
    Derived<std::string> saveText;
    Derived<FormColour> nameColor;
    Derived<FormColour> surnameColor;
    Derived<FormColour> emailColor;
    Derived<FormColour> phoneNumberColor;

    Action<std::string> typeName;
    Action<std::string> typeSurname;
    Action<std::string> typeEmail;
    Action<std::string> typePhoneNumber;
    Action<> tapBox;
    Action<> close;
    Action<> save;

private:
    void load();
    void saveDetails();
    void refuse(const char* text);
    void writePassenger();

    Model model_;
    CustomSnackBarView snackBar_{ECIVM.showSnackBar};
};

} // namespace ombrivane
