// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/ScreenAdapter.h"
#include "search/SearchForm.h"

namespace ombrivane::view {

/// What pages read of `SearchForm`.
class SearchFormAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(SearchFormAdapter, ScreenAdapter, SearchForm)
    OMBRIVANE_TEXT(origin, core().origin)
    OMBRIVANE_TEXT(originPlaceholder, core().originPlaceholder)
    OMBRIVANE_TEXT(originCity, core().originCity)
    OMBRIVANE_TEXT(originCode, core().originCode)
    OMBRIVANE_TEXT(originAirport, core().originAirport)
    OMBRIVANE_TEXT(destination, core().destination)
    OMBRIVANE_TEXT(destinationPlaceholder, core().destinationPlaceholder)
    OMBRIVANE_TEXT(destinationCity, core().destinationCity)
    OMBRIVANE_TEXT(destinationCode, core().destinationCode)
    OMBRIVANE_TEXT(destinationAirport, core().destinationAirport)
    OMBRIVANE_TEXT(departureDate, core().departureDate)
    OMBRIVANE_TEXT(departureDatePlaceholder, core().departureDatePlaceholder)
    OMBRIVANE_TEXT(returnDate, core().returnDate)
    OMBRIVANE_TEXT(returnDatePlaceholder, core().returnDatePlaceholder)
    OMBRIVANE_TEXT(nationality, core().nationality)
    OMBRIVANE_TEXT(nationalityPlaceholder, core().nationalityPlaceholder)
    OMBRIVANE_TEXT(travellers, core().travellers)
    OMBRIVANE_FLAG(showsReturnDate, core().showsReturnDate)
    OMBRIVANE_FLAG(originIsMissing, core().originIsMissing)
    OMBRIVANE_FLAG(destinationIsMissing, core().destinationIsMissing)
    OMBRIVANE_FLAG(departureDateIsMissing, core().departureDateIsMissing)
    OMBRIVANE_FLAG(returnDateIsMissing, core().returnDateIsMissing)
    OMBRIVANE_FLAG(nationalityIsMissing, core().nationalityIsMissing)
    OMBRIVANE_FLAG(isFetchingCountries, core().isFetchingCountries)
    OMBRIVANE_INTENT(tapOrigin, core().tapOrigin)
    OMBRIVANE_INTENT(swap, core().swap)
    OMBRIVANE_INTENT(tapDestination, core().tapDestination)
    OMBRIVANE_INTENT(tapDate, core().tapDate)
    OMBRIVANE_INTENT(tapNationality, core().tapNationality)
    OMBRIVANE_INTENT(tapTravellers, core().tapTravellers)
    OMBRIVANE_INTENT(search, core().search)
};

} // namespace ombrivane::view
