#include "Wallet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace ombrivane {
namespace {

using namespace std::chrono_literals;

constexpr const char* refused = R"({"success":false,"data":{"error":"No seats left."}})";

/// Every kind of trip on the same road, without documents and with them.
class SessionTest : public testing::TestWithParam<std::tuple<Trip, bool>> {
protected:
    /// What the snack bar of the session says, "" while it is hidden.
    std::string message() const {
        return wallet.get("showSnackBar").get<bool>() ? wallet.get("errorMessage").get<std::string>() : "";
    }
    /// The last request names both offers of a special round, whatever was searched for.
    void expectItinerary() const {
        const Json sent = wallet.lastSent();
        const bool oneWay = session == "OWBookingDetailsView";
        EXPECT_EQ(sent["itinerary_type"], trip.domestic ? "round_special" : oneWay ? "oneway" : "round");
        EXPECT_EQ(sent.contains("itinerary_return"), trip.domestic);
    }
    std::string phase() const { return wallet.get(session + ".phase").get<std::string>(); }
    std::string clock() const { return wallet.get(session + ".clockText").get<std::string>(); }

    fakes::World world;
    const Trip trip = std::get<Trip>(GetParam());
    const std::string session = trip.session;
    const bool documents = std::get<bool>(GetParam());
    Wallet wallet{world, trip, documents};
};

INSTANTIATE_TEST_SUITE_P(Trips, SessionTest, everyTrip, tripName);

TEST_P(SessionTest, TheGateAsksOnEachShowingAndNeverBlocks) {
    const auto gate = [this](const char* key) {
        return wallet.get("RulesAndRegulationView." + std::string(key));
    };
    wallet.toGate();
    EXPECT_EQ(wallet.waitingFor(), "verify-flights");
    expectItinerary();
    wallet.tap("continue");
    wallet.tap("cancel");
    EXPECT_EQ(wallet.top(), "RulesAndRegulationView") << "both wait for the answer";

    wallet.answer(Json::parse(refused));
    EXPECT_EQ(message(), "No seats left.");
    EXPECT_EQ(gate("htmlText"), "");
    wallet.tap("continue");
    EXPECT_EQ(wallet.top(), session) << "a failed check does not block";
    wallet.tap("back");
    EXPECT_EQ(wallet.waitingFor(1), "verify-flights");
    EXPECT_EQ(gate("showProgressView"), false) << "once only";
    wallet.answer(fakes::captured("restrictions"), 1);
    EXPECT_EQ(gate("paragraphs").empty(), false);

    world.pass(2s);
    wallet.tap("continue");
    wallet.tap("back");
    world.pass(500ms);
    EXPECT_EQ(message(), "No seats left.");
    wallet.fail(2);
    EXPECT_EQ(message(), "The request timed out.");
    world.pass(2999ms);
    EXPECT_NE(message(), "");
    world.pass(1ms);
    EXPECT_EQ(message(), "");
    wallet.tap("cancel");
    EXPECT_TRUE(wallet.top().ends_with("FlightListView")) << wallet.top();
}

TEST_P(SessionTest, TheWholeRoadHandsOverAndCloses) {
    wallet.adults = 2;
    wallet.infants = 1;
    wallet.toReady();
    EXPECT_EQ(wallet.get("clockLabel"), "left for confirmation");
    wallet.tap("continue");
    EXPECT_EQ(wallet.get("phase"), "reserving");
    EXPECT_EQ(wallet.get("progressMessage"), "Please wait ...");
    const Json sent = wallet.lastSent();
    EXPECT_EQ(sent["passengers"].size(), 3U);
    EXPECT_EQ(sent["passengers"][2]["type"], "INF");
    EXPECT_EQ(sent["availabilitySummary"]["numberInfant"], 1);
    EXPECT_EQ(sent["emergencyContact"]["name"], "Asha Lama");
    wallet.answer();
    if (documents) {
        EXPECT_TRUE(wallet.heard.empty());
        const auto upload = *world.network->last().body;
        for (const char* id : {"[41001]", "[41002]", "[41003]"})
            EXPECT_NE(upload.find("documentImage" + std::string(id)), std::string::npos);
        // Its own record is not what the wallet gets.
        Json other = wallet.honest();
        other["data"]["bookingSummary"]["PNR"] = "OTHER";
        wallet.answer(other);
    }
    EXPECT_EQ(wallet.heard, (std::vector<std::string>{"exit", "close"}));
    EXPECT_EQ(wallet.contract(), "");
    const AppState& state = AppState::shared();
    EXPECT_FALSE(state.onewaySearchRootViewActive || state.roundtripSearchRootViewActive ||
                 state.domesticSearchRootViewActive);

    const Json held = fakes::captured(trip.availability)["data"];
    const Json flights = held["flightsSummary"];
    const Dictionary& dictionary = wallet.handedOver.front();
    EXPECT_EQ(dictionary.size(), 6U);
    EXPECT_EQ(dictionary["bookingSummary"]["PNR"], "PJZGBL");
    EXPECT_EQ(dictionary["bookingSummary"]["passengers"].size(), 3U);
    EXPECT_EQ(dictionary["emergencyContact"],
              Json::parse(R"({"contact":"9800000000","email":"asha@example.com","name":"Asha Lama"})"));
    EXPECT_EQ(dictionary["bearerToken"], AppState::shared().accessToken.get());
    EXPECT_EQ(dictionary["totalCost"], held["fareInformation"]["total_cost"]);
    const Json& journeys = dictionary["flightSummary"];
    EXPECT_EQ(journeys.size(), 2U);
    EXPECT_EQ(journeys["departureFlight"].size(), 13U);
    EXPECT_EQ(journeys["returnFlight"].size(), session == "OWBookingDetailsView" ? 0U : 13U);
    const char* const keys[][3]{
        {"carrierCode", "carrierCode", "carrierCodeReturn"},
        {"carrierLogo", "carrierLogo", "carrierLogoReturn"},
        {"carrierName", "carrierName", "carrierNameReturn"},
        {"deptDate", "dept_date", "return_dept_date"},
        {"deptTime", "dept_time", "return_dept_time"},
        {"arrivalDate", "dest_date", "return_dest_date"},
        {"arrivalTime", "dest_time", "return_dest_time"},
        {"departureAirportCode", "depart_city_airport_code", "return_depart_city_airport_code"},
        {"departureAirport", "depart_city_airport_name", "return_depart_city_airport_name"},
        {"departureCity", "depart_city_name", "return_depart_city_name"},
        {"arrivalAirportCode", "dest_city_airport_code", "return_dest_city_airport_code"},
        {"arrivalAirport", "dest_city_airport_name", "return_dest_city_airport_name"},
        {"arrivalCity", "dest_city_name", "return_dest_city_name"},
    };
    for (const auto& [key, going, coming] : keys) {
        EXPECT_EQ(journeys["departureFlight"].at(key), flights.at(going));
        if (!journeys["returnFlight"].is_null()) {
            EXPECT_EQ(journeys["returnFlight"].at(key), flights.at(coming));
        }
    }
    const auto& lines = world.diagnostics->lines;
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "documents requird"),
              documents && session == "RTBookingDetailsView" ? 1 : 0);
}

