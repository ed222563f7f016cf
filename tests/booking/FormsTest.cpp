#include "Wallet.h"
#include "booking/BookingSession.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

class FormsTest : public testing::Test {
protected:
    /// A fresh booking, at its session.
    Wallet& open(const Trip& trip, bool documents, std::vector<std::string> allowed, std::size_t adults = 1) {
        wallet.reset();
        world.reset();
        world = std::make_unique<fakes::World>();
        wallet = std::make_unique<Wallet>(*world, trip, documents);
        wallet->allowedDocuments = std::move(allowed);
        wallet->adults = adults;
        wallet->toSession();
        return *wallet;
    }
    BookingSession& session() const {
        return dynamic_cast<BookingSession&>(*wallet->navigator().find("OWBookingDetailsView"));
    }
    std::string line(std::size_t row) const {
        return wallet->get("contact.rows[" + std::to_string(row) + "].detail").get<std::string>();
    }

    std::unique_ptr<fakes::World> world;
    std::unique_ptr<Wallet> wallet;
};

TEST_F(FormsTest, ATravellerIsSavedWhenNothingThatCountsIsMissing) {
    const struct {
        bool documents;
        std::vector<std::string> allowed;
        std::string missing; ///< what the customer leaves out; its colour follows
        bool saves;
        bool marked = true;
    } rows[] = {
        {false, {"citizenship"}, "name", false},
        {false, {"citizenship"}, "surname", false},
        {false, {"citizenship"}, "dateOfBirth", false},
        {false, {"citizenship"}, "email", true},
        {false, {"citizenship"}, "documentNumber", true, false},
        {false, {}, "expiryDate", true, false},
        {false, {"passport", "citizenship"}, "expiryDate", false, false},
        {true, {"passport"}, "email", true},
        {true, {"passport"}, "documentNumber", false},
        {true, {"passport"}, "documentImage", false},
        {true, {"passport"}, "expiryDate", false},
        {true, {"voters_id", "passport"}, "expiryDate", true},
        {true, {"voters_id"}, "documentImage", false},
        {true, {}, "documentNumber", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.missing + (row.documents ? " with documents " : " ") +
                     testing::PrintToString(row.allowed));
        Wallet& form = open(oneWayTrip, row.documents, row.allowed);
        form.tap("contact.rows[0].tap");
        const auto colour = [&form](const std::string& field) { return form.get(field + "Color"); };
        for (const auto& [field, action, value] :
             {std::tuple("name", "typeName", "Asha"),
              std::tuple("surname", "typeSurname", "Lama"),
              std::tuple("email", "typeEmail", "a@example.com"),
              std::tuple("dateOfBirth", "pickDateOfBirth", "1990-05-17"),
              std::tuple("expiryDate", "pickExpiryDate", "2031-03-01"),
              std::tuple("documentNumber", "typeDocumentNumber", "P1")}) {
            if (row.missing != field) form.tap(action, value);
            EXPECT_EQ(colour(field), "formBorderColor") << "no marks before the first attempt";
        }
        form.tap("openPhotoPicker");
        if (row.documents) form.navigator().back();
        if (row.documents && row.missing != "documentImage") {
            form.tap("openPhotoPicker");
            form.pick();
        }
        const bool shown = form.get("showsExpiryDate").get<bool>();
        EXPECT_EQ(shown, row.documents && !row.allowed.empty() && row.allowed.front() == "passport");
        form.tap("save");
        const auto saved = session().passengersList.get();
        EXPECT_EQ(saved.size(), row.saves ? 1U : 0U);
        EXPECT_EQ(session().documentList->size(), saved.size());
        if (!row.saves) {
            EXPECT_EQ(form.get("TIVM.showSnackBar"), true);
            EXPECT_EQ(form.get("message"), "Please fill the marked fields.");
            EXPECT_EQ(colour(row.missing), row.marked ? "primaryColor" : "secondaryColor");
            EXPECT_EQ(colour(row.missing == "name" ? "surname" : "name"), "secondaryColor");
            continue;
        }
        EXPECT_EQ(form.top(), "OWBookingDetailsView");
        EXPECT_EQ(saved.front().id, session().uniquePassangerList->front().id);
        EXPECT_EQ(saved.front().documentType, row.allowed.empty() ? "" : row.allowed.front());
        EXPECT_EQ(saved.front().documentNumber.has_value(), row.documents);
        EXPECT_EQ(saved.front().documentExpiryDate.has_value(), shown);
        EXPECT_EQ(saved.front().nationality, "NP");
        EXPECT_EQ(saved.front().dob, "1990-05-17");
    }
}

