#include "sandbox/control/Scenarios.h"

#include "sandbox/Json.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace ombrivane::sandbox {

namespace {

std::string lettersOf(std::string_view text) {
    std::string letters;
    for (const char sign : text)
        if (std::isalpha(static_cast<unsigned char>(sign)) != 0)
            letters += static_cast<char>(std::tolower(static_cast<unsigned char>(sign)));
    return letters;
}

} // namespace

const std::vector<Scenario>& scenarios() {
    using std::chrono::minutes;
    static const std::vector<Scenario> all{
        {.name = "no-flights",
         .meaning = "no search finds a flight",
         .faults = {"/search-flights refuse=Sorry! No flight recommendations found."}},
        {.name = "search-hangs", .meaning = "no search is answered", .faults = {"/search-flights silence"}},
        {.name = "sold-out",
         .meaning = "the offer that is chosen is gone once its price is asked for",
         .faults = {"/availability refuse=Sorry! This flight is sold out."}},
        {.name = "dearer",
         .meaning = "every offer costs 7 % more once its price is asked for",
         .farePercent = 7},
        {.name = "cheaper",
         .meaning = "every offer costs 7 % less once its price is asked for",
         .farePercent = -7},
        {.name = "expires-soon",
         .meaning = "the service holds a price for one minute, and refuses to reserve after that",
         .holds = minutes(1)},
        {.name = "seats-gone",
         .meaning = "the next reservation is refused",
         .faults = {"/reservation refuse=Sorry! The last seats have just been taken. times=1"},
         .bySurname = true},
        {.name = "reservation-unknown",
         .meaning = "the next reservation is made, and its answer is lost",
         .faults = {"/reservation drop times=1"},
         .bySurname = true},
        {.name = "documents-lost",
         .meaning = "the answer to the next upload of documents is lost",
         .faults = {"/documents drop times=1"},
         .bySurname = true},
        {.name = "slow-line",
         .meaning = "every answer takes two seconds longer",
         .faults = {"* latency=2000"},
         .bySurname = true},
        {.name = "offline", .meaning = "no answer arrives", .faults = {"* drop"}},
    };
    return all;
}

const Scenario& scenarioNamed(std::string_view name) {
    std::string names;
    for (const Scenario& scenario : scenarios()) {
        if (scenario.name == name) return scenario;
        names += fmt::format("{}{}", names.empty() ? "" : ", ", scenario.name);
    }
    throw std::invalid_argument(fmt::format("There is no scenario \"{}\"; there are {}.", name, names));
}

const Scenario* scenarioOfTravellers(const std::string& body) {
    const Json request = Json::parse(body, nullptr, false);
    if (!request.is_object() || !request.contains("passengers")) return nullptr;
    for (const Json& passenger : request["passengers"]) {
        if (!passenger.is_object() || !passenger.contains("last_name") || !passenger["last_name"].is_string())
            continue;
        const std::string surname = lettersOf(passenger["last_name"].get<std::string>());
        for (const Scenario& scenario : scenarios())
            if (scenario.bySurname && surname == lettersOf(scenario.name)) return &scenario;
    }
    return nullptr;
}

} // namespace ombrivane::sandbox
