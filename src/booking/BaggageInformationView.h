#pragma once

#include "booking/TripScreens.h"
#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "keyed/Shown.h"
#include "records/KeyedRecords.h"
#include "words/Caption.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ombrivane {

/// The allowances of one journey, as the baggage card shows them.
struct BaggageBlock {
    std::string route;
    std::string cabin;
    std::string checkIn;

    bool operator==(const BaggageBlock&) const = default;

    static constexpr auto shown =
        table(entry("route", &BaggageBlock::route), entry("cabin", &BaggageBlock::cabin),
              entry("checkIn", &BaggageBlock::checkIn));
};

/// One block for each direction, sample values where there is no availability yet.
std::vector<BaggageBlock> baggageBlocks(const std::optional<OWFlightAvailability>& availability);
std::vector<BaggageBlock> baggageBlocks(const std::optional<RTFlightAvailability>& availability);

/// The baggage card, one block for each direction. Values are shown as the service sends them.
class BaggageInformationView : public Screen {
    std::function<std::vector<BaggageBlock>()> makeBlocks_;

public:
    Binding<bool> isLoading;
    Caption title{fields, "title", Text::baggageTitle};
    Caption cabinLabel{fields, "cabinLabel", Text::cabinBaggage};
    Caption checkInLabel{fields, "checkInLabel", Text::checkInBaggage};
    Derived<std::vector<BaggageBlock>> blocks{fields, "blocks", [this] { return makeBlocks_(); }};

protected:
    BaggageInformationView(std::string_view screenName, const Field<bool>& loading,
                           std::function<std::vector<BaggageBlock>()> makeBlocks) :
        Screen(screenName), makeBlocks_(std::move(makeBlocks)), isLoading(fields, "isLoading", loading) {}
};

template <class Trip> class BaggageInformationOf final : public BaggageInformationView {
    using Availability = std::optional<typename Trip::Availability>;

public:
    BaggageInformationOf(const Field<Availability>& availability, const Field<bool>& loading) :
        BaggageInformationView(TripScreens<Trip>::baggage, loading,
                               [this] { return baggageBlocks(flightAvailability.get()); }),
        flightAvailability(fields, "flightAvailability", availability) {}

    Binding<Availability> flightAvailability;
};

using OWBaggageInformationView = BaggageInformationOf<OneWay>;
using RTBaggageInformationView = BaggageInformationOf<RoundTrip>;

} // namespace ombrivane
