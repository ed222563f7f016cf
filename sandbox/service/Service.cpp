#include "sandbox/service/Service.h"

#include "sandbox/service/Documents.h"
#include "sandbox/service/OfferTree.h"
#include "sandbox/service/PassengerRules.h"
#include "sandbox/service/Payments.h"
#include "sandbox/wire/BodyFields.h"
#include "sandbox/wire/Refusal.h"
#include "sandbox/world/Airlines.h"
#include "sandbox/world/Airports.h"
#include "sandbox/world/Countries.h"
#include "sandbox/world/FareRules.h"
#include "sandbox/world/Logos.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

namespace ombrivane::sandbox {

struct Service::Call {
    const HttpRequest& request;
    std::string userType; ///< of the token; empty for the token request
    Json body;            ///< of a JSON request

    [[nodiscard]] BodyFields fields() const { return BodyFields(body); }

    /// The fields, whose `user_type` is that of the token.
    [[nodiscard]] BodyFields ownFields() const {
        BodyFields own(body);
        expectUserType(own.text("user_type"));
        return own;
    }

    void expectUserType(const std::string& sent) const {
        if (sent != userType) throw Refusal("The user_type is not the one of the token.");
    }
};

struct Service::Endpoint {
    enum class Form { Query, JsonBody, Multipart };

