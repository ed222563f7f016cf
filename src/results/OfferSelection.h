#pragma once

#include "keyed/Field.h"
#include "records/KeyedRecords.h"

#include <optional>

namespace ombrivane {

/// The fields of the owner that a tap on an item of one list writes.
struct OfferSelection {
    Field<std::optional<AnyFlight>>& selectedFlight;
    Field<bool>& showContinueButton;
    Field<Uuid>& displayedSegmentId;
    Field<Uuid>& selectedFlightSegmentId;
    Field<bool>& flightSelected;
    Field<bool>& showSegmant;

    /// One tap on `offer`: chooses it and unfolds its segments, or takes both back when it was unfolded.
    void tap(const AnyFlight& offer);

    /// Chooses nothing: what a filter does to the list under it.
    void clear();
};

} // namespace ombrivane
