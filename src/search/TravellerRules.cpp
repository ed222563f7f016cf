#include "search/TravellerRules.h"

#include "services/FlightQuery.h"

namespace ombrivane {
namespace {

constexpr std::int64_t mostTravellers = 9;

} // namespace

TravellerCounts TravellerCounts::from(const std::string& adult, const std::string& child,
                                      const std::string& infant) {
    return {countFrom(adult, "the adult count"),
            countFrom(child, "the child count"),
            countFrom(infant, "the infant count")};
}

bool TravellerCounts::mayIncrement(TravellerKind kind) const {
    if (total() >= mostTravellers) return false;
    return kind != TravellerKind::infant || infant < adult;
}

bool TravellerCounts::mayDecrement(TravellerKind kind) const {
    switch (kind) {
    case TravellerKind::adult:
        return adult > 1;
    case TravellerKind::child:
        return child > 0;
    case TravellerKind::infant:
        return infant > 0;
    }
    return false;
}

void TravellerCounts::increment(TravellerKind kind) {
    if (mayIncrement(kind)) ++of(kind);
}

void TravellerCounts::decrement(TravellerKind kind) {
    if (!mayDecrement(kind)) return;
    if (kind == TravellerKind::adult && adult == infant) --infant;
    --of(kind);
}

std::int64_t& TravellerCounts::of(TravellerKind kind) {
    if (kind == TravellerKind::adult) return adult;
    return kind == TravellerKind::child ? child : infant;
}

} // namespace ombrivane
