#include "search/TripDates.h"

#include "support/Calendar.h"

namespace ombrivane {

Date defaultReturn(Date departure) {
    constexpr int days = 3;
    return calendar::addDays(departure, days);
}

} // namespace ombrivane