TEST_F(FormsTest, OnlyDatesWithinTheLimitsOfTheJourneyCanBePicked) {
    // Out on 2026-04-10, back on 2026-04-20, today 2026-11-21.
    const struct {
        const Trip& trip;
        std::size_t slot; ///< adult, child, infant
        const char* pick;
        const char* taken;
        const char* refused;
    } rows[] = {
        {oneWayTrip, 2, "pickDateOfBirth", "2024-04-10", "2024-04-09"},
        {roundTrip, 2, "pickDateOfBirth", "2024-04-20", "2024-04-19"},
        {roundTrip, 1, "pickDateOfBirth", "2014-04-20", "2014-04-19"},
        {roundTrip, 0, "pickDateOfBirth", "1926-04-20", "1926-04-19"},
        {roundTrip, 0, "pickDateOfBirth", "2026-11-21", "2026-11-22"},
        {roundTrip, 0, "pickExpiryDate", "2026-10-10", "2026-10-09"},
        {roundTrip, 0, "pickExpiryDate", "2126-01-01", "2026-04-20"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.taken);
        open(row.trip, true, {"passport"});
        wallet->tap("back");
        wallet->answer();
        wallet->children = wallet->infants = 1;
        wallet->tap("continue");
        wallet->answer();
        wallet->tap("contact.rows[" + std::to_string(row.slot) + "].tap");
        const std::string text =
            row.pick == std::string("pickExpiryDate") ? "TIVM.expiryDate" : "TIVM.dateOfBirth";
        wallet->tap(row.pick, row.refused);
        EXPECT_TRUE(wallet->get(text).is_null()) << wallet->get(text);
        wallet->tap(row.pick, row.taken);
        EXPECT_EQ(wallet->get(text), row.taken);
        wallet->tap(row.pick, row.refused);
        EXPECT_EQ(wallet->get(text), row.taken);
    }
}

TEST_F(FormsTest, ASavedTravellerIsShownAgainAndReplaced) {
    Wallet& form = open(oneWayTrip, true, {"passport", "citizenship"}, 2);
    EXPECT_EQ(form.get("contact.rows[1].title"), "Passenger 2 - Adult");
    EXPECT_EQ(line(1), "Fill the passenger details");
    form.fillTraveller(1);
    EXPECT_EQ(line(0), "Fill the passenger details");
    EXPECT_EQ(line(1), "Asha Lama");
    auto passengers = session().passengersList.get();
    passengers.front().gender = "female";
    session().passengersList = passengers;

    const auto reopen = [&form] { form.tap("contact.rows[1].tap"); };
    reopen();
    const Json shown = form.get("TIVM");
    EXPECT_EQ(shown["gender"], "Female");
    EXPECT_EQ(shown["documentNumber"], "PA1234567");
    EXPECT_EQ(shown["documentImage"]["width"], 2);
    EXPECT_EQ(form.get("expiryDateText"), "Mar 1, 2031");
    form.tap("typeName", "Maya");
    form.tap("close");
    EXPECT_EQ(line(1), "Asha Lama") << "the cross drops what was typed";

    reopen();
    form.tap("typeName", "Maya");
    form.tap("documentTypes[1].tap");
    form.tap("openPhotoPicker");
    form.pick();
    EXPECT_EQ(form.get("TIVM.name"), "Maya") << "a picture does not load the form again";
    EXPECT_EQ(form.get("documentTypes[1].label"), "Citizenship");
    form.tap("save");
    EXPECT_EQ(line(1), "Maya Lama");
    const Passenger& saved = session().passengersList->at(0);
    EXPECT_EQ(session().passengersList->size(), 1U);
    EXPECT_EQ(session().documentList->size(), 1U);
    EXPECT_EQ(saved.documentType, "citizenship");
    EXPECT_EQ(saved.documentExpiryDate, "2031-03-01") << "not shown any more, and still sent";
    EXPECT_EQ(saved.id, session().uniquePassangerList->at(1).id);
}

