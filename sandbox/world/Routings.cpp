#include "sandbox/world/Routings.h"

#include "sandbox/world/Dice.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

namespace ombrivane::sandbox {

namespace {

constexpr std::size_t mostLegs = 3;
constexpr std::size_t mostRoutings = 16;
constexpr double longestLeg = 13'800; ///< kilometres

double length(const Routing& routing) {
    double kilometres = 0;
    for (std::size_t i = 0; i + 1 < routing.stops.size(); ++i)
        kilometres += distance(*routing.stops[i], *routing.stops[i + 1]);
    return kilometres;
}

/// What a customer feels: a change is as bad as 700 kilometres more.
double effort(const Routing& routing) {
    return length(routing) + 700.0 * static_cast<double>(routing.legs());
}

bool isSensible(const Routing& routing) {
    for (std::size_t i = 0; i + 1 < routing.stops.size(); ++i) {
        if (distance(*routing.stops[i], *routing.stops[i + 1]) > longestLeg) return false;
        for (std::size_t j = i + 1; j < routing.stops.size(); ++j)
            if (routing.stops[i] == routing.stops[j]) return false;
    }
    return length(routing) <= 1.7 * distance(*routing.stops.front(), *routing.stops.back()) + 900;
}

/// Small airports of Nepal are linked by the same hand every time, whatever the seed.
bool areLinked(const Airport& from, const Airport& to) {
    if (from.code == "KTM" || to.code == "KTM") return true;
    return Dice(0, fmt::format("{}-{}", std::min(from.code, to.code), std::max(from.code, to.code)))
        .percent(35);
}

std::vector<Routing> domesticRoutings(const Airport& from, const Airport& to) {
    const Airport* kathmandu = airportOf("KTM");
    std::vector<Routing> found;
    for (const Airline& airline : airlines()) {
        if (!airline.isDomestic) continue;
        if (areLinked(from, to)) {
            found.push_back({{&from, &to}, {&airline}});
        } else {
            found.push_back({{&from, kathmandu, &to}, {&airline, &airline}});
        }
    }
    return found;
}

/// Between two airports that have flights abroad.
std::vector<Routing> internationalRoutings(const Airport& from, const Airport& to, std::size_t legs) {
    std::vector<Routing> found;
    for (const Airline& first : airlines()) {
        if (first.isDomestic) continue;
        const Airport* hub = airportOf(first.hub);
        if (hub == &from || hub == &to) {
            found.push_back({{&from, &to}, {&first}});
        } else if (legs >= 2) {
            found.push_back({{&from, hub, &to}, {&first, &first}});
        }
        if (legs < 3) continue;
        for (const Airline& second : airlines())
            if (!second.isDomestic)
                found.push_back({{&from, hub, airportOf(second.hub), &to}, {&first, &second, &second}});
    }
    std::erase_if(found, [](const Routing& routing) { return !isSensible(routing); });
    if (found.empty()) {
        const Dice stranger(0, fmt::format("{}-{}", from.code, to.code));
        std::vector<const Airline*> foreign;
        for (const Airline& airline : airlines())
            if (!airline.isDomestic) foreign.push_back(&airline);
        found.push_back({{&from, &to}, {foreign[Dice(stranger).below(foreign.size())]}});
    }
    return found;
}

std::vector<Routing> findRoutings(const Airport& from, const Airport& to) {
    if (from.isDomestic() && to.isDomestic()) return domesticRoutings(from, to);
    const Airport* kathmandu = airportOf("KTM");
    const Airport& gateFrom = from.isInternational() ? from : *kathmandu;
    const Airport& gateTo = to.isInternational() ? to : *kathmandu;
    const std::size_t feeders = (&gateFrom == &from ? 0U : 1U) + (&gateTo == &to ? 0U : 1U);
    std::vector<Routing> found = internationalRoutings(gateFrom, gateTo, mostLegs - feeders);
    const Airline* feeder = &airlines().front();
    for (Routing& routing : found) {
        if (&gateFrom != &from) {
            routing.stops.insert(routing.stops.begin(), &from);
            routing.carriers.insert(routing.carriers.begin(), feeder);
        }
        if (&gateTo != &to) {
            routing.stops.push_back(&to);
            routing.carriers.push_back(feeder);
        }
    }
    std::stable_sort(found.begin(), found.end(), [](const Routing& left, const Routing& right) {
        return effort(left) < effort(right);
    });
    if (found.size() > mostRoutings) found.resize(mostRoutings);
    return found;
}

} // namespace

const std::vector<Routing>& routingsBetween(const Airport& from, const Airport& to) {
    static std::mutex mutex;
    static std::map<std::pair<const Airport*, const Airport*>, std::vector<Routing>> known;
    const std::lock_guard lock(mutex);
    const auto [entry, isNew] = known.try_emplace({&from, &to});
    if (isNew) entry->second = findRoutings(from, to);
    return entry->second;
}

} // namespace ombrivane::sandbox