    std::string_view path;
    Form form;
    bool needsToken;
    HttpAnswer (Service::*answer)(const Call&);
};

namespace {

Json parsedBody(const HttpRequest& request) {
    const std::string type = request.header("Content-Type");
    if (!equalIgnoringCase(type.substr(0, type.find(';')), "application/json"))
        throw Refusal("The Content-Type must be application/json.");
    // What is nested without end would exhaust the stack when it is copied.
    bool isTooDeep = false;
    const auto watchDepth = [&](int depth, Json::parse_event_t, const Json&) {
        isTooDeep = isTooDeep || depth > 64;
        return !isTooDeep;
    };
    Json body = Json::parse(request.body, watchDepth, false);
    if (isTooDeep) throw Refusal("The request body is nested too deeply.");
    if (body.is_discarded()) throw Refusal("The request body is no JSON.");
    return body;
}

const Json& itinerary(const BodyFields& fields, std::string_view key) {
    if (fields.value(key).is_null())
        throw Refusal(fmt::format("The {} is missing. Please search again.", key));
    return fields.object(key);
}

/// The trip that a request with one or two itineraries means.
Trip tripOf(const BodyFields& fields, const OfferBook& offers, OfferBook::Likeness likeness) {
    using Likeness = OfferBook::Likeness;
    Trip trip;
    trip.type = fields.text("itinerary_type");
    const Json& sent = itinerary(fields, "itinerary");
    if (trip.type == "oneway") {
        trip.offer = offers.find(sent, OfferList::OneWay, likeness);
    } else if (trip.type == "round") {
        trip.offer = offers.find(sent, OfferList::Round, likeness);
    } else if (trip.type == "round_special") {
        const Json& back = itinerary(fields, "itinerary_return");
        trip.offer = offers.find(sent, OfferList::SpecialOutbound, Likeness::KnownKeys);
        trip.special = offers.find(back, OfferList::SpecialReturn, Likeness::KnownKeys);
        if (placeOf(trip.offer.key)->search != placeOf(trip.special->key)->search)
            throw Refusal("The two itineraries come from different searches.");
    } else {
        throw Refusal("The itinerary_type field must be oneway, round or round_special.");
    }
    return trip;
}

bool isSpecial(const BodyFields& fields) { return fields.text("itinerary_type") == "round_special"; }

/// A client may leave keys without a value out.
nlohmann::json withoutNulls(const Json& object) {
    nlohmann::json copy = nlohmann::json(object);
    for (auto item = copy.begin(); item != copy.end();)
        item = item->is_null() ? copy.erase(item) : std::next(item);
    return copy;
}

} // namespace

Service::Service(const Options& options, std::string address) :
    address_(std::move(address)),
    documents_(options.documents),
    otp_(options.otp),
    clock_(options.now, options.frozen),
    accounts_(options.seed, options.clients),
    offers_(options.seed, address_, options.offers),
    bookings_(options.seed) {}

HttpAnswer Service::answer(const HttpRequest& request) {
    using Form = Endpoint::Form;
    static constexpr std::array<Endpoint, 12> endpoints{{
        {"/get-token", Form::JsonBody, false, &Service::getToken},
        {"/countries", Form::Query, true, &Service::getCountries},
        {"/search-airports", Form::Query, true, &Service::getAirports},
        {"/search-flights", Form::JsonBody, true, &Service::searchFlights},
        {"/verify-flights", Form::JsonBody, true, &Service::verifyFlights},
        {"/availability", Form::JsonBody, true, &Service::openAvailability},
        {"/reservation", Form::JsonBody, true, &Service::reserve},
        {"/documents", Form::Multipart, true, &Service::uploadDocuments},
        {"/kolmiwallet-generate-order", Form::JsonBody, true, &Service::orderPayment},
        {"/kolmiwallet-confirm-order", Form::JsonBody, true, &Service::confirmPayment},
        {"/issue-ticket", Form::JsonBody, true, &Service::issue},
        {"/download-ticket", Form::JsonBody, true, &Service::download},
    }};
    const std::lock_guard lock(mutex_);
    try {
        if (request.path.compare(0, pathPrefix.size(), pathPrefix) != 0) return answerPage(request);
        const std::string_view path = std::string_view(request.path).substr(pathPrefix.size());
        const auto found = std::find_if(endpoints.begin(), endpoints.end(), [&](const Endpoint& endpoint) {
            return endpoint.path == path;
        });
        if (found == endpoints.end())
            throw Refusal(fmt::format("There is nothing at {}.", request.path), 404);
        return answerEndpoint(*found, request);
    } catch (const Refusal& refusal) {
        return refusalAnswer(refusal.what(), refusal.status());
    } catch (const std::exception& failure) {
        return cannotAnswer(failure);
    }
}

Json Service::bookings() {
    const std::lock_guard lock(mutex_);
    return bookings_.overview();
}

void Service::setTerms(const Terms& terms) {
    const std::lock_guard lock(mutex_);
    terms_ = terms;
}

void Service::reset() {
    const std::lock_guard lock(mutex_);
    accounts_.clear();
    offers_.clear();
    bookings_.clear();
}

HttpAnswer Service::answerEndpoint(const Endpoint& endpoint, const HttpRequest& request) {
    const std::string_view method = endpoint.form == Endpoint::Form::Query ? "GET" : "POST";
    if (method != request.method) throw Refusal(fmt::format("{} takes {}.", endpoint.path, method), 405);
    Call call{request, {}, {}};
    if (endpoint.needsToken) call.userType = accounts_.userTypeOf(request.header("Authorization"));
    if (endpoint.form == Endpoint::Form::JsonBody) call.body = parsedBody(request);
    return (this->*endpoint.answer)(call);
}

/// Logos and tickets, which need no token: a browser and an image loader fetch them.
HttpAnswer Service::answerPage(const HttpRequest& request) {
    constexpr std::string_view tickets = "/tickets/";
    for (const Airline& airline : airlines())
        if (request.path == logoPath(airline))
            return {200, {{"Content-Type", "image/png"}}, logoPng(airline)};
    if (request.path.compare(0, tickets.size(), tickets) == 0)
        return {200,
                {{"Content-Type", "text/html; charset=utf-8"}},
                ticketPage(request.path.substr(tickets.size()), bookings_)};
    throw Refusal(fmt::format("There is nothing at {}.", request.path), 404);
}

HttpAnswer Service::getToken(const Call& call) {
    const BodyFields fields = call.fields();
    fields.expectKeys({"user_type", "username", "password"});
    const std::string token = accounts_.issueToken(
        fields.text("username"), fields.text("password"), fields.filledText("user_type"));
    return successAnswer({{"tokenType", "Bearer"}, {"accessToken", token}});
}

HttpAnswer Service::getCountries(const Call& call) {
    call.expectUserType(call.request.parameter("user_type"));
    return successAnswer({{"countries", countriesJson()}});
}

HttpAnswer Service::getAirports(const Call& call) {
    call.expectUserType(call.request.parameter("user_type"));
    Json list = Json::array();
    for (const Airport* airport : searchAirports(call.request.parameter("q")))
        list.push_back(airportJson(*airport));
    return successAnswer({{"airports", list}});
}

HttpAnswer Service::searchFlights(const Call& call) {
    static_cast<void>(call.ownFields());
    return successAnswer(offers_.search(parseSearch(call.body, clock_.now())));
}

HttpAnswer Service::verifyFlights(const Call& call) {
    const BodyFields fields = call.fields();
    if (isSpecial(fields)) {
        fields.expectKeys({"itinerary_type", "itinerary", "itinerary_return"});
    } else {
        fields.expectKeys({"user_type", "itinerary_type", "itinerary"});
        call.expectUserType(fields.text("user_type"));
    }
    const Trip trip = tripOf(fields, offers_, OfferBook::Likeness::KnownKeys);
    auto rules = fareRules(trip.offer);
    if (trip.special)
        if (const auto more = fareRules(*trip.special)) rules = rules.value_or("") + *more;
    if (!rules) return jsonAnswer({{"success", true}, {"hasRestrictions", false}});
    return jsonAnswer({{"success", true}, {"hasRestrictions", true}, {"message", *rules}});
}

HttpAnswer Service::openAvailability(const Call& call) {
    const BodyFields fields = call.ownFields();
    if (isSpecial(fields)) {
        fields.expectKeys({"user_type", "itinerary_type", "itinerary", "itinerary_return"});
    } else {
        fields.expectKeys({"user_type", "itinerary_type", "itinerary"});
    }
    Trip trip = tripOf(fields, offers_, OfferBook::Likeness::Whole);
    trip.farePercent = terms_.farePercent;
    DocumentTerms terms = documentTermsFor(trip, documents_);
    return successAnswer(bookings_.open(std::move(trip), std::move(terms), clock_.now(), terms_, address_));
}

HttpAnswer Service::reserve(const Call& call) {
    const BodyFields fields = call.ownFields();
    fields.expectKeys({"user_type", "availabilitySummary", "emergencyContact", "passengers"});
    const Json& summary = fields.object("availabilitySummary");
    Booking& booking = bookings_.at(BodyFields(summary, "availabilitySummary.").text("bookingReferenceID"));
    if (withoutNulls(summary) != withoutNulls(booking.summary))
        throw Refusal("The availabilitySummary is not the one that was answered.");
    checkEmergencyContact(fields.object("emergencyContact"));
    auto travellers = checkPassengers(fields.array("passengers"), booking, clock_.now());
    const Reservation& reservation = bookings_.reserve(booking, std::move(travellers), clock_.now());
    return successAnswer({{"bookingSummary", bookingSummary(booking, reservation, true)}});
}

HttpAnswer Service::uploadDocuments(const Call& call) {
    const auto form = parseForm(call.request.header("Content-Type"), call.request.body);
    return successAnswer(acceptDocuments(form, call.userType, bookings_));
}

HttpAnswer Service::orderPayment(const Call& call) {
    return successAnswer(generateOrder(call.ownFields(), bookings_));
}

HttpAnswer Service::confirmPayment(const Call& call) {
    return successAnswer(confirmOrder(call.ownFields(), bookings_, otp_));
}

HttpAnswer Service::issue(const Call& call) {
    return successAnswer(issueTicket(call.ownFields(), bookings_, clock_.now()));
}

HttpAnswer Service::download(const Call& call) {
    return successAnswer(downloadTicket(call.ownFields(), bookings_, address_));
}

} // namespace ombrivane::sandbox