TEST_F(FormsTest, TheContactFormSaysWhatIsMissing) {
    constexpr const char* fields = "Please fill the marked fields.";
    constexpr const char* number = "Please enter valid number.";
    const struct {
        const char* name;
        const char* surname;
        const char* email;
        const char* phone;
        const char* message; ///< nullptr: saves
    } rows[] = {
        {"", "Lama", "a@example.com", "9800000000", fields},
        {"Asha", "", "a@example.com", "9800000000", fields},
        {"Asha", "Lama", "", "9800000000", fields},
        {"Asha", "Lama", "a@example.com", "", fields},
        {"", "", "", "1", fields},
        {"Asha", "Lama", "a", "980000000", number},
        {"Asha", "Lama", "a", "९८०००००००", number}, // nine characters, 27 bytes
        {"Asha", "Lama", "a", "९८००००००००", nullptr},
        {"Asha", "Lama", "a", "abcdefghij", nullptr},
    };
    Wallet& form = open(oneWayTrip, false, {});
    EXPECT_EQ(form.get("contact.contactLine.detail"), "Fill the passenger details");
    for (const auto& row : rows) {
        session().emergencyContact = std::nullopt;
        form.tap("contact.contactLine.tap");
        EXPECT_EQ(form.get("phoneNumberColor"), "formBorderColor");
        form.tap("typeName", row.name);
        form.tap("typeSurname", row.surname);
        form.tap("typeEmail", row.email);
        form.tap("typePhoneNumber", row.phone);
        form.tap("save");
        if (row.message == nullptr) {
            EXPECT_EQ(session().emergencyContact->value().contact, row.phone);
            continue;
        }
        EXPECT_EQ(form.get("message"), row.message) << row.phone;
        EXPECT_EQ(form.get("ECIVM.showSnackBar"), true);
        EXPECT_EQ(form.get("nameColor"), *row.name == '\0' ? "primaryColor" : "secondaryColor");
        form.tap("close");
        EXPECT_FALSE(session().emergencyContact->has_value());
    }
    form.tap("contact.contactLine.tap");
    EXPECT_EQ(form.get("ECIVM.phoneNumber"), "abcdefghij");
    form.tap("typeName", "Mary Ann");
    form.tap("save");
    EXPECT_EQ(form.get("contact.contactLine.detail"), "Mary Ann Lama");
    form.tap("contact.contactLine.tap");
    EXPECT_EQ(form.get("ECIVM.surname"), "Ann") << "split at every blank";
    EXPECT_TRUE(session().passengersList->empty());
}