TEST_P(SessionTest, AWaitSaysWhatForAndWhereItIsLongTheWayOut) {
    constexpr const char* orGoBack = "This takes longer than usual. You can wait, or go back.";
    wallet.toGate();
    wallet.expectWait("RulesAndRegulationView", "Fetching the fare rules", orGoBack);
    wallet.answer();
    wallet.expectNoWait("RulesAndRegulationView");
    wallet.tap("continue");
    wallet.expectWait(session, "Checking the latest fare", orGoBack);
    wallet.answer();
    wallet.expectNoWait(session);
    wallet.fillContact();
    wallet.fillTraveller();
    for (const bool refuses : {true, false}) {
        wallet.tap("continue");
        wallet.expectWait(session,
                          "Reserving the flight",
                          "This takes longer than usual. Please wait, and do not book again. If you leave, "
                          "the reservation goes on.");
        if (!refuses) break;
        wallet.answer(Json::parse(refused));
        wallet.expectNoWait(session);
    }
    wallet.answer();
    if (!documents) return;
    wallet.expectWait(session,
                      "Sending the documents",
                      "This takes longer than usual. The flight is reserved already. Please wait, and do not "
                      "book again.");
    wallet.fail();
    wallet.expectNoWait(session);
}

TEST_P(SessionTest, AFareThatMovedIsToldWithWhatItWas) {
    wallet.toGate();
    const std::string list = trip.domestic ? "DomesticFlightListView.total" : "FlightListView.total";
    const std::string offered = wallet.get(list).get<std::string>();
    std::string digits = offered;
    std::erase_if(digits, [](char c) { return c < '0' || c > '9'; });
    const std::pair<int, const char*> rows[]{{0, "NPR"}, {250, "NPR"}, {-250, "NPR"}, {250, "USD"}};
    for (const auto& [move, currency] : rows) {
        SCOPED_TRACE(std::to_string(move) + currency);
        const bool told = move != 0 && currency == std::string("NPR");
        wallet.answer();
        wallet.tap("continue");
        EXPECT_EQ(wallet.get("fareNotice"), "") << "nothing is priced yet";
        Json answer = wallet.honest();
        answer["data"]["availabilitySummary"]["currency"] = currency;
        answer["data"]["fareInformation"]["total_cost"] = std::stoll(digits) + move;
        wallet.answer(answer);
        EXPECT_EQ(wallet.get("formerTotal"), told ? offered : "");
        EXPECT_EQ(wallet.get("fareNotice"), told ? "Fare changed, was " + offered : "");
        EXPECT_EQ(wallet.get("fareFell"), move < 0);
        wallet.tap("back");
    }
}

