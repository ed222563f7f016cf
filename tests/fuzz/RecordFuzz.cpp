// Records: every object of a text that passes for a record is the same record when it was written and read
// again.
#include "Require.h"
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
#include "records/JsonDocument.h"
#include "records/Passenger.h"
#include "records/PaymentSummary.h"

#include <simdjson.h>

#include <cstdint>
#include <optional>
#include <string>

namespace {

using namespace ombrivane;
using simdjson::dom::element;

template <class Record> std::optional<Record> readAs(const element& json) {
    try {
        return decode<Record>(json);
    } catch (const DecodeError& error) {
        require(*error.what() != '\0', "an error says what was wrong");
        return std::nullopt;
    }
}

template <class Record> void readBack(const element& json) {
    const std::optional<Record> record = readAs<Record>(json);
    if (!record) return;
    const std::string written = encode(*record).dump();
    auto again = decodeText<Record>(written);
    if constexpr (requires { Record::hasLocalIdentity; }) again.id = record->id;
    require(again == *record, "a record is read as it was written");
    require(std::hash<Record>()(again) == std::hash<Record>()(*record), "equal records have one hash");
    require(encode(again).dump() == written, "a record is written in one way");
}

void visit(const element& json, int& visits) {
    if (--visits < 0) return;
    simdjson::dom::array list;
    simdjson::dom::object object;
    if (json.get(list) == simdjson::SUCCESS) {
        for (const element item : list)
            visit(item, visits);
    } else if (json.get(object) == simdjson::SUCCESS) {
        readBack<Authentication>(json);
        readBack<Country>(json);
        readBack<Airport>(json);
        readBack<FlightSearchOneWay>(json);
        readBack<FlightSearchRoundTrip>(json);
        readBack<OWFlightAvailability>(json);
        readBack<RTFlightAvailability>(json);
        readBack<Passenger>(json);
        readBack<EmergencyContact>(json);
        readBack<FlightBooking>(json);
        readBack<BookingSummary>(json);
        readBack<PaymentSummary>(json);
        readBack<FlightTicketing>(json);
        for (const auto member : object)
            visit(member.value, visits);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const JsonDocument document(std::string(data, data + size));
        int visits = 50;
        visit(document.root(), visits);
    } catch (const DecodeError&) {
        // No JSON: nothing to read.
    }
    return 0;
}
