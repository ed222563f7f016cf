#include "services/FlightQuery.h"

#include "base/Fault.h"
#include "platform/Platform.h"
#include "services/Body.h"
#include "services/Endpoints.h"
#include "state/AppState.h"

#include <charconv>

namespace ombrivane {
namespace {

Body bodyOf(const FlightQuery& query) {
    Body body;
    body.add("user_type", AppState::shared().userType.get())
        .add("trip_type", query.tripType)
        .add("depart_city", query.departCity)
        .add("dest_city", query.destCity)
        .add("depart_date", query.departDate.text());
    if (query.returnDate) body.add("return_date", query.returnDate->text());
    body.add("nationality", query.nationality)
        .add("adults", countFrom(query.adults, "the adult count"))
        .add("children", countFrom(query.children, "the child count"))
        .add("infants", countFrom(query.infants, "the infant count"))
        .add("flight_class", query.flightClass);
    return body;
}

} // namespace

std::int64_t countFrom(const std::string& text, const std::string& what) {
    std::int64_t value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, failure] = std::from_chars(text.data(), end, value);
    if (failure != std::errc() || stop != end) fatalFault(what + " is no number: \"" + text + "\"");
    return value;
}

ServiceCall searchCall(const FlightQuery& query) {
    ServiceCall call;
    call.answerBytes = limits::searchBytes;
    call.structureBytes = limits::searchStructureBytes;
    call.endpoint = endpoint::flightSearch;
    call.body = [query] {
        auto body = bodyOf(query).serialised();
        platform().diagnostics->print(body.value_or(""));
        return body;
    };
    return call;
}

} // namespace ombrivane
