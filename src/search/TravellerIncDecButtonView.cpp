#include "search/TravellerIncDecButtonView.h"

namespace ombrivane {

TravellerIncDecButtonView::Words TravellerIncDecButtonView::words() const {
    switch (kind_) {
    case TravellerKind::adult:
        return {"Adult", "12 years and above"};
    case TravellerKind::child:
        return {"Child", "2 - 12 years"};
    case TravellerKind::infant:
        break;
    }
    return {"Infant", "below 2 years"};
}

const Field<std::string>& TravellerIncDecButtonView::count() const {
    if (kind_ == TravellerKind::adult) return adult;
    return kind_ == TravellerKind::child ? child : infant;
}

TravellerCounts TravellerIncDecButtonView::counts() const {
    return TravellerCounts::from(adult, child, infant);
}

void TravellerIncDecButtonView::write(const TravellerCounts& next) {
    const TravellerCounts now = counts();
    if (next.infant != now.infant) infant = std::to_string(next.infant);
    if (next.adult != now.adult) adult = std::to_string(next.adult);
    if (next.child != now.child) child = std::to_string(next.child);
}

} // namespace ombrivane
