// A client on its way through a booking, for the tests of the later steps.
#pragma once

#include "tests/sandbox/ServiceClient.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ombrivane::sandbox {

/// One passenger as the traveller form writes it, with a passport.
inline Json passenger(const std::string& type, const std::string& born) {
    return {{"id", "0F8FAD5B-D9CB-469F-A165-70867728950E"},
            {"dob", born},
            {"dob_nepali", ""},
            {"document_expiry_date", "2031-05-01"},
            {"document_issued_date_serial_no", ""},
            {"document_number", "P1234567"},
            {"document_type", "passport"},
            {"first_name", "Asha"},
            {"gender", "Female"},
            {"last_name", "Rai"},
            {"middle_name", ""},
            {"email", ""},
            {"nationality", "NP"},
            {"title", ""},
            {"type", type}};
}

class BookingFixture : public testing::Test {
protected:
    explicit BookingFixture(Options options = frozenOptions()) : client_(std::move(options)) {}

    Json availability(const Json& offer, const std::string& type = "oneway") {
        return client_.post("/availability",
                            {{"user_type", "customer"}, {"itinerary_type", type}, {"itinerary", offer}});
    }

    /// An availability for an adult, a child and an infant; by default abroad.
    Json openFamilyBooking(const std::string& to = "DOH") {
        Json body = searchBody("KTM", to);
        body["children"] = 1;
        body["infants"] = 1;
        return availability(client_.post("/search-flights", body).at("data").at(0)).at("data");
    }

    static Json family() {
        return {
            passenger("ADT", "1990-12-31"), passenger("CHD", "2016-03-10"), passenger("INF", "2024-03-10")};
    }

    static Json reservationBody(const Json& availability, const Json& passengers) {
        return {
            {"user_type", "customer"},
            {"availabilitySummary", availability.at("availabilitySummary")},
            {"emergencyContact",
             {{"contact", "9801234567"}, {"email", "a@b.np"}, {"name", "Asha Rai"}, {"isPassenger", true}}},
            {"passengers", passengers}};
    }

    Json reserve(const Json& availability, const Json& passengers) {
        return client_.post("/reservation", reservationBody(availability, passengers));
    }

    ServiceClient client_;
};

} // namespace ombrivane::sandbox
