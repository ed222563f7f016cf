#pragma once

#include "events/Reporter.h"
#include "keyed/Action.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "parts/CustomSnackBarView.h"
#include "parts/Wait.h"
#include "platform/OnMain.h"
#include "results/EmptyStates.h"
#include "results/OfferListView.h"
#include "results/ResultsModel.h"
#include "results/SearchRequest.h"
#include "services/FlightQuery.h"
#include "state/AppState.h"
#include "state/CompletionCallback.h"
#include "words/Caption.h"
#include "words/Spoken.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace ombrivane {

/// What both result lists share: the search when the screen appears and when a date is stepped, the header,
/// the total, the wallet's limit, the filter, the empty states and the way on to the fare rules.
///
/// An answer to a former search of the same list is dropped: what stands under the header is what it says.
class ResultsScreen : public Screen {
private:
    // Ahead of the fields and links that start from them.
    const SearchRequest request_;
    const std::shared_ptr<ResultsModel> model_;

public:
    void appear() override;

    /// What both kinds of list keep of their search.
    ResultsModel& model() const { return *model_; }

    Published<std::string> tripType{fields, "tripType", request_.tripType};
    Published<std::string> departCityCode{fields, "departCityCode", request_.departCityCode};
    Published<std::string> departCity{fields, "departCity", request_.departCity};
    Published<std::string> destCityCode{fields, "destCityCode", request_.destCityCode};
    Published<std::string> destCity{fields, "destCity", request_.destCity};
    Published<Day> departDate{fields, "departDate", request_.departDate};
    /// Of a round trip. The dates of the search are those of the model, which may be stepped.
    Published<std::optional<Day>> returnDate{fields, "returnDate", request_.returnDate};
    Published<std::string> nationality{fields, "nationality", request_.nationality};
    Published<std::string> adults{fields, "adults", request_.adults};
    Published<std::string> children{fields, "children", request_.children};
    Published<std::string> infants{fields, "infants", request_.infants};
    Published<std::string> flightClass{fields, "flightClass", request_.flightClass};
    /// How far the list is scrolled from its start, in points.
    Published<double> offset{fields, "offset", 0.0};
    Published<std::string> errorMessage{fields, "errorMessage"};

    Derived<std::string> routeImage{fields, "routeImage", [this] {
                                        return std::string(model_->hasReturnDate ? "exchangeIcon" : "toIcon");
                                    }};
    Derived<std::string> headerSubtitle{
        fields, "headerSubtitle", [this] {
            return model_->formatHeaderSubtitle(
                model_->departDate.get(), model_->returnDate.get(), adults, children, infants);
        }};
    Derived<std::string> departDateText{
        fields, "departDateText", [this] { return dateText(model_->departDate); }};
    Derived<std::string> returnDateText{
        fields, "returnDateText", [this] { return dateText(model_->returnDate); }};
    Caption addReturnDateText{fields, "addReturnDateText", Text::resultsAddReturnDate};
    Derived<bool> showsReturnDate{fields, "showsReturnDate", [this] { return model_->hasReturnDate.get(); }};
    Derived<bool> showsFloatingBar{
        fields, "showsFloatingBar", [this] { return !model_->isLoading && !model_->noInternetConnection; }};
    Derived<bool> showsScrollUp{
        fields, "showsScrollUp", [this] { return showsFloatingBar.get() && !model_->showActionBar; }};
    /// Whether the list that is shown is narrowed, whatever is chosen in the filter.
    Derived<bool> filterIsOn{fields, "filterIsOn", [this] { return !model_->isLoading && isNarrowed(); }};
    Caption totalLabel{fields, "totalLabel", Text::totalFare};
    Derived<std::string> total{fields, "total", [this] { return totalText(); }};
    Caption continueText{fields, "continueText", Text::continueOn};
    /// What stands beneath the message: the balance and what it lacks; empty where there is nothing to add.
    Published<std::string> errorDetail{fields, "errorDetail"};
    /// What is said of a wait, and when.
    Wait wait{fields, [this] { return awaited(); }};