TEST(SessionAmountTest, TwoOffersBeyondEveryAmountStandAtTheLargest) {
    fakes::World world;
    Trip dear = specialTrip;
    dear.offers = [] {
        const Json list = offers::listOf({{.cost = INT64_MAX}});
        return Json::array({list, list});
    };
    Wallet wallet(world, dear);
    wallet.toSession();
    EXPECT_EQ(wallet.get("formerTotal"), "NPR 9,223,372,036,854,775,807");
}

TEST_P(SessionTest, ContinueSaysWhatIsMissingAndSendsNothing) {
    constexpr const char* contact = "Please fill the details for emergency contact.";
    constexpr const char* passengers = "Please fill the details for all passengers.";
    wallet.adults = 2;
    wallet.toSession();
    const auto refuses = [&](const char* words) {
        wallet.set("showSnackBar", false);
        wallet.tap("continue");
        EXPECT_EQ(message(), words);
        EXPECT_EQ(phase(), "open");
    };
    EXPECT_EQ(wallet.get("contact.contactLine.isMarked"), false) << "not before it was left out";
    refuses(contact);
    EXPECT_EQ(wallet.get("contact.contactLine.isMarked"), true);
    EXPECT_EQ(wallet.get("contact.doneText"), "0 of 3 done");
    wallet.fillTraveller(0);
    wallet.fillTraveller(1);
    refuses(contact);
    EXPECT_EQ(wallet.get("contact.rows[1].isMarked"), false);
    EXPECT_EQ(wallet.get("contact.doneText"), "2 of 3 done");
    wallet.set("passengersList", Json::array());
    wallet.fillContact();
    refuses(passengers);
    wallet.fillTraveller(1);
    refuses(passengers);
    wallet.tap("contact.contactLine.tap");
    wallet.tap("tapBox");
    wallet.tap("save");
    refuses(passengers);
    EXPECT_EQ(wallet.get("contact.rows[0].isFilled"), true) << "with the name of the contact";
    EXPECT_EQ(wallet.get("contact.rows[0].isMarked"), true) << "who has no date of birth";
    EXPECT_EQ(wallet.get("contact.doneText"), "2 of 3 done");
    wallet.fillTraveller(0);
    EXPECT_EQ(wallet.get("passengersList").size(), 2U);
    world.pass(3s);
    EXPECT_EQ(message(), "") << "hides by itself";
    EXPECT_EQ(wallet.sentTo("reservation"), 0U);
    wallet.tap("continue");
    EXPECT_EQ(wallet.sentTo("reservation"), 1U);
}

TEST_P(SessionTest, OneAvailabilityIsUnderWayAndTheFormsWaitForItsSlots) {
    wallet.toGate();
    wallet.answer();
    wallet.tap("continue");
    wallet.tap("contact.contactLine.tap");
    EXPECT_EQ(wallet.top(), session) << "nobody could be given the identity of a slot";
    // A host's script opens the form all the same, and leaves it again.
    wallet.set("contact.contactFormIsActive", true);
    wallet.tap("close");
    EXPECT_EQ(wallet.top(), session);
    EXPECT_EQ(wallet.sentTo("availability"), 1U);
    wallet.answer();
    wallet.fillContact();
    EXPECT_EQ(wallet.sentTo("availability"), 1U);
    EXPECT_EQ(world.network->outstanding(), 0U);
}

