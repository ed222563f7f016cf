#pragma once

#include "booking/TravelDates.h"
#include "images/KeyedImage.h"
#include "keyed/Action.h"
#include "keyed/Constant.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Rows.h"
#include "keyed/Screen.h"
#include "platform/DocumentPicture.h"
#include "records/EmergencyContact.h"
#include "records/KeyedRecords.h"
#include "records/Passenger.h"
#include "records/UniquePassanger.h"
#include "words/Caption.h"

#include <cstdint>
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
    using Name = std::function<std::optional<std::string>()>;
    Name filledIn_;
    std::function<bool()> complete_;
    std::function<bool()> marks_;

public:
    /// @param filledIn whose name is known; nothing where nobody is
    /// @param complete whether nothing is left to do
    /// @param marks whether what is left to do is marked
    ContactLine(std::string_view lineName, std::function<std::string()> titleText, Name filledIn,
                std::function<bool()> complete, std::function<bool()> marks, std::function<void()> open,
                std::function<bool()> isReady) :
        Screen(lineName),
        filledIn_(std::move(filledIn)),
        complete_(std::move(complete)),
        marks_(std::move(marks)),
        title(fields, "title", std::move(titleText)),
        tap(*this, "tap", std::move(open), std::move(isReady)) {}

    Derived<std::string> title;
    Derived<std::string> detail{
        fields, "detail", [this] { return filledIn_().value_or(said(Text::sessionFillDetails)); }};
    Derived<bool> isFilled{fields, "isFilled", [this] { return filledIn_().has_value(); }};
    /// A contact who is a passenger too has a name there and is not yet complete.
    Derived<bool> isComplete{fields, "isComplete", [this] { return complete_(); }};
    Derived<bool> isMarked{fields, "isMarked", [this] { return marks_() && !complete_(); }};
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

    /// What is left to do is marked; raised when the customer wanted to go on without it.
    Published<bool> marksMissing{fields, "marksMissing"};
    /// How much of the list is done, as "1 of 3 done".
    Derived<std::string> doneText{fields, "doneText", [this] {
                                      return said(Text::sessionDone, {{"done", done()}, {"count", toDo()}});
                                  }};
    /// The same from 0 to 1.
    Derived<double> donePart{
        fields, "donePart", [this] { return static_cast<double>(done()) / static_cast<double>(toDo()); }};

    Caption contactTitle{fields, "contactTitle", Text::sessionContactTitle};
    Caption passengerTitle{fields, "passengerTitle", Text::sessionPassengerTitle};
    const std::shared_ptr<ContactLine> contactLine = std::make_shared<ContactLine>(
        "ContactLine", [] { return said(Text::sessionContact); }, [this] { return contactName(); },
        [this] { return emergencyContact->has_value(); }, [this] { return marksMissing.get(); },
        [this] { contactFormIsActive = true; }, [this] { return !isLoading; });
    Rows rows{*this,
              "rows",
              [this] { return uniquePassengersList->size(); },
              [this](std::size_t index) { return makeLine(index); },
              [this] { return identitiesOf(uniquePassengersList.get(), &UniquePassanger::id); }};

    /// Whether the form of that slot was saved: a contact who is a passenger too stands there without a date
    /// of birth before.
    bool isComplete(const Uuid& slot) const;

private:
    std::int64_t done() const;
    std::int64_t toDo() const { return static_cast<std::int64_t>(uniquePassengersList->size()) + 1; }
    std::optional<std::string> contactName() const;
    std::optional<std::string> nameOf(const Uuid& slot) const;
    std::shared_ptr<Screen> makeLine(std::size_t index);
    std::shared_ptr<Screen> makeContactForm() const;
    std::shared_ptr<Screen> makeTravellerForm() const;

    std::function<std::optional<TravelDates>()> travelDates_;
    std::size_t tapped_ = 0;
    Part contactLinePart_{*this, "contactLine", [this] { return contactLine; }};
    Link contactForm_{*this, Presentation::push, contactFormIsActive, [this] { return makeContactForm(); }};
    Link travellerForm_{
        *this, Presentation::push, travellerFormIsActive, [this] { return makeTravellerForm(); }};
};

} // namespace ombrivane
