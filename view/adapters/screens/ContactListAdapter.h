// Written by scripts/adapters: the keys that pages read.
#pragma once

#include "adapters/RowsModel.h"
#include "adapters/ScreenAdapter.h"
#include "adapters/screens/ContactLineAdapter.h"
#include "booking/OWPessangerContactDetailView.h"

namespace ombrivane::view {

/// What pages read of `OWPessangerContactDetailView`.
class ContactListAdapter : public ombrivane::view::ScreenAdapter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the component")
    OMBRIVANE_SCREEN(ContactListAdapter, ScreenAdapter, OWPessangerContactDetailView)
    OMBRIVANE_TEXT(doneText, core().doneText)
    OMBRIVANE_FIELD(double, donePart, core().donePart)
    OMBRIVANE_TEXT(contactTitle, core().contactTitle)
    OMBRIVANE_TEXT(passengerTitle, core().passengerTitle)
    OMBRIVANE_ROWS(rows, core().rows)
    OMBRIVANE_PART(ContactLineAdapter, contactLine, core().contactLine)
};

} // namespace ombrivane::view