    Action<> back{*this, "back", [this] { dismiss(); }};
    Action<> edit{*this, "edit", [this] { dismiss(); }};
    Action<> previousDeparture{*this, "previousDeparture", [this] { stepDeparture(-1); }};
    Action<> nextDeparture{*this, "nextDeparture", [this] { stepDeparture(1); }};
    Action<> previousReturn{
        *this, "previousReturn", [this] { stepReturn(-1); }, [this] { return model_->hasReturnDate.get(); }};
    Action<> nextReturn{
        *this, "nextReturn", [this] { stepReturn(1); }, [this] { return model_->hasReturnDate.get(); }};
    Action<> addReturnDate{*this,
                           "addReturnDate",
                           [this] {
                               model_->returnDate = model_->departDate.get();
                               model_->showCustomRoundtripDatePickerBottomSheet = true;
                           },
                           [this] { return !model_->hasReturnDate; }};
    Action<> openFilter{*this,
                        "openFilter",
                        [this] { model_->showFilterBottomSheet = true; },
                        [this] { return showsFloatingBar.get() && canBeFiltered(); }};
    Action<> scrollUp{
        *this, "scrollUp", [this] { model_->scrollToTop = true; }, [this] { return showsScrollUp.get(); }};
    /// The customer scrolled the list: the header goes when it leaves its start.
    Action<double> scrolled{*this, "scrolled", [this](double points) { follow(points); }};
    Action<> continue_{
        *this, "continue", [this] { proceed(); }, [this] { return model_->showContinueButton.get(); }};

protected:
    ResultsScreen(std::string_view name, std::string_view modelKey, SearchRequest request,
                  std::shared_ptr<ResultsModel> model, Text message, CompletionCallback completionCallback);

    virtual void sendSearch(const FlightQuery& query, bool roundTrip) = 0;
    /// Before a search starts, what the kind of list clears besides.
    virtual void clearForSearch() {}
    virtual std::shared_ptr<Screen> list() const = 0;
    virtual bool listIsEmpty() const = 0;
    /// Whether the list that is shown has offers, filtered out or not.
    virtual bool canBeFiltered() const = 0;
    /// Whether some of them are left out.
    virtual bool isNarrowed() const = 0;
    virtual std::shared_ptr<Screen> makeFilter() = 0;
    virtual std::optional<std::int64_t> totalCost() const = 0;
    virtual std::optional<std::string> totalCurrency() const = 0;
    virtual std::optional<AnyFlight> returningFlight() const { return std::nullopt; }
    virtual void proceed() = 0;

    /// What a client completes with: `take` gets the offers of the search that was sent last.
    template <class Offers, class Take> auto answered(Take take) {
        return onMain<Offers>([this, hold = shared_from_this(), search = searches_, take](
                                  Offers offers, std::optional<Error> error) {
            if (search != searches_) return;
            tellAnswered(offers.size(), error);
            if (!takeIn(error)) return;
            take(std::move(offers));
            model_->isLoading = false;
        });
    }
    /// The choice in a list of one-way or of round-trip offers, which tells by `showSegmant` that one is
    /// unfolded.
    OfferSelection selection(Field<bool>& showSegmant);
    /// For how many was searched.
    std::int64_t travellers() const;
    /// Says why the way on is closed, and in `detail` by how much.
    void refuse(Text message, std::string detail = "");
    /// The wallet's balance, and how much more `cost` is.
    std::string balanceText(std::int64_t cost) const;
    void showRules() { model_->rulesAndRegulationViewIsActive = true; }

private:
    void search(bool roundTrip);
    void tellAnswered(std::size_t offers, const std::optional<Error>& error) const;
    bool takeIn(const std::optional<Error>& error);
    void stepDeparture(int days);
    void stepReturn(int days);
    void follow(double points);
    static std::string dateText(Day day);
    std::string totalText() const;
    std::optional<Awaited> awaited() const;
    void widenFilter();
    std::shared_ptr<Screen> content() const;
    std::shared_ptr<Screen> makeReturnCalendar();
    std::shared_ptr<Screen> makeRules();

    std::uint64_t searches_ = 0; ///< sent so far
    Reporter reporter_;
    CompletionCallback completionCallback_;
    SpokenField errorWords_;
    Model modelModel_;
    CustomSnackBarView snackBar_{model_->showSnackBar};
    /// What the calendar writes for the departure; the header shows the date itself.
    Fields unkeyed_;
    Published<std::string> departDateText_{unkeyed_, "departDateText"};
    std::shared_ptr<NoInternetConnectionView> noInternet_ =
        std::make_shared<NoInternetConnectionView>([this] { search(model_->hasReturnDate); });
    std::shared_ptr<NoFlightRecommendationsView> noFlights_ =
        std::make_shared<NoFlightRecommendationsView>(false, [] { AppState::shared().resetNavigation(); });
    std::shared_ptr<NoFlightRecommendationsView> nothingLeft_ =
        std::make_shared<NoFlightRecommendationsView>(true, [this] { widenFilter(); });
    Part content_{*this, "content", [this] { return content(); }};
    Link filterSheet_{
        *this, Presentation::sheet, model_->showFilterBottomSheet, [this] { return makeFilter(); }};
    Link returnDateSheet_{*this,
                          Presentation::sheet,
                          model_->showCustomRoundtripDatePickerBottomSheet,
                          [this] { return makeReturnCalendar(); }};
    Link rules_{
        *this, Presentation::push, model_->rulesAndRegulationViewIsActive, [this] { return makeRules(); }};
};

} // namespace ombrivane
