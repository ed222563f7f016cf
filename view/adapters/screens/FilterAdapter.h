// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/RowsModel.h"
#include "adapters/ScreenAdapter.h"
#include "results/FilterBottomSheetView.h"

namespace ombrivane::view {

/// What pages read of `FilterBottomSheetView`.
class FilterAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(FilterAdapter, ScreenAdapter, FilterBottomSheetView)
    OMBRIVANE_FIELD(double, price, core().price)
    OMBRIVANE_TEXT(title, core().title)
    OMBRIVANE_TEXT(resetText, core().resetText)
    OMBRIVANE_TEXT(priceTitle, core().priceTitle)
    OMBRIVANE_TEXT(priceRange, core().priceRange)
    OMBRIVANE_TEXT(chosenPrice, core().chosenPrice)
    OMBRIVANE_FIELD(double, minPrice, core().minPrice)
    OMBRIVANE_FIELD(double, maxPrice, core().maxPrice)
    OMBRIVANE_TEXT(airlinesTitle, core().airlinesTitle)
    OMBRIVANE_TEXT(timeTitle, core().timeTitle)
    OMBRIVANE_TEXT(applyText, core().applyText)
    OMBRIVANE_ROWS(airlines, core().airlines)
    OMBRIVANE_ROWS(times, core().times)
    OMBRIVANE_AMOUNT(slide, core().slide)
    OMBRIVANE_INTENT(resetAll, core().resetAll)
    OMBRIVANE_INTENT(apply, core().apply)
};

} // namespace ombrivane::view
