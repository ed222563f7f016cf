#include "records/RecordKind.h"

#include "fakes/TestData.h"
#include "records/Airport.h"
#include "records/Authentication.h"
#include "records/Country.h"
#include "records/Decode.h"
#include "records/EmergencyContact.h"
#include "records/Encode.h"
#include "records/FlightAvailability.h"
#include "records/FlightBooking.h"
#include "records/FlightSearchOneWay.h"
#include "records/FlightSearchRoundTrip.h"
#include "records/FlightTicketing.h"
#include "records/Hash.h"
#include "records/Passenger.h"
#include "records/PaymentSummary.h"

#include <gtest/gtest.h>

namespace ombrivane {
namespace {

template <class Record> Json recoded(const std::string& json) { return encode(decodeText<Record>(json)); }

template <class Record> bool alike(const std::string& json, const std::string& other) {
    const auto left = decodeText<Record>(json);
    auto right = decodeText<Record>(other);
    if constexpr (requires { Record::hasLocalIdentity; }) {
        EXPECT_NE(left, right) << "each decoded offer has an identity of its own";
        right.id = left.id;
    }
    const std::hash<Record> hash;
    EXPECT_EQ(left == right, hash(left) == hash(right));
    return left == right;
}

template <class Record> RecordKind kind(const char* file, std::vector<const char*> at, const char* optional) {
    return {file, std::move(at), optional, recoded<Record>, alike<Record>};
}

constexpr const char* none = "-";
constexpr const char* priced = "/availabilitySummary/flightAvailabilityToken|/fareInformation/cashBack";
constexpr const char* booked = "/fareInformation/cashBack";
constexpr const char* ofOffers =
    "/booking_class|"
    "/search_summary/"
    "(rbd|rbd_outbound|rbd_return|booking_class|ticketing_currency|FreeBaggage|FlightNo|refundable)|"
    "/fare_information/(total_adt|total_chd|total_inf|fare_token|cashBack)|"
    "/[a-z_]+_summary/(FlightId|booking_class|journeyKey|fareKey|fares(/.*)?)|"
    "/[a-z_]+_summary(/segments/0)?/(timeOfDepartureSystem|timeOfArrivalSystem|carrierCodeMarketing(Name)?)|"
    ".*/segments/0/(departure_terminal|destination_terminal|equipmentType|rph|segment_details(/.*)?)|"
    ".*/(airportDeparture|airportArrival)/country|"
    ".*/(seats_left|meal_code)"; // no field reads these two

} // namespace

std::vector<Json> RecordKind::samples() const {
    const Json answer = fakes::captured(file);
    std::vector<Json> records;
    for (const char* place : at) {
        const Json& value = answer.at(Json::json_pointer(place));
        if (value.is_array()) {
            records.insert(records.end(), value.begin(), value.end());
        } else {
            records.push_back(value);
        }
    }
    return records;
}

const std::vector<RecordKind>& recordKinds() {
    static const std::vector<RecordKind> kinds{
        kind<Authentication>("token", {"/data"}, none),
        kind<Country>("countries", {"/data/countries"}, none),
        kind<Airport>("airports", {"/data/airports"}, "/country"),
        kind<FlightSearchOneWay>("search-oneway", {"/data"}, ofOffers),
        kind<FlightSearchRoundTrip>("search-round", {"/data"}, ofOffers),
        kind<OWFlightAvailability>("availability-oneway", {"/data"}, priced),
        kind<RTFlightAvailability>("availability-round", {"/data"}, priced),
        kind<Passenger>("passengers",
                        {"/data/passengers"},
                        "/(document_expiry_date|document_issued_date_serial_no|document_number)"),
        kind<EmergencyContact>("emergency-contact", {"/data/emergencyContact"}, none),
        kind<FlightBooking>("reservation", {"/data/bookingSummary"}, booked),
        // The answer tells the fare as well; this record does not.
        kind<BookingSummary>("confirmation", {"/data/bookingSummary"}, "/fareInformation(/.*)?"),
        kind<PaymentSummary>("order", {"/data/paymentSummary"}, "/(partnerName|returnDate)"),
        kind<PaymentSummary>("order-round", {"/data/paymentSummary"}, "/(partnerName|returnDate)"),
        kind<FlightTicketing>("ticket", {"/data"}, none),
    };
    return kinds;
}

} // namespace ombrivane
