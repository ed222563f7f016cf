#include "sandbox/service/OfferTree.h"

#include "sandbox/world/Logos.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace ombrivane::sandbox {

namespace {

using std::chrono::minutes;

constexpr std::array<std::string_view, 2> ownKeys{"seats_left", "meal_code"};

/// References within one offer, each the same every time.
class References {
public:
    explicit References(const Offer& offer) : offer_(offer) {}

    [[nodiscard]] std::string reference(std::string_view subject, std::size_t number = 0) const {
        return Dice(0, fmt::format("{} {} {}", offer_.key, subject, number)).letters(22, capitalsAndDigits) +
               "==";
    }

private:
    const Offer& offer_;
};

/// The service sends some quantities now as a number, now as text.
Json quantity(int value, bool asText) { return asText ? Json(std::to_string(value)) : Json(value); }

std::string duration(minutes time) {
    return fmt::format("{} Hr {} Min", time.count() / 60, time.count() % 60);
}

std::string departureSystem(const Leg& leg) { return zonedText(leg.departure, minutes(leg.from->utcOffset)); }
std::string arrivalSystem(const Leg& leg) { return zonedText(leg.arrival, minutes(leg.to->utcOffset)); }

std::string fareBasis(const Offer& offer, std::string_view kind) {
    return fmt::format("{}{}{}{}",
                       bookingLetter(offer.fare.cabin),
                       offer.fare.brand.substr(0, 2),
                       offer.back ? "RT" : "OW",
                       kind == "ADT" ? "" : kind);
}

std::string_view cabinText(std::string_view cabin) {
    return cabin == "W" ? "PremiumEconomy" : cabin == "C" ? "Business" : cabin == "F" ? "First" : "Economy";
}

Json searchSummary(const Offer& offer) {
    Json summary{{"search_key", offer.key},
                 {"source_id", fmt::format("{}", 1 + offer.index % 3)},
                 {"currency", "NPR"},
                 {"validating_carrier", offer.outbound.first().carrier->code}};
    // Without a class a client takes it for economy.
    if (offer.isSparse && offer.fare.cabin != "M") summary["booking_class"] = offer.fare.cabin;
    if (offer.isSparse) return summary;
    const auto letters = [&](const Journey& journey) {
        return Json(std::vector<std::string_view>(journey.legs.size(), bookingLetter(offer.fare.cabin)));
    };
    if (offer.back) {
        summary["rbd_outbound"] = letters(offer.outbound);
        summary["rbd_return"] = letters(*offer.back);
    } else {
        summary["rbd"] = letters(offer.outbound);
    }
    summary["booking_class"] = offer.fare.cabin;
    summary["ticketing_currency"] = "NPR";
    if (offer.back) return summary;
    summary["FreeBaggage"] = quantity(offer.fare.checkedKilos, offer.index % 2 == 0);
    summary["FlightNo"] = offer.outbound.first().flightNumber;
    if (offer.fare.isRefundable || offer.index % 3 != 0)
        summary["refundable"] = offer.fare.isRefundable ? "Refundable" : "Non-Refundable";
    return summary;
}

Json fareInformation(const Offer& offer) {
    if (offer.isSparse) return {{"total_cost", offer.fare.totals.total()}};
    Json fare = fareJson(offer.fare.totals);
    fare["fare_token"] = References(offer).reference("fare token");
    return fare;
}

Json baggage(const Offer& offer, std::size_t variant) {
    return {{"cabin", quantity(offer.fare.cabinKilos, variant % 3 == 0)},
            {"baggage", quantity(offer.fare.checkedKilos, variant % 2 == 0)}};
}

Json carrierKeys(const Airline& airline, const std::string& address) {
    return {{"carrierName", airline.name},
            {"carrierCode", airline.code},
            {"carrierLogo", address + logoPath(airline)}};
}

Json segmentDetails(const Offer& offer, const Leg& leg, std::size_t number) {
    const References make(offer);
    const std::string key = make.reference("segment", number);
    return {{"attributes",
             {{"Key", key},
              {"Group", "0"},
              {"Carrier", leg.carrier->code},
              {"FlightNumber", leg.flightNumber},
              {"Origin", leg.from->code},
              {"Destination", leg.to->code},
              {"DepartureTime", departureSystem(leg)},
              {"ArrivalTime", arrivalSystem(leg)},
              {"FlightTime", std::to_string(leg.flying.count())},
              {"Equipment", leg.equipment},
              {"Status", "HK"},
              {"SupplierCode", leg.carrier->code},
              {"ChangeOfPlane", "false"},
              {"OptionalServicesIndicator", "false"},
              {"APISRequirementsRef", make.reference("apis", number)}}},
            {"airCodeshareInfo",
             {{"attributes",
               {{"OperatingCarrier", leg.operatedBy->code}, {"OperatingFlightNumber", leg.flightNumber}}},
              {"value", leg.operatedBy->name}}},
            {"airAirAvailInfo", {{"attributes", {{"ProviderCode", "1X"}}}, {"value", ""}}},
            {"airFlightDetailsRef",
             {{"attributes", {{"Key", make.reference("details", number)}}}, {"value", ""}}},
            {"segment_ref",
             {{"BookingCode", bookingLetter(offer.fare.cabin)},
              {"BookingCount", std::to_string(1 + offer.index % 9)},
              {"CabinClass", cabinText(offer.fare.cabin)},
              {"FareInfoRef", make.reference("ADT fare")},
              {"SegmentRef", key},
              {"HostTokenRef", make.reference("host token key", number)},
              {"hostToken", make.reference("host token", number)}}}};
}

Json segment(const Offer& offer, const Leg& leg, std::size_t number, const std::string& address) {
    Json tree{{"dateOfDeparture", dayText(leg.departure)},
              {"timeOfDeparture", timeText(leg.departure)},
              {"dateOfArrival", dayText(leg.arrival)},
              {"timeOfArrival", timeText(leg.arrival)}};
    if (!offer.isSparse) {
        tree["timeOfDepartureSystem"] = departureSystem(leg);
        tree["timeOfArrivalSystem"] = arrivalSystem(leg);
    }
    tree["locationDeparture"] = leg.from->code;
    tree["airportDeparture"] = airportJson(*leg.from);
    tree["locationArrival"] = leg.to->code;
    tree["airportArrival"] = airportJson(*leg.to);
    if (!offer.isSparse) {
        tree["departure_terminal"] = leg.from->isDomestic() && leg.to->isDomestic() ? "D" : "1";
        tree["destination_terminal"] = std::to_string(1 + number % 3);
    }
    tree.update(carrierKeys(*leg.carrier, address));
    if (!offer.isSparse || leg.operatedBy != leg.carrier) {
        tree["carrierCodeMarketing"] = leg.operatedBy->code;
        tree["carrierCodeMarketingName"] = leg.operatedBy->name;
    }
    tree["total_flying_hours"] = duration(leg.flying);
    tree["flightNumber"] = leg.flightNumber;
    if (!offer.isSparse) {
        tree["equipmentType"] = leg.equipment;
        tree["rph"] = std::to_string(number + 1);
    }
    tree["connection_time"] = connectionJson(leg.connection);
    if (!offer.isSparse) {
        tree["segment_details"] = segmentDetails(offer, leg, number);
        tree["meal_code"] = leg.flying > minutes(90) ? "M" : "S";
    }
    return tree;
}

Json fareOf(const Offer& offer, const Journey& journey, std::string_view kind) {
    const References make(offer);
    const std::string basis = fareBasis(offer, kind);
    const std::string reference = make.reference(fmt::format("{} fare", kind));
    return {{"attributes",
             {{"Key", reference},
              {"FareBasis", basis},
              {"PassengerTypeCode", kind},
              {"Origin", journey.first().from->code},
              {"Destination", journey.last().to->code},
              {"EffectiveDate", departureSystem(journey.first())},
              {"PromotionalFare", offer.fare.brand == "LITE" ? "true" : "false"},
              {"FareFamily", offer.fare.brand},
              {"SupplierCode", journey.first().carrier->code}}},
            {"airFareRuleKey",
             {{"attributes", {{"FareInfoRef", reference}, {"ProviderCode", "1X"}}},
              {"value", make.reference("rule")}}},
            {"airBrand",
             {{"attributes",
               {{"Key", make.reference("brand")},
                {"BrandID", std::to_string(1000 + offer.index % 3)},
                {"UpSellBrandID", std::to_string(1001 + offer.index % 3)}}},
              {"airUpsellBrand",
               {{"attributes", {{"FareBasis", basis + "UP"}, {"FareInfoRef", make.reference("upsell")}}},
                {"value", ""}}}}}};
}

/// One fare object per kind of traveller one way; an array of them, one per fare component, in a round trip.
Json fares(const Offer& offer, const Journey& journey) {
    Json tree = Json::object();
    const auto add = [&](const char* kind, int count) {
        if (count == 0) return;
        const Json fare = fareOf(offer, journey, kind);
        tree[kind] = offer.back ? Json::array({fare}) : fare;
    };
    add("ADT", offer.request.adults);
    add("INF", offer.request.infants);
    add("CNN", offer.request.children);
    return tree;
}

Json flightSummary(const Offer& offer, const Journey& journey, std::size_t firstSegment,
                   const std::string& address) {
    const References make(offer);
    Json tree = Json::object();
    if (!offer.isSparse) {
        tree["FlightId"] = std::to_string(offer.index + 1);
        tree["booking_class"] = bookingLetter(offer.fare.cabin);
        tree["journeyKey"] = make.reference("journey", firstSegment);
        tree["fareKey"] = make.reference("fare", firstSegment);
    }
    tree["dateOfDeparture"] = dayText(journey.first().departure);
    tree["timeOfDeparture"] = timeText(journey.first().departure);
    tree["dateOfArrival"] = dayText(journey.last().arrival);
    tree["timeOfArrival"] = timeText(journey.last().arrival);
    if (!offer.isSparse) {
        tree["timeOfDepartureSystem"] = departureSystem(journey.first());
        tree["timeOfArrivalSystem"] = arrivalSystem(journey.last());
    }
    tree["locationDeparture"] = journey.first().from->code;
    tree["airportDeparture"] = airportJson(*journey.first().from);
    tree["locationArrival"] = journey.last().to->code;
    tree["airportArrival"] = airportJson(*journey.last().to);
    tree.update(carrierKeys(*journey.first().carrier, address));
    if (!offer.isSparse) {
        tree["carrierCodeMarketing"] = journey.first().operatedBy->code;
        tree["carrierCodeMarketingName"] = journey.first().operatedBy->name;
    }
    tree["total_flying_hours"] = duration(journey.elapsed());
    tree["segments"] = Json::array();
    for (const Leg& leg : journey.legs)
        tree["segments"].push_back(segment(offer, leg, firstSegment + tree["segments"].size(), address));
    if (!offer.isSparse) tree["fares"] = fares(offer, journey);
    return tree;
}

} // namespace

