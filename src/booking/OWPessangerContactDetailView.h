#pragma once

#include "booking/TravelDates.h"
#include "images/KeyedImage.h"
#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "platform/DocumentPicture.h"
#include "records/EmergencyContact.h"
#include "records/KeyedRecords.h"
#include "records/Passenger.h"
#include "records/UniquePassanger.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// What a booking session shares with the list of all that the customer fills in.
struct ContactGiven {
    std::function<bool()> documentsRequired;
    std::function<std::vector<std::string>()> allowedDocuments;
    std::function<std::optional<TravelDates>()> travelDates;
    const Field<bool>& isLoading;
    const Field<std::optional<EmergencyContact>>& emergencyContact;
    const Field<std::vector<std::optional<DocumentPicture>>>& documentList;
    const Field<std::vector<Passenger>>& passengersList;
    const Field<std::vector<UniquePassanger>>& uniquePassengersList;
};

/// One line of the list: the contact or a passenger, filled in or still to do. Its form opens once the
/// availability says for whom: before, nobody could be given the identity of a slot.
class ContactLine final : public Screen {
public:
    ContactLine(std::string_view name, std::function<std::string()> titleText,
                std::function<std::optional<std::string>()> filledIn, std::function<void()> open,
                std::function<bool()> isReady);

    Derived<std::string> title;
    Derived<std::string> detail;
    Derived<bool> isFilled;
    Action<> tap;
};

/// The list of all that has to be filled in before the reservation: the emergency contact and one line for
/// each passenger slot. It serves both booking sessions.
class OWPessangerContactDetailView final : public Screen {
public:
    explicit OWPessangerContactDetailView(ContactGiven given);

    Derived<bool> documentsRequired;
    Derived<std::vector<std::string>> allowedDocuments;
    Binding<bool> isLoading;
    Binding<std::optional<EmergencyContact>> emergencyContact;
    Binding<std::vector<std::optional<DocumentPicture>>> documentList;
    Binding<std::vector<Passenger>> passengersList;
    Binding<std::vector<UniquePassanger>> uniquePassengersList;

    /// The contact form is pushed.
    Published<bool> contactFormIsActive{fields, "contactFormIsActive"};
    /// The form of a traveller is pushed, that of the line tapped last.
    Published<bool> travellerFormIsActive{fields, "travellerFormIsActive"};

    Derived<std::string> contactTitle;
    Derived<std::string> passengerTitle;
    const std::shared_ptr<ContactLine> contactLine;
    Rows rows;

private:
    std::optional<std::string> nameOf(const Uuid& slot) const;

    std::function<std::optional<TravelDates>()> travelDates_;
    std::size_t tapped_ = 0;
    Part contactLinePart_{*this, "contactLine", [this] { return contactLine; }};
    Link contactForm_;
    Link travellerForm_;
};

} // namespace ombrivane
