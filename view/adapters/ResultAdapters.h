#pragma once

#include "adapters/CalendarAdapters.h"
#include "adapters/OfferAdapters.h"
#include "adapters/RowsModel.h"
#include "adapters/ScreenAdapter.h"
#include "adapters/SearchAdapters.h"
#include "keyed/KeyedScreen.h"
#include "results/DomesticFlightListView.h"
#include "results/EmptyStates.h"
#include "results/FilterBottomSheetView.h"
#include "results/FlightListView.h"

#include <QUrl>

namespace ombrivane::view {

class NoFlightsAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(NoFlightsAdapter, NoFlightRecommendationsView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(text, core().text)
    OMBRIVANE_TEXT(buttonText, core().buttonText)
    OMBRIVANE_INTENT(button, core().button)
};

class NoInternetAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(NoInternetAdapter, NoInternetConnectionView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(text, core().text)
};

class TimeCardAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(TimeCardAdapter, TimeCardView)
    OMBRIVANE_TEXT(iconName, core().iconName)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(subTitle, core().subTitle)
    OMBRIVANE_FLAG(isSelected, core().isSelected)
    OMBRIVANE_INTENT(tap, core().tap)
};

class FilterAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(FilterAdapter, FilterBottomSheetView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(resetText, core().resetText)
    OMBRIVANE_TEXT(priceTitle, core().priceTitle)
    OMBRIVANE_TEXT(priceRange, core().priceRange)
    OMBRIVANE_TEXT(chosenPrice, core().chosenPrice)
    OMBRIVANE_FIELD(double, minPrice, core().minPrice)
    OMBRIVANE_FIELD(double, maxPrice, core().maxPrice)
    OMBRIVANE_FIELD(double, price, core().price)
    OMBRIVANE_TEXT(airlinesTitle, core().airlinesTitle)
    OMBRIVANE_TEXT(timeTitle, core().timeTitle)
    OMBRIVANE_TEXT(applyText, core().applyText)
    OMBRIVANE_ROWS(airlines, core().airlines)
    OMBRIVANE_ROWS(times, core().times)
    OMBRIVANE_AMOUNT(slide, core().slide)
    OMBRIVANE_INTENT(resetAll, core().resetAll)
    OMBRIVANE_INTENT(apply, core().apply)
};

/// A list of offers, of one-way or of round-trip ones.
class OfferListAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")

    /// What the pages need of either kind of list.
    struct Members {
        Field<std::string>& title;
        Field<bool>& isLoading;
        Field<bool>& scrollToTop;
        Field<std::string>& scrollToId;
        Rows& rows;
        Rows& strip;
        Action<>& arrivedAtTop;
    };
    const Members list_;

    OMBRIVANE_TEXT(title, list_.title)
    OMBRIVANE_FLAG(isLoading, list_.isLoading)
    OMBRIVANE_FLAG(scrollToTop, list_.scrollToTop)
    OMBRIVANE_TEXT(scrollToId, list_.scrollToId)
    OMBRIVANE_INTENT(arrivedAtTop, list_.arrivedAtTop)
    OMBRIVANE_ROWS(rows, list_.rows)
    OMBRIVANE_ROWS(strip, list_.strip)

public:
    template <class Traits>
    explicit OfferListAdapter(const std::shared_ptr<OfferListView<Traits>>& list) :
        ScreenAdapter(list),
        list_{list->title,
              list->isLoading,
              list->scrollToTop,
              list->scrollToId,
              list->rows,
              list->strip,
              list->arrivedAtTop} {}
};

