#pragma once

#include "keyed/Field.h"
#include "records/KeyedRecords.h"

#include <string>
#include <vector>

namespace ombrivane {

/// Narrows a result list by airline, price ceiling and departure time. A round-trip list that is not empty
/// wins over the one-way list; of a round trip only the outbound journey is looked at. Main thread.
class FilterBottomSheetViewModel {
public:
    void calculateMaxPrice();
    /// Starts from 10,000,000, which therefore stands for an empty list and for anything dearer.
    void calculateMinPrice();
    /// The airline names in the order of their first appearance.
    void collectAirlines();
    /// The currency of the last offer.
    void readCurrency();

    /// Writes the filtered list of the kind in use, its order unchanged. A price that is no 64-bit number is
    /// a fault.
    /// @param time a key of the time buckets, or anything else for any time
    void applyFilter(double price, const std::string& selectedId, const std::string& time);

    Fields fields;
    Published<double> maxPrice{fields, "maxPrice", 100.0};
    Published<double> minPrice{fields, "minPrice", 0.0};
    Published<std::string> currency{fields, "currency"};
    Published<OneWayOffers> onewayFlights{fields, "onewayFlights"};
    Published<RoundTripOffers> roundtripFlights{fields, "roundtripFlights"};
    Published<OneWayOffers> filteredOnewayFlights{fields, "filteredOnewayFlights"};
    Published<RoundTripOffers> filteredRoundtripFlights{fields, "filteredRoundtripFlights"};
    Published<std::vector<std::string>> airLines{fields, "airLines"};

private:
    template <class Visit> void visitOffers(Visit visit) const;
};

} // namespace ombrivane