TEST_P(SessionTest, AnAvailabilityThatCountsNobodyIsNotReserved) {
    wallet.adults = 0;
    wallet.toReady();
    wallet.tap("continue");
    EXPECT_EQ(message(), "Please fill the details for all passengers.");
    EXPECT_EQ(wallet.sentTo("reservation"), 0U);
}

TEST_P(SessionTest, AReservationStandsWhomeverItNames) {
    wallet.toReady();
    for (const std::size_t named : {3U, 0U}) {
        SCOPED_TRACE(named);
        if (wallet.isShown()) wallet.tap("continue");
        Json answer = wallet.honest();
        Json& passengers = answer["data"]["bookingSummary"]["passengers"];
        const Json passenger = passengers.at(0);
        passengers = Json::array();
        for (std::size_t i = 0; i < named; ++i) {
            passengers.push_back(passenger);
            passengers.back()["passenger_id"] = "P" + std::to_string(i);
        }
        wallet.answer(answer);
        if (documents) {
            const std::string form = world.network->last().body.value_or("");
            EXPECT_EQ(form.find("documentImage[P0]") != std::string::npos, named > 0);
            EXPECT_EQ(form.find("P1"), std::string::npos) << "nothing is known of a second";
            wallet.answer();
        }
        ASSERT_EQ(wallet.handedOver.size(), 1U);
        EXPECT_EQ(wallet.handedOver.front()["bookingSummary"]["passengers"].size(), named);
        if (named == 0) break;
        wallet.handedOver.clear();
        wallet.reserved = 0;
        wallet.toReady();
    }
}

TEST_P(SessionTest, AFailedAvailabilityLeavesAfterThreeSecondsUnlessTheCustomerWasFaster) {
    wallet.toGate();
    wallet.answer();
    const auto fail = [this] {
        wallet.tap("continue");
        wallet.answer(Json::parse(refused));
        EXPECT_EQ(wallet.get("errorMessage"), "No seats left.");
        EXPECT_EQ(wallet.get("isLoading"), true);
        EXPECT_EQ(wallet.get("showsFoot"), false);
        EXPECT_EQ(wallet.get("total"), "NPR 1");
        world.pass(2999ms);
        ASSERT_EQ(wallet.top(), session);
    };
    fail();
    wallet.tap("back");
    wallet.answer();
    wallet.tap("continue");
    world.pass(1ms);
    EXPECT_EQ(wallet.top(), session) << "the dismissal of one session closes no other";
    wallet.tap("back");
    wallet.answer();
    wallet.answer();
    fail();
    world.pass(1ms);
    EXPECT_EQ(wallet.top(), "RulesAndRegulationView");
    EXPECT_EQ(wallet.sentTo("availability"), 3U);
}

TEST_P(SessionTest, TheClockRunsInEveryPhaseToZeroAndExpiryLeadsToAFreshSession) {
    wallet.toGate();
    wallet.answer();
    wallet.tap("continue");
    expectItinerary();
    EXPECT_EQ(clock(), "10:00");
    world.pass(61s);
    EXPECT_EQ(clock(), "08:59") << "while the availability loads";
    wallet.answer();
    wallet.tap("contact.contactLine.tap");
    world.pass(478s);
    EXPECT_EQ(clock(), "01:01") << "behind a form, with all ticks that are owed";
    EXPECT_EQ(wallet.get(session + ".isLastMinute"), false);
    wallet.tap("close");
    world.pass(1s);
    EXPECT_EQ(wallet.get("isLastMinute"), true);
    world.pass(60s);
    EXPECT_EQ(clock(), "00:00");
    EXPECT_EQ(phase(), "open") << "it expires with the tick after";
    wallet.tap("checkLatestFares");
    EXPECT_EQ(wallet.top(), session);
    world.pass(1s);
    EXPECT_EQ(phase(), "expired");
    world.pass(1h);
    EXPECT_EQ(clock(), "00:00");
    for (const char* covered : {"back", "continue"})
        wallet.tap(covered);
    EXPECT_EQ(wallet.top(), session);
    EXPECT_EQ(wallet.get("expiredTitle"), "Session Expired");
    EXPECT_EQ(wallet.get("expiredText"),
              "Your search and your flight are kept. Only the fare is checked anew.");
    wallet.tap("checkLatestFares");
    EXPECT_EQ(wallet.top(), "RulesAndRegulationView");
    wallet.answer();
    wallet.tap("continue");
    EXPECT_EQ(clock(), "10:00");
    EXPECT_EQ(wallet.sentTo("availability"), 2U);
    EXPECT_EQ(wallet.get("isLoading"), true);
    EXPECT_TRUE(wallet.get("passengersList").empty());
}

