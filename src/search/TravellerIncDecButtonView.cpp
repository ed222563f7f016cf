#include "search/TravellerIncDecButtonView.h"

namespace ombrivane {

TravellerIncDecButtonView::Label TravellerIncDecButtonView::label() const {
    switch (kind_) {
    case TravellerKind::adult:
        return {Text::passengerAdult, Text::travellersAdultAge};
    case TravellerKind::child:
        return {Text::passengerChild, Text::travellersChildAge};
    case TravellerKind::infant:
        break;
    }
    return {Text::passengerInfant, Text::travellersInfantAge};
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
