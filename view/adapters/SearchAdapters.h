#pragma once

#include "adapters/RowsModel.h"
#include "adapters/ScreenAdapter.h"
#include "parts/AlertView.h"
#include "parts/CustomRadioButtonFieldView.h"
#include "search/AirportSearch.h"
#include "search/MainView.h"
#include "search/NationalityBottomSheetView.h"
#include "search/SearchForm.h"
#include "search/TravellerBottomSheetView.h"
#include "search/TravellerIncDecButtonView.h"

namespace ombrivane::view {

class AlertAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(AlertAdapter, AlertView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(message, core().message)
    OMBRIVANE_TEXT(buttonText, core().buttonText)
    OMBRIVANE_INTENT(dismiss, core().button)
};

class FooterAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(FooterAdapter, FooterView)
    OMBRIVANE_TEXT(poweredBy, core().poweredBy)
    OMBRIVANE_TEXT(mobile, core().mobile)
    OMBRIVANE_TEXT(landLine, core().landLine)
    OMBRIVANE_INTENT(tapMark, core().tapMark)
    OMBRIVANE_INTENT(callMobile, core().callMobile)
    OMBRIVANE_INTENT(openViber, core().openViber)
    OMBRIVANE_INTENT(openWhatsapp, core().openWhatsapp)
    OMBRIVANE_INTENT(callLandLine, core().callLandLine)
};

class SearchFormAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(SearchFormAdapter, SearchForm)
    OMBRIVANE_TEXT(origin, core().origin)
    OMBRIVANE_TEXT(originPlaceholder, core().originPlaceholder)
    OMBRIVANE_TEXT(destination, core().destination)
    OMBRIVANE_TEXT(destinationPlaceholder, core().destinationPlaceholder)
    OMBRIVANE_TEXT(departureDate, core().departureDate)
    OMBRIVANE_TEXT(departureDatePlaceholder, core().departureDatePlaceholder)
    OMBRIVANE_TEXT(returnDate, core().returnDate)
    OMBRIVANE_TEXT(returnDatePlaceholder, core().returnDatePlaceholder)
    OMBRIVANE_TEXT(nationality, core().nationality)
    OMBRIVANE_TEXT(nationalityPlaceholder, core().nationalityPlaceholder)
    OMBRIVANE_TEXT(travellers, core().travellers)
    OMBRIVANE_FLAG(showsReturnDate, core().showsReturnDate)
    OMBRIVANE_FLAG(isFetchingCountries, core().isFetchingCountries)
    OMBRIVANE_INTENT(tapOrigin, core().tapOrigin)
    OMBRIVANE_INTENT(swap, core().swap)
    OMBRIVANE_INTENT(tapDestination, core().tapDestination)
    OMBRIVANE_INTENT(tapDate, core().tapDate)
    OMBRIVANE_INTENT(tapNationality, core().tapNationality)
    OMBRIVANE_INTENT(tapTravellers, core().tapTravellers)
    OMBRIVANE_INTENT(search, core().search)
};

class MainViewAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    Q_PROPERTY(ombrivane::view::SearchFormAdapter* oneWay READ oneWay CONSTANT FINAL)
    Q_PROPERTY(ombrivane::view::SearchFormAdapter* roundTrip READ roundTrip CONSTANT FINAL)
    Q_PROPERTY(ombrivane::view::FooterAdapter* footer READ footer CONSTANT FINAL)
    Q_PROPERTY(int tabCount READ tabCount CONSTANT FINAL)
    Q_PROPERTY(int tab READ tab NOTIFY tabChanged FINAL)
    OMBRIVANE_SCREEN(MainViewAdapter, MainView)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_INTENT(back, core().back)

public:
    SearchFormAdapter* oneWay() { return &oneWay_; }
    SearchFormAdapter* roundTrip() { return &roundTrip_; }
    FooterAdapter* footer() { return &footer_; }
    int tabCount() const { return static_cast<int>(core().tabBar->tabs->size()); }
    Q_INVOKABLE QString tabLabel(int index) const;
    int tab() const { return static_cast<int>(core().tabBar->localSelection.get()); }
    Q_INVOKABLE void tapTab(int index) { core().tabBar->tap(static_cast<TabBarItem>(index)); }
    Q_SIGNAL void tabChanged();

private:
    SearchFormAdapter oneWay_{core().oneWay};
    SearchFormAdapter roundTrip_{core().roundTrip};
    FooterAdapter footer_{core().footer};
    Subscription tabWatch_ = watch(core().tabBar->localSelection, [this] { emit tabChanged(); });
};

class AirportRowAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(AirportRowAdapter, FlightListItemView)
    OMBRIVANE_TEXT(mainText, core().mainText)
    OMBRIVANE_TEXT(code, core().code)
    OMBRIVANE_TEXT(name, core().name_)
    OMBRIVANE_INTENT(tap, core().tap)
};

class AirportSearchAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(AirportSearchAdapter, AirportSearch)
    OMBRIVANE_TEXT(placeholder, core().placeholder)
    OMBRIVANE_TEXT(heading, core().heading)
    OMBRIVANE_INPUT(type, core().type)
    OMBRIVANE_INTENT(close, core().close)
    OMBRIVANE_ROWS(rows, core().rows)
};

class RadioRowAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(RadioRowAdapter, CustomRadioButtonFieldView)
    OMBRIVANE_TEXT(label, core().label)
    OMBRIVANE_FLAG(isMarked, core().isMarked)
    OMBRIVANE_INTENT(tap, core().tap)
};

class StepperAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(StepperAdapter, TravellerIncDecButtonView)
    OMBRIVANE_TEXT(category, core().category)
    OMBRIVANE_TEXT(categoryDetail, core().categoryDetail)
    OMBRIVANE_TEXT(numberValue, core().numberValue)
    OMBRIVANE_FLAG(mayIncrement, core().mayIncrement)
    OMBRIVANE_FLAG(mayDecrement, core().mayDecrement)
    OMBRIVANE_INTENT(increment, core().increment)
    OMBRIVANE_INTENT(decrement, core().decrement)
};

class TravellerSheetAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(TravellerSheetAdapter, TravellerBottomSheetView)
    OMBRIVANE_TEXT(heading, core().heading)
    OMBRIVANE_TEXT(subHeading, core().subHeading)
    OMBRIVANE_TEXT(cabinHeading, core().cabinHeading)
    OMBRIVANE_TEXT(doneText, core().doneText)
    OMBRIVANE_INTENT(done, core().done)
    OMBRIVANE_ROWS(steppers, core().steppers)
    OMBRIVANE_ROWS(cabins, core().cabins)
};

class NationalityRowAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(NationalityRowAdapter, NationalityRow)
    OMBRIVANE_TEXT(nationality, core().nationality)
    OMBRIVANE_INTENT(tap, core().tap)
};

class NationalitySheetAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(NationalitySheetAdapter, NationalityBottomSheetView)
    OMBRIVANE_TEXT(placeholder, core().placeholder)
    OMBRIVANE_INPUT(type, core().type)
    OMBRIVANE_ROWS(rows, core().rows)
};

} // namespace ombrivane::view
