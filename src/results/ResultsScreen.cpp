#include "results/ResultsScreen.h"

#include "base/WholeNumber.h"
#include "booking/RulesAndRegulationView.h"
#include "dates/CustomRoundTripDatePickerView.h"
#include "dates/DateFormatter.h"
#include "offers/OfferFormat.h"
#include "services/CustomError.h"
#include "services/ItineraryType.h"

#include <cstdlib>

namespace ombrivane {
namespace {

/// The service's words for a search that found nothing, by which it is recognised.
constexpr const char* noFlightsFound = "Sorry! No flight recommendations found.";

/// About half of the header: a shorter scroll is a finger that rests.
constexpr double headerLeavesAt = 32.0;

} // namespace

ResultsScreen::ResultsScreen(std::string_view screenName, std::string_view modelKey, SearchRequest request,
                             std::shared_ptr<ResultsModel> model, Text message,
                             CompletionCallback completionCallback) :
    Screen(screenName),
    request_(std::move(request)),
    model_(std::move(model)),
    completionCallback_(std::move(completionCallback)),
    errorWords_(errorMessage, message),
    modelModel_(fields, modelKey, model_->fields) {
    model_->tripType = tripType.get();
    model_->departDate = departDate.get();
    model_->hasReturnDate = returnDate->has_value();
    if (returnDate.get()) model_->returnDate = *returnDate.get();
}

void ResultsScreen::appear() { search(returnDate->has_value()); }

void ResultsScreen::search(bool roundTrip) {
    ++searches_;
    clearForSearch();
    model_->startSearch(roundTrip);
    FlightQuery query;
    query.tripType = roundTrip ? model_->tripType.get() : tripType.get();
    query.departCity = departCityCode;
    query.destCity = destCityCode;
    query.departDate = model_->departDate;
    if (roundTrip) query.returnDate = model_->returnDate.get();
    query.nationality = nationality;
    query.adults = adults;
    query.children = children;
    query.infants = infants;
    query.flightClass = flightClass;
    reporter_.sent(EventKind::searchSent);
    wait.restart();
    sendSearch(query, roundTrip);
}

void ResultsScreen::tellAnswered(std::size_t offers, const std::optional<Error>& error) const {
    Event event{.kind = EventKind::searchAnswered};
    if (error) {
        event.error = kindOf(*error);
    } else {
        event.offers = offers;
    }
    reporter_.answered(event);
}

/// Takes the three kinds of errors in; false when there was one.
bool ResultsScreen::takeIn(const std::optional<Error>& error) {
    if (!error) return true;
    if (is(error, CustomError::noInternetConnection)) {
        model_->noInternetConnection = true;
        model_->isLoading = false;
    } else if (error->localizedDescription == noFlightsFound) {
        // Loading goes on; the empty state takes precedence on the screen.
        model_->flightsListIsEmpty = true;
    }
    // Any other failure leaves the screen loading: it has no words for one.
    return false;
}

OfferSelection ResultsScreen::selection(Field<bool>& showSegmant) {
    return {model_->flight,
            model_->showContinueButton,
            model_->displayedSegmentId,
            model_->selectedFlightSegmentId,
            model_->flightSelected,
            showSegmant};
}

std::int64_t ResultsScreen::travellers() const {
    std::int64_t count = 0;
    for (const auto* kind : {&adults, &children, &infants})
        count += std::strtol(kind->get().c_str(), nullptr, 10);
    return count;
}

void ResultsScreen::refuse(Text message, std::string detail) {
    errorMessage = said(message);
    errorDetail = std::move(detail);
    model_->showSnackBar = true;
}

std::string ResultsScreen::balanceText(std::int64_t cost) const {
    const auto& balance = AppState::shared().walletBalance.get();
    if (!balance) return "";
    const std::int64_t held = wholeNumber(*balance, "the wallet's balance");
    const std::string currency = totalCurrency().value_or("");
    return said(Text::resultsBalance,
                {{"balance", OfferFormat::price(currency, held)},
                 {"missing", OfferFormat::price(currency, differenceOf(cost, held))}});
}

/// A search that failed in no way that this screen has words for stays awaited.
std::optional<Awaited> ResultsScreen::awaited() const {
    if (!model_->isLoading || model_->noInternetConnection || model_->flightsListIsEmpty) return std::nullopt;
    return Awaited{Text::resultsSearching, Text::waitOrGoBack};
}

void ResultsScreen::stepDeparture(int days) {
    model_->departDate = model_->departDate->plusDays(days);
    search(model_->hasReturnDate);
}

void ResultsScreen::stepReturn(int days) {
    model_->returnDate = model_->returnDate->plusDays(days);
    search(true);
}

void ResultsScreen::follow(double points) {
    offset = points;
    const bool atStart = points < headerLeavesAt;
    if (model_->showActionBar != atStart) model_->showActionBar = atStart;
}

std::string ResultsScreen::dateText(Day day) { return formatDay(day, dayPattern::calendar); }

std::string ResultsScreen::totalText() const {
    const auto cost = totalCost();
    return cost ? OfferFormat::price(totalCurrency().value_or(""), *cost) : "";
}

/// Back to the filter that left nothing, or to the form where no filter left these offers out.
void ResultsScreen::widenFilter() {
    if (canBeFiltered()) {
        model_->showFilterBottomSheet = true;
    } else {
        AppState::shared().resetNavigation();
    }
}

std::shared_ptr<Screen> ResultsScreen::content() const {
    if (model_->noInternetConnection) return noInternet_;
    if (model_->flightsListIsEmpty) return noFlights_;
    if (!model_->isLoading && listIsEmpty()) return nothingLeft_;
    return list();
}

std::shared_ptr<Screen> ResultsScreen::makeReturnCalendar() {
    return std::make_shared<CustomRoundTripDatePickerView>(
        departDateText_, model_->departDate, model_->returnDateText, model_->returnDate, [this] {
            search(true);
        });
}

std::shared_ptr<Screen> ResultsScreen::makeRules() {
    return std::make_shared<RulesAndRegulationView>(
        RulesAndRegulationView::Given{model_->rulesAndRegulationViewIsActive,
                                      flightClass,
                                      departCity,
                                      destCity,
                                      model_->tripType,
                                      model_->flight,
                                      returningFlight(),
                                      completionCallback_});
}

} // namespace ombrivane
