#include "sandbox/world/Schedules.h"

#include <array>
#include <cmath>

namespace ombrivane::sandbox {

namespace {

using std::chrono::minutes;

/// From gate to gate: turboprops within Nepal, jets elsewhere; in steps of five minutes.
minutes blockTime(const Airport& from, const Airport& to) {
    const bool turboprop = from.isDomestic() && to.isDomestic();
    const double time = turboprop ? 22 + distance(from, to) / 380 * 60 : 35 + distance(from, to) / 850 * 60;
    return minutes(5 * std::lround(time / 5));
}

std::string aircraft(const Airport& from, const Airport& to, Dice& dice) {
    constexpr std::array<std::string_view, 2> turboprops{"AT7", "DH4"};
    constexpr std::array<std::string_view, 3> narrow{"320", "32N", "738"};
    constexpr std::array<std::string_view, 4> wide{"333", "359", "77W", "789"};
    if (from.isDomestic() && to.isDomestic()) return std::string(turboprops[dice.below(turboprops.size())]);
    if (distance(from, to) < 4'500) return std::string(narrow[dice.below(narrow.size())]);
    return std::string(wide[dice.below(wide.size())]);
}

minutes firstDeparture(bool isDomestic, Dice& dice) {
    return isDomestic ? minutes(5 * dice.between(6 * 12 + 3, 17 * 12 + 6))
                      : minutes(5 * dice.between(3, 24 * 12 - 3));
}

const Airline* operatorOf(const Airline* carrier, Dice& dice) {
    if (carrier->isDomestic || !dice.percent(12)) return carrier;
    const Airline& other = airlines()[dice.below(airlines().size())];
    return other.isDomestic ? carrier : &other;
}

} // namespace

minutes Journey::elapsed() const {
    minutes total(0);
    for (const Leg& leg : legs)
        total += leg.flying + leg.connection.value_or(minutes(0));
    return total;
}

Journey makeJourney(const Routing& routing, Day day, Dice& dice) {
    Journey journey;
    const bool startsInNepal = routing.carriers.front()->isDomestic;
    LocalTime departure = LocalTime(day.time_since_epoch()) + firstDeparture(startsInNepal, dice);
    for (std::size_t i = 0; i < routing.legs(); ++i) {
        const Airport& from = *routing.stops[i];
        const Airport& to = *routing.stops[i + 1];
        Leg leg{};
        leg.from = &from;
        leg.to = &to;
        leg.carrier = routing.carriers[i];
        leg.operatedBy = operatorOf(leg.carrier, dice);
        leg.flying = blockTime(from, to);
        leg.departure = departure;
        leg.arrival = departure + leg.flying + minutes(to.utcOffset - from.utcOffset);
        leg.flightNumber = std::to_string(dice.between(101, 989));
        leg.equipment = aircraft(from, to, dice);
        if (i + 1 < routing.legs()) {
            leg.connection = minutes(5 * dice.between(11, 52));
            departure = leg.arrival + *leg.connection;
        }
        journey.legs.push_back(leg);
    }
    return journey;
}

} // namespace ombrivane::sandbox
