#pragma once

#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"
#include "records/FlightAvailability.h"
#include "records/KeyedRecords.h"

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
};

/// The baggage card, one block for each direction. Values are shown as the service sends them.
class BaggageInformationView : public Screen {
public:
    Binding<bool> isLoading;
    Derived<std::string> title;
    Derived<std::string> cabinLabel;
    Derived<std::string> checkInLabel;
    Derived<std::vector<BaggageBlock>> blocks;

protected:
    BaggageInformationView(std::string_view name, const Field<bool>& loading,
                           std::function<std::vector<BaggageBlock>()> makeBlocks);
};

class OWBaggageInformationView final : public BaggageInformationView {
public:
    OWBaggageInformationView(const Field<std::optional<OWFlightAvailability>>& availability,
                             const Field<bool>& loading);

    Binding<std::optional<OWFlightAvailability>> flightAvailability;
};

class RTBaggageInformationView final : public BaggageInformationView {
public:
    RTBaggageInformationView(const Field<std::optional<RTFlightAvailability>>& availability,
                             const Field<bool>& loading);

    Binding<std::optional<RTFlightAvailability>> flightAvailability;
};

template <> struct Keyed<BaggageBlock> {
    static Json toJson(const BaggageBlock& block) {
        return Json{{"route", block.route}, {"cabin", block.cabin}, {"checkIn", block.checkIn}};
    }
};

} // namespace ombrivane
