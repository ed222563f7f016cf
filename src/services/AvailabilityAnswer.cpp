#include "services/AvailabilityAnswer.h"

#include "dates/Day.h"
#include "records/DecodeError.h"

namespace ombrivane {
namespace {

constexpr std::int64_t mostOfOneType = 1000;

void checkDay(const std::string& text, const char* key) {
    if (Day::parse(text)) return;
    DecodeError error("is no day");
    error.within(key);
    error.within("data.flightsSummary");
    throw error;
}

} // namespace

void checkTravellers(const AvailabilitySummary& summary) {
    for (const auto count : {summary.numberAdult, summary.numberChild, summary.numberInfant}) {
        if (count >= 0 && count <= mostOfOneType) continue;
        DecodeError error("counts travellers that no booking has");
        error.within("data.availabilitySummary");
        throw error;
    }
}

void checkTravelDays(const FlightsSummary& flights) { checkDay(flights.deptDate, "dept_date"); }

void checkTravelDays(const RTFlightsSummary& flights) {
    checkDay(flights.deptDate, "dept_date");
    checkDay(flights.returnDeptDate, "return_dept_date");
}

} // namespace ombrivane
