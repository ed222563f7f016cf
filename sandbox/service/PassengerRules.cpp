#include "sandbox/service/PassengerRules.h"

#include "sandbox/wire/BodyFields.h"
#include "sandbox/wire/Refusal.h"
#include "sandbox/world/Countries.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace ombrivane::sandbox {

namespace {

struct AgeRule {
    std::string_view type;
    std::string_view name;
    int youngest; ///< years on the last day of travel
    int oldest;   ///< the birthday itself still counts
};

constexpr std::array<AgeRule, 3> ageRules{
    {{"ADT", "An adult", 12, 100}, {"CHD", "A child", 0, 12}, {"INF", "An infant", 0, 2}}};

const AgeRule& ruleFor(const BodyFields& fields) {
    const std::string& type = fields.text("type");
    for (const AgeRule& rule : ageRules)
        if (rule.type == type) return rule;
    throw Refusal(fmt::format("The {} field must be ADT, CHD or INF.", fields.name("type")));
}

Day day(const BodyFields& fields, std::string_view key) {
    const auto parsed = parseDay(fields.filledText(key));
    if (!parsed) throw Refusal(fmt::format("The {} field must be a date like 1990-12-31.", fields.name(key)));
    return *parsed;
}

void checkAge(const BodyFields& fields, const AgeRule& rule, Day lastDay, Instant now) {
    const Day born = day(fields, "dob");
    if (born > now + std::chrono::hours(24)) throw Refusal("A date of birth lies in the future.");
    if (born < plusYears(lastDay, -rule.oldest))
        throw Refusal(fmt::format("{} can be at most {} years old on the last day of travel: see {}.",
                                  rule.name,
                                  rule.oldest,
                                  fields.name("dob")));
    if (rule.youngest > 0 && born > plusYears(lastDay, -rule.youngest))
        throw Refusal(fmt::format("{} must be {} years old on the last day of travel: see {}.",
                                  rule.name,
                                  rule.youngest,
                                  fields.name("dob")));
}

void checkDocument(const BodyFields& fields, const Booking& booking) {
    const DocumentTerms& terms = booking.documents;
    const std::string& type = fields.text("document_type");
    const bool isAllowed = std::find(terms.allowed.begin(), terms.allowed.end(), type) != terms.allowed.end();
    if (!isAllowed && !(type.empty() && terms.allowed.empty()))
        throw Refusal(fmt::format("The {} field is not an allowed document.", fields.name("document_type")));
    for (std::string_view key : {"document_number", "document_issued_date_serial_no"})
        if (fields.has(key)) static_cast<void>(fields.text(key));
    if (terms.required) static_cast<void>(fields.filledText("document_number"));
    if (fields.has("document_expiry_date") || (terms.required && type == "passport")) {
        const Day expiry = day(fields, "document_expiry_date");
        if (terms.required && type == "passport" && expiry < plusMonths(booking.firstDay(), 6))
            throw Refusal("A passport must be valid for six months from the departure.");
    }
}

void checkPerson(const BodyFields& fields) {
    for (std::string_view key : {"dob_nepali", "middle_name", "email", "title"})
        static_cast<void>(fields.text(key));
    static_cast<void>(fields.filledText("first_name"));
    static_cast<void>(fields.filledText("last_name"));
    if (fields.text("gender") != "Male" && fields.text("gender") != "Female")
        throw Refusal(fmt::format("The {} field must be Male or Female.", fields.name("gender")));
    if (!isCountryCode(fields.text("nationality")))
        throw Refusal(
            fmt::format("The {} field must be a country's short_name.", fields.name("nationality")));
}

bool isUpperCaseUuid(std::string_view text) {
    constexpr std::string_view shape = "XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX";
    return std::equal(text.begin(), text.end(), shape.begin(), shape.end(), [](char letter, char place) {
        if (place == '-') return letter == '-';
        return (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'F');
    });
}

void checkCounts(const std::vector<Traveller>& travellers, const Booking& booking) {
    const SearchRequest& request = booking.trip.offer.request;
    const std::array<int, 3> expected{request.adults, request.children, request.infants};
    for (std::size_t i = 0; i < ageRules.size(); ++i) {
        const auto count =
            std::count_if(travellers.begin(), travellers.end(), [&](const Traveller& traveller) {
                return traveller.type == ageRules[i].type;
            });
        if (count != expected[i])
            throw Refusal(fmt::format("The booking is for {} passengers of type {}, not {}.",
                                      expected[i],
                                      ageRules[i].type,
                                      count));
    }
}

} // namespace

std::vector<Traveller> checkPassengers(const Json& passengers, const Booking& booking, Instant now) {
    std::vector<Traveller> travellers;
    for (const Json& passenger : passengers) {
        const BodyFields fields(passenger, fmt::format("passengers[{}].", travellers.size()));
        fields.expectKeys({"id",
                           "dob",
                           "dob_nepali",
                           "document_type",
                           "first_name",
                           "gender",
                           "last_name",
                           "middle_name",
                           "email",
                           "nationality",
                           "title",
                           "type"},
                          {"document_expiry_date", "document_issued_date_serial_no", "document_number"});
        if (!isUpperCaseUuid(fields.text("id")))
            throw Refusal(fmt::format("The {} field must be a UUID in capitals.", fields.name("id")));
        checkPerson(fields);
        checkAge(fields, ruleFor(fields), booking.lastDay(), now);
        checkDocument(fields, booking);
        travellers.push_back({"",
                              fields.text("type"),
                              fmt::format("{} {}", fields.text("first_name"), fields.text("last_name")),
                              fields.text("document_type"),
                              ""});
    }
    checkCounts(travellers, booking);
    return travellers;
}

void checkEmergencyContact(const Json& contact) {
    const BodyFields fields(contact, "emergencyContact.");
    fields.expectKeys({"contact", "email", "name", "isPassenger"});
    static_cast<void>(fields.filledText("email"));
    static_cast<void>(fields.filledText("name"));
    static_cast<void>(fields.boolean("isPassenger"));
    if (fields.filledText("contact").size() < 10)
        throw Refusal("The emergencyContact.contact field must have at least 10 characters.");
}

} // namespace ombrivane::sandbox
