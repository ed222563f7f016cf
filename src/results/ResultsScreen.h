#pragma once

#include "keyed/Action.h"
#include "keyed/Field.h"
#include "keyed/Link.h"
#include "keyed/Screen.h"
#include "parts/CustomSnackBarView.h"
#include "platform/OnMain.h"
#include "results/EmptyStates.h"
#include "results/OfferListView.h"
#include "results/ResultsModel.h"
#include "results/SearchRequest.h"
#include "services/FlightQuery.h"
#include "state/AppState.h"
#include "state/CompletionCallback.h"

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
public:
    void appear() override;

    Published<std::string> departCityCode;
    Published<std::string> departCity;
    Published<std::string> destCityCode;
    Published<std::string> destCity;
    Published<std::string> nationality;
    Published<std::string> adults;
    Published<std::string> children;
    Published<std::string> infants;
    Published<std::string> flightClass;
    /// How far the list is scrolled from its start, in points.
    Published<double> offset{fields, "offset", 0.0};
    Published<bool> showSegmant{fields, "showSegmant"};
    Published<std::string> errorMessage;

    Derived<std::string> routeImage;
    Derived<std::string> headerSubtitle;
    Derived<std::string> departDateText;
    Derived<std::string> returnDateText;
    Derived<std::string> addReturnDateText;
    Derived<bool> showsReturnDate;
    Derived<bool> showsFloatingBar;
    Derived<bool> showsScrollUp;
    Derived<bool> filterIsOn;
    Derived<std::string> totalLabel;
    Derived<std::string> total;
    Derived<std::string> continueText;

    Action<> back{*this, "back", [this] { dismiss(); }};
    Action<> edit{*this, "edit", [this] { dismiss(); }};
    Action<> previousDeparture{*this, "previousDeparture", [this] { stepDeparture(-1); }};
    Action<> nextDeparture{*this, "nextDeparture", [this] { stepDeparture(1); }};
    Action<> previousReturn;
    Action<> nextReturn;
    Action<> addReturnDate;
    Action<> openFilter;
    Action<> scrollUp;
    /// The customer scrolled the list: the header goes when it leaves its start.
    Action<double> scrolled{*this, "scrolled", [this](double points) { follow(points); }};
    Action<> continue_;

protected:
    ResultsScreen(std::string_view name, std::string_view modelKey, SearchRequest request,
                  std::shared_ptr<ResultsModel> model, std::string message,
                  CompletionCallback completionCallback);

    virtual void sendSearch(const FlightQuery& query, bool roundTrip) = 0;
    /// Before a search starts, what the kind of list clears besides.
    virtual void clearForSearch() {}
    virtual std::shared_ptr<Screen> list() const = 0;
    virtual bool listIsEmpty() const = 0;
    /// Whether the list that is shown has offers, filtered out or not.
    virtual bool canBeFiltered() const = 0;
    virtual std::shared_ptr<Screen> makeFilter() = 0;
    virtual std::optional<std::int64_t> totalCost() const = 0;
    virtual std::optional<std::string> totalCurrency() const = 0;
    virtual std::optional<AnyFlight> returningFlight() const { return std::nullopt; }
    virtual void proceed() = 0;

    /// What a client completes with: `take` gets the offers of the search that was sent last.
    template <class Offers, class Take> auto answered(Take take) {
        return onMain<Offers>([this, hold = shared_from_this(), search = searches_, take](
                                  Offers offers, std::optional<Error> error) {
            if (search != searches_ || !takeIn(error)) return;
            take(std::move(offers));
            model_->isLoading = false;
        });
    }
    /// Says why the way on is closed.
    void refuse(const char* message);
    void showRules() { model_->rulesAndRegulationViewIsActive = true; }
    std::shared_ptr<ResultsModel> model() const { return model_; }
    const SearchRequest& request() const { return request_; }

private:
    void search(bool roundTrip);
    bool takeIn(const std::optional<Error>& error);
    void stepDeparture(int days);
    void stepReturn(int days);
    void follow(double points);
    std::shared_ptr<Screen> content() const;

    std::uint64_t searches_ = 0; ///< sent so far
    SearchRequest request_;
    std::shared_ptr<ResultsModel> model_;
    CompletionCallback completionCallback_;
    Model modelModel_;
    CustomSnackBarView snackBar_;
    /// What the calendar writes for the departure; the header shows the date itself.
    Fields unkeyed_;
    Published<std::string> departDateText_{unkeyed_, "departDateText"};
    std::shared_ptr<NoInternetConnectionView> noInternet_;
    std::shared_ptr<NoFlightRecommendationsView> noFlights_;
    std::shared_ptr<NoFlightRecommendationsView> nothingLeft_;
    Part content_{*this, "content", [this] { return content(); }};
    Link filterSheet_;
    Link returnDateSheet_;
    Link rules_;
};

} // namespace ombrivane
