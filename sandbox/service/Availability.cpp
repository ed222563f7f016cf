#include "sandbox/service/Availability.h"

#include "sandbox/service/OfferTree.h"
#include "sandbox/world/Logos.h"

#include <fmt/format.h>

namespace ombrivane::sandbox {

namespace {

using std::chrono::minutes;

std::string paddedDuration(minutes time) {
    return fmt::format("{:02} Hr {:02} Min", time.count() / 60, time.count() % 60);
}

Json legJson(const Leg& leg, const std::optional<minutes>& connectionBefore, bool withCountries,
             const std::string& address) {
    Json tree{{"carrierCode", leg.carrier->code},
              {"carrierLogo", address + logoPath(*leg.carrier)},
              {"carrierName", leg.carrier->name},
              {"flight_number", leg.flightNumber},
              {"seg_departure_date", dayText(leg.departure)},
              {"seg_departure_time", timeText(leg.departure)},
              {"seg_arrival_date", dayText(leg.arrival)},
              {"seg_arrival_time", timeText(leg.arrival)},
              {"seg_total_flying_hours", paddedDuration(leg.flying)},
              {"seg_departure_airport_code", leg.from->code},
              {"seg_departure_airport", leg.from->name},
              {"seg_departure_city", leg.from->city}};
    if (withCountries) tree["seg_departure_country"] = leg.from->country;
    tree["seg_arrival_airport_code"] = leg.to->code;
    tree["seg_arrival_airport"] = leg.to->name;
    tree["seg_arrival_city"] = leg.to->city;
    if (withCountries) tree["seg_arrival_country"] = leg.to->country;
    tree["seg_connection_time"] = connectionJson(connectionBefore);
    return tree;
}

/// Here a leg carries the connection that comes before it: clients show it above the leg.
Json legsJson(const Journey& journey, bool withCountries, const std::string& address) {
    Json legs = Json::array();
    std::optional<minutes> connection;
    for (const Leg& leg : journey.legs) {
        legs.push_back(legJson(leg, connection, withCountries, address));
        connection = leg.connection;
    }
    return legs;
}

/// The block of one direction; `prefix` is "" or "return_".
void addDirection(Json& tree, const Journey& journey, const std::string& prefix, bool withCountries) {
    const Leg& first = journey.first();
    const Leg& last = journey.last();
    tree[prefix + "dept_date"] = dayText(first.departure);
    tree[prefix + "dept_time"] = timeText(first.departure);
    tree[prefix + "dest_date"] = dayText(last.arrival);
    tree[prefix + "dest_time"] = timeText(last.arrival);
    tree[prefix + "total_flying_hours"] = paddedDuration(journey.elapsed());
    tree[prefix + "depart_city_airport_code"] = first.from->code;
    tree[prefix + "depart_city_airport_name"] = first.from->name;
    tree[prefix + "depart_city_name"] = first.from->city;
    if (withCountries) tree[prefix + "depart_country"] = first.from->country;
    tree[prefix + "dest_city_airport_code"] = last.to->code;
    tree[prefix + "dest_city_airport_name"] = last.to->name;
    tree[prefix + "dest_city_name"] = last.to->city;
    if (withCountries) tree[prefix + "dest_country"] = last.to->country;
}

void addCarrier(Json& tree, const Journey& journey, const std::string& suffix, const std::string& address) {
    const Airline& carrier = *journey.first().carrier;
    tree["carrierCode" + suffix] = carrier.code;
    tree["carrierLogo" + suffix] = address + logoPath(carrier);
    tree["carrierName" + suffix] = carrier.name;
}

Json flightsSummary(const Trip& trip, const std::string& address) {
    Json tree = Json::object();
    const Journey* back = trip.back();
    addDirection(tree, trip.outbound(), "", back != nullptr);
    addCarrier(tree, trip.outbound(), "", address);
    if (back == nullptr) {
        tree["flight_segments"] = legsJson(trip.outbound(), false, address);
        return tree;
    }
    addDirection(tree, *back, "return_", true);
    addCarrier(tree, *back, "Return", address);
    tree["flight_segments_outbound"] = legsJson(trip.outbound(), true, address);
    tree["flight_segments_return"] = legsJson(*back, true, address);
    return tree;
}

Json baggage(const Fare& fare) {
    return {{"cabin", fmt::format("{} Kg", fare.cabinKilos)},
            {"baggage", fmt::format("{} Kg", fare.checkedKilos)}};
}

Json summary(const Trip& trip, const std::string& reference, const std::string& token) {
    Json tree{{"bookingReferenceID", reference}};
    if (!token.empty()) tree["flightAvailabilityToken"] = token;
    tree["tripType"] = trip.type;
    tree["currency"] = "NPR";
    tree["numberAdult"] = trip.offer.request.adults;
    tree["numberChild"] = trip.offer.request.children;
    tree["numberInfant"] = trip.offer.request.infants;
    return tree;
}

} // namespace

DocumentTerms documentTermsFor(const Trip& trip, DocumentsRule rule) {
    const bool isDomestic = trip.offer.request.isDomestic();
    DocumentTerms terms;
    terms.required = rule == DocumentsRule::Always || (rule == DocumentsRule::Auto && !isDomestic);
    if (isDomestic) {
        terms.allowed = {"citizenship", "voters_id", "birth_certificate", "minor_id", "passport"};
    } else if (terms.required) {
        terms.allowed = {"passport"};
    }
    return terms;
}

Json availabilityJson(const Trip& trip, const std::string& reference, const std::string& token,
                      const DocumentTerms& documents, const std::string& address) {
    Json bags = baggage(trip.offer.fare);
    if (trip.back() != nullptr)
        bags = {{"outbound", bags}, {"return", baggage((trip.special.value_or(trip.offer)).fare)}};
    return {{"availabilitySummary", summary(trip, reference, token)},
            {"flightsSummary", flightsSummary(trip, address)},
            {"baggageDetails", bags},
            {"fareInformation", fareJson(trip.fare())},
            {"documentsRequired", documents.required},
            {"allowedDocuments", documents.allowed}};
}

} // namespace ombrivane::sandbox
