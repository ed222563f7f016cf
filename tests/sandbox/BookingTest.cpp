#include "tests/sandbox/BookingFixture.h"

#include <functional>
#include <set>

namespace ombrivane::sandbox {

namespace {

class Itinerary : public BookingFixture {
protected:
    Json verify(const Json& offer, const std::string& type = "oneway") {
        return client_.post("/verify-flights",
                            {{"user_type", "customer"}, {"itinerary_type", type}, {"itinerary", offer}});
    }
};

TEST_F(Itinerary, MustComeBackAsItWasServed) {
    const Json offer = client_.post("/search-flights", searchBody("KTM", "LHR")).at("data").at(3);
    Json cheaper = offer;
    cheaper["fare_information"]["total_cost"] = 1;
    Json otherOrder = Json::object();
    otherOrder["fare_information"] = offer["fare_information"];
    otherOrder.update(offer);
    Json stranger = offer;
    stranger["search_summary"]["search_key"] = "0000000000000000-O-0003";
    Json asText = offer;
    Json& cabin = asText["baggage_details"]["cabin"];
    cabin = cabin.is_string() ? Json(std::stoi(cabin.get<std::string>())) : Json(cabin.dump());

    const std::string changed = "The itinerary is not the offer that was served: ";
    struct Case {
        Json itinerary;
        std::string availabilityError;
        std::string verifyError;
    };
    for (const Case& scenario :
         {Case{offer, "", changed + "it differs at /flight_summary/segments/0/meal_code."},
          Case{ownRecord(offer), changed + "it differs at /flight_summary/segments/0/meal_code.", ""},
          Case{otherOrder,
               changed + "its keys stand in another order.",
               changed + "it differs at /flight_summary/segments/0/meal_code."},
          Case{ownRecord(otherOrder), changed + "it differs at /flight_summary/segments/0/meal_code.", ""},
          Case{cheaper,
               changed + "it differs at /fare_information/total_cost.",
               changed + "it differs at /fare_information/total_cost."},
          Case{asText,
               changed + "it differs at /baggage_details/cabin.",
               changed + "it differs at /baggage_details/cabin."},
          Case{stranger,
               "The itinerary is not an offer of this service.",
               "The itinerary is not an offer of this service."},
          Case{nullptr,
               "The itinerary is missing. Please search again.",
               "The itinerary is missing. Please search again."}}) {
        EXPECT_EQ(ServiceClient::error(availability(scenario.itinerary)), scenario.availabilityError);
        EXPECT_EQ(ServiceClient::error(verify(scenario.itinerary)), scenario.verifyError);
    }
    EXPECT_EQ(ServiceClient::error(availability(offer, "round")),
              "The itinerary is an offer of another itinerary_type.");
}

TEST_F(Itinerary, HasRestrictionsInHtmlOrNone) {
    const Json offers = client_.post("/search-flights", searchBody("KTM", "LHR")).at("data");
    const Json rules = verify(ownRecord(offers[0]));
    EXPECT_EQ(rules["hasRestrictions"], true);
    for (const char* piece : {"<p>", "<li>", "<u>", "&nbsp;"})
        EXPECT_NE(rules["message"].get<std::string>().find(piece), std::string::npos) << piece;
    EXPECT_EQ(verify(ownRecord(offers[5])), Json({{"success", true}, {"hasRestrictions", false}}));
}

TEST_F(Itinerary, OfADomesticPairTravelsAsTheClientsOwnRecords) {
    const Json lists = client_.post("/search-flights", roundBody("KTM", "PKR")).at("data");
    const Json out = ownRecord(lists[0][1]);
    const Json back = ownRecord(lists[1][2]);
    const Json verified =
        client_.post("/verify-flights",
                     {{"itinerary_type", "round_special"}, {"itinerary", out}, {"itinerary_return", back}});
    EXPECT_EQ(verified["hasRestrictions"], true);
    Json body{{"user_type", "customer"},
              {"itinerary_type", "round_special"},
              {"itinerary", out},
              {"itinerary_return", back}};
    EXPECT_EQ(ServiceClient::error(client_.post("/verify-flights", body)),
              "The user_type field is not known here.");
    const Json data = client_.post("/availability", body).at("data");
    EXPECT_EQ(data["availabilitySummary"]["tripType"], "round_special");
    EXPECT_EQ(data["fareInformation"]["total_cost"],
              out["fare_information"]["total_cost"].get<int>() +
                  back["fare_information"]["total_cost"].get<int>());
    EXPECT_EQ(data["flightsSummary"]["return_dept_date"], "2026-03-14");
    EXPECT_EQ(data["flightsSummary"]["carrierCodeReturn"], back["flight_summary"]["carrierCode"]);
    std::swap(body["itinerary"], body["itinerary_return"]);
    EXPECT_EQ(ServiceClient::error(client_.post("/availability", body)),
              "The itinerary is an offer of another itinerary_type.");
}

TEST_F(Itinerary, IsPricedAnewForEverySeventhOffer) {
    const Json offers = client_.post("/search-flights", searchBody("KTM", "LHR")).at("data");
    for (std::size_t i : {5U, 6U}) {
        const auto shown = offers[i]["fare_information"]["total_cost"].get<double>();
        const auto now =
            availability(offers[i]).at("data").at("fareInformation").at("total_cost").get<double>();
        EXPECT_NEAR(now, i == 6 ? shown * 1.03 : shown, 1) << i;
    }
}

TEST_F(Itinerary, AnswersARoundTripWithBothDirections) {
    const Json offers = client_.post("/search-flights", roundBody("KTM", "LHR")).at("data");
    EXPECT_GE(offers.size(), 12U);
    for (const Json& offer : offers) {
        const Json data = availability(offer, "round").at("data");
        const Json& flights = data["flightsSummary"];
        EXPECT_EQ(flights.size(), 34U);
        EXPECT_EQ(flights["return_depart_country"], "United Kingdom");
        EXPECT_EQ(data["baggageDetails"]["return"].size(), 2U);
        for (const auto& [searched, answered] :
             {std::pair{"flight_departure_summary", "flight_segments_outbound"},
              std::pair{"flight_return_summary", "flight_segments_return"}}) {
            const Json& before = offer[searched]["segments"];
            const Json& now = flights[answered];
            ASSERT_EQ(now.size(), before.size());
            EXPECT_EQ(now[0].size(), 18U);
            EXPECT_EQ(now[0]["seg_connection_time"], false);
            // A search tells the connection behind a leg, an availability the one before it.
            for (std::size_t i = 1; i < now.size(); ++i)
                EXPECT_EQ(now[i]["seg_connection_time"], before[i - 1]["connection_time"]);
        }
    }
}

class Documents : public testing::TestWithParam<std::tuple<DocumentsRule, std::string, bool, std::string>> {};

TEST_P(Documents, AreAskedForByTheRuleAndNeverStartWithAPassportWhenOptional) {
    const auto& [rule, to, isRequired, first] = GetParam();
    Options options = frozenOptions();
    options.documents = rule;
    ServiceClient client(options);
    const Json offer = client.post("/search-flights", searchBody("KTM", to)).at("data").at(0);
    const Json data =
        client
            .post("/availability",
                  {{"user_type", "customer"}, {"itinerary_type", "oneway"}, {"itinerary", offer}})
            .at("data");
    EXPECT_EQ(data["documentsRequired"], isRequired);
    EXPECT_EQ(data["allowedDocuments"].empty() ? "" : data["allowedDocuments"][0], first);
}

INSTANTIATE_TEST_SUITE_P(Rules, Documents,
                         testing::Values(std::tuple{DocumentsRule::Auto, "DOH", true, "passport"},
                                         std::tuple{DocumentsRule::Auto, "PKR", false, "citizenship"},
                                         std::tuple{DocumentsRule::Always, "PKR", true, "citizenship"},
                                         std::tuple{DocumentsRule::Never, "DOH", false, ""}));

class ReservationRules : public BookingFixture {};

TEST_F(ReservationRules, SayWhatIsWrong) {
    struct Case {
        std::function<void(Json&)> change;
        const char* error;
    };
    const auto person = [](std::size_t i, const char* key, const Json& value) {
        return [=](Json& body) { body["passengers"][i][key] = value; };
    };
    const std::vector<Case> wrong{
        {person(0, "id", "0f8fad5b-d9cb-469f-a165-70867728950e"),
         "The passengers[0].id field must be a UUID in capitals."},
        {person(0, "dob", ""), "The passengers[0].dob field is required."},
        {person(0, "dob", "31-12-1990"), "The passengers[0].dob field must be a date like 1990-12-31."},
        {person(0, "dob", "2014-03-11"),
         "An adult must be 12 years old on the last day of travel: see passengers[0].dob."},
        {person(2, "dob", "2026-03-03"), "A date of birth lies in the future."},
        {person(1, "dob", "2014-03-09"),
         "A child can be at most 12 years old on the last day of travel: see passengers[1].dob."},
        {person(2, "dob", "2024-03-09"),
         "An infant can be at most 2 years old on the last day of travel: see passengers[2].dob."},
        {person(1, "type", "INF"),
         "An infant can be at most 2 years old on the last day of travel: see passengers[1].dob."},
        {person(1, "type", "CNN"), "The passengers[1].type field must be ADT, CHD or INF."},
        {person(2, "type", "CHD"), "The booking is for 1 passengers of type CHD, not 2."},
        {person(0, "gender", "female"), "The passengers[0].gender field must be Male or Female."},
        {person(0, "first_name", ""), "The passengers[0].first_name field is required."},
        {person(0, "title", nullptr), "The passengers[0].title field must be text."},
        {person(0, "nationality", "Nepal"),
         "The passengers[0].nationality field must be a country's short_name."},
        {person(0, "document_type", "citizenship"),
         "The passengers[0].document_type field is not an allowed document."},
        {person(0, "document_number", ""), "The passengers[0].document_number field is required."},
        {person(0, "document_expiry_date", "2026-09-09"),
         "A passport must be valid for six months from the departure."},
        {person(0, "seat", "12A"), "The passengers[0].seat field is not known here."},
        {[](Json& body) { body["passengers"].erase(2); },
         "The booking is for 1 passengers of type INF, not 0."},
        {[](Json& body) { body["emergencyContact"]["contact"] = "980123456"; },
         "The emergencyContact.contact field must have at least 10 characters."},
        {[](Json& body) { body["emergencyContact"].erase("isPassenger"); },
         "The emergencyContact.isPassenger field is missing."},
        {[](Json& body) { body["availabilitySummary"]["numberAdult"] = 2; },
         "The availabilitySummary is not the one that was answered."},
        {[](Json& body) { body["availabilitySummary"]["bookingReferenceID"] = "NONE"; },
         "The booking reference is not known."},
        {[](Json& body) { body["partner"] = "x"; }, "The partner field is not known here."},
    };
    const Json opened = openFamilyBooking();
    for (const Case& scenario : wrong) {
        Json body = reservationBody(opened, family());
        scenario.change(body);
        EXPECT_EQ(ServiceClient::error(client_.post("/reservation", body)), scenario.error);
    }
    EXPECT_EQ(ServiceClient::error(reserve(opened, family())), "");
}

TEST_F(ReservationRules, LetABookingBeReservedAgainUntilItExpires) {
    const Json opened = openFamilyBooking();
    const Json first = reserve(opened, family()).at("data").at("bookingSummary");
    EXPECT_EQ(first["bookingReferenceID"], opened["availabilitySummary"]["bookingReferenceID"]);
    EXPECT_EQ(first["fareInformation"], opened["fareInformation"]);
    ASSERT_EQ(first["passengers"].size(), 3U);
    EXPECT_EQ(first["passengers"][1]["passenger_type"], "CHD");
    EXPECT_EQ(first["passengers"][1]["passenger_name"], "Asha Rai");

    client_.sandbox().advanceClock(std::chrono::seconds(630));
    const Json second = reserve(opened, family()).at("data").at("bookingSummary");
    EXPECT_NE(second["PNR"], first["PNR"]);
    EXPECT_NE(second["passengers"][0]["passenger_id"], first["passengers"][0]["passenger_id"]);

    client_.sandbox().advanceClock(std::chrono::seconds(1));
    EXPECT_EQ(ServiceClient::error(reserve(opened, family())),
              "The session has expired. Please check the latest fares.");
}

TEST_F(ReservationRules, AskForNoDocumentWhereNoneIsRequired) {
    Json travellers = family();
    for (Json& traveller : travellers) {
        traveller["document_type"] = "citizenship";
        traveller.erase("document_number");
        traveller.erase("document_expiry_date");
    }
    EXPECT_EQ(ServiceClient::error(reserve(openFamilyBooking("PKR"), travellers)), "");
}

} // namespace

} // namespace ombrivane::sandbox