Json connectionJson(const std::optional<minutes>& connection) {
    if (!connection) return false;
    return fmt::format("{}h {}m", connection->count() / 60, connection->count() % 60);
}

Json offerJson(const Offer& offer, const std::string& address) {
    Json tree{{"search_summary", searchSummary(offer)}, {"fare_information", fareInformation(offer)}};
    if (offer.back) {
        tree["flight_departure_summary"] = flightSummary(offer, offer.outbound, 0, address);
        tree["flight_return_summary"] =
            flightSummary(offer, *offer.back, offer.outbound.legs.size(), address);
        tree["baggage_details"] = {{"outbound", baggage(offer, offer.index)},
                                   {"return", baggage(offer, offer.index + 1)}};
    } else {
        tree["flight_summary"] = flightSummary(offer, offer.outbound, 0, address);
        tree["baggage_details"] = baggage(offer, offer.index);
        if (!offer.isSparse) tree["booking_class"] = bookingLetter(offer.fare.cabin);
    }
    tree["seats_left"] = 1 + offer.index % 9;
    return tree;
}

nlohmann::json knownPart(const Json& tree) {
    if (tree.is_array()) {
        nlohmann::json copy = nlohmann::json::array();
        for (const Json& element : tree)
            copy.push_back(knownPart(element));
        return copy;
    }
    if (!tree.is_object()) return nlohmann::json(tree);
    nlohmann::json copy = nlohmann::json::object();
    for (const auto& item : tree.items())
        if (std::find(ownKeys.begin(), ownKeys.end(), item.key()) == ownKeys.end())
            copy[item.key()] = knownPart(item.value());
    return copy;
}

} // namespace ombrivane::sandbox
