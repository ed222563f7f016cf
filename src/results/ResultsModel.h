#pragma once

#include "dates/Calendar.h"
#include "dates/Day.h"
#include "keyed/Field.h"
#include "records/KeyedRecords.h"
#include "results/AllAirlines.h"

#include <optional>
#include <string>

namespace ombrivane {

/// What the two result models have in common. A random UUID in a selection field means "nothing chosen".
class ResultsModel {
public:
    /// The line under the route: dates and travellers, as `Thu, Jun 23, 2022 - Sat, Jun 25, 2022 | 2A, 1C`.
    /// The return date counts only in round-trip mode. A count that is no number is a fault.
    std::string formatHeaderSubtitle(std::optional<Day> departure, std::optional<Day> returning,
                                     const std::string& adults, const std::string& children,
                                     const std::string& infants) const;

    /// The state of a search that starts in this mode.
    void startSearch(bool roundTrip);

    Fields fields;
    Published<bool> isLoading{fields, "isLoading", true};
    Published<bool> rulesAndRegulationViewIsActive{fields, "rulesAndRegulationViewIsActive"};
    Published<bool> showFilterBottomSheet{fields, "showFilterBottomSheet"};
    Published<bool> showCustomRoundtripDatePickerBottomSheet{fields,
                                                             "showCustomRoundtripDatePickerBottomSheet"};
    Published<bool> showActionBar{fields, "showActionBar", true};
    Published<bool> scrollToTop{fields, "scrollToTop"};
    Published<bool> showSnackBar{fields, "showSnackBar"};
    Published<bool> hasReturnDate{fields, "hasReturnDate"};
    Published<bool> showContinueButton{fields, "showContinueButton"};
    Published<bool> noInternetConnection{fields, "noInternetConnection"};
    Published<bool> flightsListIsEmpty{fields, "flightsListIsEmpty"};
    Published<Day> departDate{fields, "departDate", calendar::today()};
    Published<Day> returnDate{fields, "returnDate", calendar::today()};
    Published<std::string> returnDateText{fields, "returnDateText"};
    Published<OneWayOffers> onewayFlights{fields, "onewayFlights"};
    Published<OneWayOffers> filteredOnewayFlights{fields, "filteredOnewayFlights"};
    Published<Uuid> displayedSegmentId{fields, "displayedSegmentId", Uuid::random()};
    Published<Uuid> selectedFlightSegmentId{fields, "selectedFlightSegmentId", Uuid::random()};
    Published<bool> flightSelected{fields, "flightSelected"};
    Published<std::optional<AnyFlight>> flight{fields, "flight"};
    Published<std::string> tripType{fields, "tripType"};
    Published<std::string> selectedId{fields, "selectedId", allAirlines};
    Published<double> price{fields, "price", 0.0};
    Published<std::string> time{fields, "time"};
};

/// Sorts by the fare's total, equal ones in the service's order.
void sortByTotalCost(OneWayOffers& offers);
void sortByTotalCost(RoundTripOffers& offers);

} // namespace ombrivane
