#include "booking/RulesAndRegulationView.h"

#include "booking/BookingDetailsView.h"
#include "offers/CabinClass.h"
#include "platform/OnMain.h"
#include "richtext/FareRules.h"
#include "services/ItineraryType.h"

namespace ombrivane {

RulesAndRegulationView::RulesAndRegulationView(Given given) :
    Screen("RulesAndRegulationView"),
    rulesAndRegulationViewIsActive(fields, "rulesAndRegulationViewIsActive", given.isActive),
    bookingClass(fields, "bookingClass", std::move(given.bookingClass)),
    departLocation(fields, "departLocation", std::move(given.departLocation)),
    destLocation(fields, "destLocation", std::move(given.destLocation)),
    itineraryType(fields, "itineraryType", std::move(given.itineraryType)),
    flight(fields, "flight", std::move(given.flight)),
    returnFlight(fields, "returnFlight", std::move(given.returnFlight)),
    completionCallback_(std::move(given.completionCallback)) {}

void RulesAndRegulationView::proceed() {
    const bool oneWay = itineraryType.get() == itineraryType::oneway;
    (oneWay ? oneWayBookingDetailScreenIsActive : roundTripBookingDetailScreenIsActive) = true;
}

template <class Trip> std::shared_ptr<Screen> RulesAndRegulationView::makeSession() const {
    // The return of a special round; one way has none, whatever was chosen before.
    const bool returns = std::is_same_v<Trip, RoundTrip>;
    return std::make_shared<BookingDetailsView<Trip>>(
        BookingGiven{itineraryType,
                     flight,
                     returns ? returnFlight.get() : std::nullopt,
                     cabinName(),
                     departLocation,
                     destLocation,
                     completionCallback_});
}

/// Reading a long text takes longer than all else about showing it, and each change is read by many.
const std::vector<RuleParagraph>& RulesAndRegulationView::rules() const {
    if (rulesVersion_ == htmlText.version()) return rules_;
    rulesVersion_ = htmlText.version();
    rules_ = fareRules(htmlText.get());
    return rules_;
}

/// An unknown letter, an empty one included, is economy.
std::string RulesAndRegulationView::cabinName() const {
    const std::string name = cabinNameOfCode(bookingClass);
    return name.empty() ? "Economy" : name;
}

void RulesAndRegulationView::fetch() {
    const auto& going = flight.get();
    const auto& coming = returnFlight.get();
    const auto completion = [this] {
        return onMain<std::optional<std::string>>(
            [hold = shared_from_this(),
             this](std::optional<std::string> message, std::optional<Error> error) {
                take(std::move(message), error);
            });
    };
    if (itineraryType.get() == itineraryType::oneway) {
        if (going) restrictionsOneWayProvider_.fetchRestrictions(itineraryType, *going, completion());
    } else if (going && !coming) {
        restrictionsRoundTripProvider_.fetchRestrictions(itineraryType, *going, completion());
    } else if (going && coming) {
        restrictionsRoundTripProvider_.fetchRestrictions(
            itineraryType::roundSpecial, *going, *coming, completion());
    }
}

void RulesAndRegulationView::take(std::optional<std::string> message, const std::optional<Error>& error) {
    if (!error) {
        showProgressView = false;
        htmlText = message.value_or(said(Text::rulesNone));
        return;
    }
    task_ = mainQueue().after(messageDuration, [this] { showSnackBar = false; });
    showProgressView = false;
    errorMessage = error->localizedDescription;
    snackBar_.showAnew();
}

} // namespace ombrivane