/// What both result lists show. The part below the dates changes its screen.
class ResultsAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(QObject* content READ content NOTIFY contentChanged FINAL)
    Q_PROPERTY(QUrl contentPage READ contentPage NOTIFY contentChanged FINAL)
    Q_PROPERTY(double offset READ offset WRITE setOffset FINAL)

    ResultsModel& model_;

    ResultsScreen& core() const { return static_cast<ResultsScreen&>(*screen()); }

    OMBRIVANE_FLAG(showActionBar, model_.showActionBar)
    OMBRIVANE_FLAG(showSnackBar, model_.showSnackBar)
    OMBRIVANE_FLAG(showsFilter, model_.showFilterBottomSheet)
    OMBRIVANE_FLAG(showContinueButton, model_.showContinueButton)
    OMBRIVANE_FLAG(isLoading, model_.isLoading)
    OMBRIVANE_TEXT(departCity, core().departCity)
    OMBRIVANE_TEXT(destCity, core().destCity)
    OMBRIVANE_TEXT(errorMessage, core().errorMessage)
    OMBRIVANE_TEXT(routeImage, core().routeImage)
    OMBRIVANE_TEXT(headerSubtitle, core().headerSubtitle)
    OMBRIVANE_TEXT(departDateText, core().departDateText)
    OMBRIVANE_TEXT(returnDateText, core().returnDateText)
    OMBRIVANE_TEXT(addReturnDateText, core().addReturnDateText)
    OMBRIVANE_FLAG(showsReturnDate, core().showsReturnDate)
    OMBRIVANE_FLAG(showsFloatingBar, core().showsFloatingBar)
    OMBRIVANE_FLAG(showsScrollUp, core().showsScrollUp)
    OMBRIVANE_FLAG(filterIsOn, core().filterIsOn)
    OMBRIVANE_TEXT(totalLabel, core().totalLabel)
    OMBRIVANE_TEXT(total, core().total)
    OMBRIVANE_TEXT(continueText, core().continueText)
    OMBRIVANE_INTENT(back, core().back)
    OMBRIVANE_INTENT(edit, core().edit)
    OMBRIVANE_INTENT(previousDeparture, core().previousDeparture)
    OMBRIVANE_INTENT(nextDeparture, core().nextDeparture)
    OMBRIVANE_INTENT(previousReturn, core().previousReturn)
    OMBRIVANE_INTENT(nextReturn, core().nextReturn)
    OMBRIVANE_INTENT(addReturnDate, core().addReturnDate)
    OMBRIVANE_INTENT(openFilter, core().openFilter)
    OMBRIVANE_INTENT(scrollUp, core().scrollUp)
    OMBRIVANE_INTENT(goOn, core().continue_)

public:
    ResultsAdapter(std::shared_ptr<Screen> screen, ResultsModel& model);

    QObject* content() const { return contentAdapter_.get(); }
    QUrl contentPage() const;
    Q_SIGNAL void contentChanged();
    double offset() const { return core().offset.get(); }
    void setOffset(double points) { core().scrolled(points); }

private:
    void followContent();

    Fields unkeyed_;
    Derived<std::shared_ptr<Screen>> contentScreen_;
    std::shared_ptr<ScreenAdapter> contentAdapter_;
    Subscription contentWatch_;
};

class FlightListAdapter : public ombrivane::view::ResultsAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")

public:
    explicit FlightListAdapter(const std::shared_ptr<Screen>& screen) :
        ResultsAdapter(screen, static_cast<FlightListView&>(*screen).flightListVM) {}
};

class DomesticFlightListAdapter : public ombrivane::view::ResultsAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_FLAG(showsTabs, core().showsTabs)
    OMBRIVANE_FIELD(int, tab, core().flightListVM.index)
    OMBRIVANE_TEXT(departingTitle, core().departingTitle)
    OMBRIVANE_TEXT(returningTitle, core().returningTitle)
    OMBRIVANE_INTENT(tapDepartingFlights, core().tapDepartingFlights)
    OMBRIVANE_INTENT(tapReturningFlights, core().tapReturningFlights)

public:
    explicit DomesticFlightListAdapter(const std::shared_ptr<Screen>& screen) :
        ResultsAdapter(screen, static_cast<DomesticFlightListView&>(*screen).flightListVM) {}

    DomesticFlightListView& core() const { return static_cast<DomesticFlightListView&>(*screen()); }
};

} // namespace ombrivane::view
