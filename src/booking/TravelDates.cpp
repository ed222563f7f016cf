#include "booking/TravelDates.h"

#include "base/Fault.h"

namespace ombrivane {
namespace {

Day dayOf(const std::string& text) {
    const auto day = Day::parse(text);
    if (!day) fatalFault("an availability without a day of travel was let in");
    return *day;
}

} // namespace

TravelDates travelDatesOf(const FlightsSummary& flights) {
    const Day day = dayOf(flights.deptDate);
    return {day, day};
}

TravelDates travelDatesOf(const RTFlightsSummary& flights) {
    return {dayOf(flights.deptDate), dayOf(flights.returnDeptDate)};
}

} // namespace ombrivane
