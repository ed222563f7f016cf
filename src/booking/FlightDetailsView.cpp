#include "booking/FlightDetailsView.h"

namespace ombrivane {

FlightDetailsView::FlightDetailsView(std::string_view screenName, const char* image,
                                     std::vector<JourneyCard> cards) :
    Screen(screenName),
    title(fields, "title", [] { return std::string("Flight Details"); }),
    originCity(fields, "originCity", [this] { return cards_.front().originCity; }),
    destinationCity(fields, "destinationCity", [this] { return cards_.front().destinationCity; }),
    routeImage(fields, "routeImage", [image] { return std::string(image); }),
    journeys(fields, "journeys", [this] { return cards_; }),
    cards_(std::move(cards)) {}

} // namespace ombrivane
