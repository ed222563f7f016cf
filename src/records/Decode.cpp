#include "records/Decode.h"

#include "records/Airport.h"
#include "records/Authentication.h"
#include "records/Country.h"
#include "records/Decoder.h"
#include "records/EmergencyContact.h"
#include "records/FlightAvailability.h"
#include "records/FlightBooking.h"
#include "records/FlightSearchOneWay.h"
#include "records/FlightSearchRoundTrip.h"
#include "records/FlightTicketing.h"
#include "records/JsonDocument.h"
#include "records/Passenger.h"
#include "records/PaymentSummary.h"

namespace ombrivane {

template <class Record> void decode(const simdjson::dom::element& element, Record& record, DecodeRoom& room) {
    Decoder<Record>::decode(element, record, room);
}

template <class Record> Record decode(const simdjson::dom::element& element) {
    Record record;
    DecodeRoom room;
    decode(element, record, room);
    return record;
}

template <class Record> Record decodeText(std::string_view json) {
    return decode<Record>(JsonDocument(json).root());
}

#define OMBRIVANE_DECODES(Record)                                                                            \
    template void decode<Record>(const simdjson::dom::element&, Record&, DecodeRoom&);                       \
    template Record decode<Record>(const simdjson::dom::element&);                                           \
    template Record decodeText<Record>(std::string_view);

OMBRIVANE_DECODES(Airport)
OMBRIVANE_DECODES(Authentication)
OMBRIVANE_DECODES(BookingSummary)
OMBRIVANE_DECODES(Country)
OMBRIVANE_DECODES(EmergencyContact)
OMBRIVANE_DECODES(FlightBooking)
OMBRIVANE_DECODES(FlightSearchOneWay)
OMBRIVANE_DECODES(FlightSearchRoundTrip)
OMBRIVANE_DECODES(FlightTicketing)
OMBRIVANE_DECODES(OWFlightAvailability)
OMBRIVANE_DECODES(Passenger)
OMBRIVANE_DECODES(PaymentSummary)
OMBRIVANE_DECODES(RTFlightAvailability)

#undef OMBRIVANE_DECODES

} // namespace ombrivane