TEST_P(SessionTest, AReservationUnderWaySurvivesTheClock) {
    wallet.toReady();
    wallet.tap("continue");
    world.pass(601s);
    EXPECT_EQ(phase(), "expired") << "the overlay stands above the progress";
    wallet.answer();
    if (documents) wallet.answer();
    EXPECT_EQ(wallet.heard, (std::vector<std::string>{"exit", "close"}));
}

TEST_P(SessionTest, AFailureOfTheReservationOrTheUploadMayBeTriedAgain) {
    wallet.toReady();
    wallet.tap("continue");
    wallet.answer(Json::parse(refused));
    EXPECT_EQ(message(), "No seats left.");
    EXPECT_EQ(phase(), "open");
    wallet.tap("continue");
    if (documents) wallet.answer();
    EXPECT_EQ(wallet.waitingFor(), documents ? "documents" : "reservation");
    EXPECT_EQ(phase(), "reserving");
    wallet.fail();
    EXPECT_EQ(message(), "The request timed out.");
    EXPECT_TRUE(wallet.heard.empty());
    wallet.tap("continue");
    EXPECT_EQ(wallet.sentTo("reservation"), 3U) << "the failed upload's reservation is not taken up again";
    EXPECT_EQ(wallet.sentTo("availability"), 1U);
    wallet.settle();
    EXPECT_EQ(wallet.contract(), "");
    EXPECT_EQ(wallet.handedOver.size(), 1U);
}

TEST_P(SessionTest, WhileItReservesNothingElseCanBeTapped) {
    wallet.toReady();
    wallet.tap("continue");
    for (const char* control : {"continue", "back", "checkLatestFares"}) {
        EXPECT_FALSE(wallet.enabled(session + "." + control)) << control;
        wallet.tap(session + "." + control);
    }
    EXPECT_EQ(wallet.sentTo("reservation"), 1U) << "two quick taps reserve once";
    const auto expectNothingTaken = [&] {
        for (const char* line : {"contact.contactLine.tap", "contact.rows[0].tap", "viewDetails"}) {
            EXPECT_FALSE(wallet.enabled(line)) << line;
            wallet.tap(line);
        }
        EXPECT_EQ(wallet.top(), session)
            << "a traveller who changes now would not be the one who was reserved";
    };
    expectNothingTaken();
    world.pass(601s);
    ASSERT_EQ(phase(), "expired");
    expectNothingTaken();
    wallet.expectNoWait(session);
    EXPECT_EQ(wallet.get("expiredText"),
              "The reservation that you sent is still under way. Please wait for its answer before you book "
              "again.");
    wallet.fail();
    EXPECT_EQ(wallet.get("expiredText"),
              "Your search and your flight are kept. The fare is checked anew, and the contact and the "
              "passengers have to be entered again.");
}

TEST_P(SessionTest, WhatIsHiddenOrCoveredDoesNothing) {
    wallet.toGate();
    wallet.answer();
    wallet.tap("continue");
    EXPECT_FALSE(wallet.enabled("continue"));
    EXPECT_FALSE(wallet.enabled("viewDetails"));
    wallet.tap("continue");
    wallet.tap("viewDetails");
    wallet.answer();
    wallet.fillContact();
    wallet.fillTraveller();
    wallet.tap("contact.rows[0].tap");
    ASSERT_EQ(wallet.top(), "TravellerInformationView");
    const auto& stack = wallet.navigator().stack();
    for (std::size_t i = 0; i + 1 < stack.size(); ++i) {
        for (const auto& screen : Navigator::withParts(stack[i].screen)) {
            for (Member* member : screen->fields.members()) {
                if (member->kind() != MemberKind::action) continue;
                EXPECT_EQ(member->read().at("enabled"), false) << screen->name() << "." << member->key();
            }
        }
    }
    wallet.tap(session + ".continue");
    wallet.tap(session + ".back");
    EXPECT_EQ(wallet.top(), "TravellerInformationView");
    EXPECT_EQ(wallet.sentTo("reservation"), 0U);
    wallet.tap("close");
    wallet.tap("viewDetails");
    EXPECT_TRUE(wallet.top().ends_with("FlightDetailsView"));
    wallet.tap("close");
    EXPECT_EQ(wallet.sentTo("availability"), 1U) << "a session that comes back keeps its availability";
    EXPECT_EQ(wallet.get("passengersList").size(), 1U);
}

} // namespace
} // namespace ombrivane