TEST_F(FormsTest, TheContactAsPassengerKeepsDocumentsBesideTheirPassengers) {
    const auto becomePassenger = [this] {
        wallet->fillContact();
        wallet->tap("contact.contactLine.tap");
        wallet->tap("typeName", "Sita");
        wallet->tap("tapBox");
        wallet->tap("save");
    };
    open(oneWayTrip, true, {"passport"}, 2);
    becomePassenger();
    const auto slots = session().uniquePassangerList.get();
    ASSERT_EQ(session().passengersList->size(), 1U);
    Passenger first = session().passengersList->front();
    EXPECT_EQ(first.id, slots[0].id);
    EXPECT_EQ(first.type + first.gender + first.documentType + first.dob, "ADTMalepassport");
    EXPECT_EQ(line(0), "Sita Lama") << "shown as saved";
    wallet->fillTraveller(1);
    ASSERT_EQ(session().documentList->size(), 2U);
    EXPECT_FALSE(session().documentList->at(0));
    EXPECT_TRUE(session().documentList->at(1));
    wallet->tap("continue");
    EXPECT_EQ(wallet->sentTo("reservation"), 0U) << "without a date of birth";
    wallet->fillTraveller(0);
    EXPECT_EQ(session().passengersList->at(0).id, slots[0].id);
    EXPECT_TRUE(session().documentList->at(0));

    // Whoever was saved first: the box writes the passenger of the first slot and nobody else.
    open(oneWayTrip, true, {"passport"}, 2);
    wallet->fillTraveller(1);
    becomePassenger();
    EXPECT_EQ(line(0) + ", " + line(1), "Sita Lama, Asha Lama");
    EXPECT_EQ(session().passengersList->at(0).id, session().uniquePassangerList->at(1).id);
    wallet->tap("continue");
    EXPECT_EQ(wallet->sentTo("reservation"), 0U) << "one has no date of birth yet";
    wallet->fillTraveller(0);
    wallet->tap("contact.contactLine.tap");
    wallet->tap("typeName", "Mina");
    wallet->tap("save");
    EXPECT_EQ(line(0) + ", " + line(1), "Mina Lama, Asha Lama");
    const Passenger& second = session().passengersList->at(1);
    EXPECT_EQ(second.dob + second.documentNumber.value_or(""), "2026-01-05PA1234567")
        << "what she gave stays";
    EXPECT_TRUE(session().documentList->at(0) && session().documentList->at(1));
    wallet->tap("continue");
    EXPECT_EQ(wallet->sentTo("reservation"), 1U);
}

TEST_F(FormsTest, TheCardsShowSamplesThenWhatWasPriced) {
    const auto texts = [this] {
        std::string all = wallet->get("passengerLine").get<std::string>() + "\n";
        for (const auto& card : wallet->get("journeys"))
            all += card["route"].get<std::string>() + " " + card["date"].get<std::string>() + " " +
                   card["stops"].get<std::string>() + "\n";
        for (const auto& block : wallet->get("baggage.blocks"))
            all += block["route"].get<std::string>() + " " + block["cabin"].get<std::string>() + " " +
                   block["checkIn"].get<std::string>() + "\n";
        return all;
    };
    open(roundTrip, false, {});
    wallet->tap("back");
    wallet->answer();
    wallet->tap("continue");
    EXPECT_EQ(texts(),
              " | Economy\n"
              "Kathmandu (KTM) - New York (JFK) Thu, May 26, 2022 1 Stop\n"
              "Kathmandu (KTM) - New York (JFK) Thu, May 26, 2022 1 Stop\n"
              "KTM - JFK 7 Kg 46 Kg\nKTM - JFK 7 Kg 46 Kg\n");
    wallet->adults = 0;
    wallet->children = 2;
    wallet->infants = 1;
    Json answer = wallet->honest();
    Json& legs = answer["data"]["flightsSummary"]["flight_segments_return"];
    legs[2]["seg_connection_time"] = true;
    answer["data"]["baggageDetails"]["return"]["cabin"] = "none";
    wallet->answer(answer);
    EXPECT_EQ(texts(),
              " , 2 C , 1 I | Economy\n"
              "Kathmandu (KTM) - Doha (DOH) Fri, Apr 10, 2026 1 Stop\n"
              "Doha (DOH) - Kathmandu (KTM) Mon, Apr 20, 2026 3 Stop\n"
              "KTM - DOH 7 Kg 30 Kg\nDOH - KTM none 30 Kg\n");
    EXPECT_EQ(wallet->get("total"), "NPR 224,010");
    wallet->tap("viewDetails");
    const Json journeys = wallet->get("RTFlightDetailsView.journeys");
    EXPECT_EQ(journeys[0]["sectionTitle"], "Departure Flight");
    EXPECT_EQ(journeys[1]["sectionTitle"], "Return Flight");
    EXPECT_EQ(journeys[1]["legs"][0]["connection"], "");
    EXPECT_EQ(journeys[1]["legs"][1]["connection"], "Connection Time : 2h 30m");
    EXPECT_EQ(journeys[1]["legs"][2]["connection"], "Connection Time : true");
    EXPECT_NE(journeys[0]["carrierLogos"][0], journeys[1]["carrierLogos"][0]);
}

} // namespace
} // namespace ombrivane
