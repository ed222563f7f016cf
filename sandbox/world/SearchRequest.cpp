#include "sandbox/world/SearchRequest.h"

#include "sandbox/wire/BodyFields.h"
#include "sandbox/wire/Refusal.h"
#include "sandbox/world/Countries.h"

#include <fmt/format.h>

namespace ombrivane::sandbox {

namespace {

const Airport* knownAirport(const BodyFields& fields, std::string_view key) {
    const Airport* airport = airportOf(fields.filledText(key));
    if (airport == nullptr) throw Refusal(fmt::format("There is no airport {}.", fields.text(key)));
    return airport;
}

Day day(const BodyFields& fields, std::string_view key) {
    const auto parsed = parseDay(fields.filledText(key));
    if (!parsed) throw Refusal(fmt::format("The {} field must be a date like 2026-03-01.", key));
    return *parsed;
}

/// The earliest date that is still today somewhere: clients send the date of their own zone.
Day earliestToday(Instant now) { return std::chrono::floor<std::chrono::days>(now - std::chrono::hours(12)); }

int count(const BodyFields& fields, std::string_view key, int least) {
    const std::int64_t number = fields.integer(key);
    if (number < least || number > 9)
        throw Refusal(fmt::format("The {} field must be between {} and 9.", key, least));
    return static_cast<int>(number);
}

void checkTravellers(const SearchRequest& request) {
    if (request.infants > request.adults) throw Refusal("Every infant needs an adult.");
    if (request.adults + request.children + request.infants > 9)
        throw Refusal("At most 9 people can travel together.");
}

void checkCabin(const SearchRequest& request) {
    for (std::string_view known : {"", "M", "W", "C", "F"})
        if (request.cabin == known) return;
    throw Refusal("The flight_class field must be empty or one of M, W, C and F.");
}

} // namespace

std::string SearchRequest::subject() const {
    return fmt::format("{} {} {} {} {} {} {}-{}-{} {}",
                       tripType,
                       from->code,
                       to->code,
                       dayText(departure),
                       comingBack ? dayText(*comingBack) : "-",
                       nationality,
                       adults,
                       children,
                       infants,
                       cabin.empty() ? "all" : cabin);
}

SearchRequest parseSearch(const Json& body, Instant now) {
    const BodyFields fields(body);
    SearchRequest request;
    request.tripType = fields.filledText("trip_type");
    if (request.tripType != "oneway" && request.tripType != "round")
        throw Refusal("The trip_type field must be oneway or round.");
    if (request.tripType == "round") {
        fields.expectKeys({"user_type",
                           "trip_type",
                           "depart_city",
                           "dest_city",
                           "depart_date",
                           "return_date",
                           "nationality",
                           "adults",
                           "children",
                           "infants",
                           "flight_class"});
        request.comingBack = day(fields, "return_date");
    } else {
        fields.expectKeys({"user_type",
                           "trip_type",
                           "depart_city",
                           "dest_city",
                           "depart_date",
                           "nationality",
                           "adults",
                           "children",
                           "infants",
                           "flight_class"});
    }
    request.from = knownAirport(fields, "depart_city");
    request.to = knownAirport(fields, "dest_city");
    if (request.from == request.to) throw Refusal("The origin and the destination are the same.");
    request.departure = day(fields, "depart_date");
    if (request.departure < earliestToday(now)) throw Refusal("The departure date has passed.");
    if (request.comingBack && *request.comingBack < request.departure)
        throw Refusal("The return date lies before the departure date.");
    request.nationality = fields.filledText("nationality");
    if (!isCountryCode(request.nationality))
        throw Refusal("The nationality field must be a country's short_name.");
    request.adults = count(fields, "adults", 1);
    request.children = count(fields, "children", 0);
    request.infants = count(fields, "infants", 0);
    checkTravellers(request);
    request.cabin = fields.text("flight_class");
    checkCabin(request);
    return request;
}

} // namespace ombrivane::sandbox
