#include "services/AvailabilityAnswer.h"

#include "records/DecodeError.h"

namespace ombrivane {
namespace {

constexpr std::int64_t mostOfOneType = 1000;

} // namespace

void checkTravellers(const AvailabilitySummary& summary) {
    for (const auto count : {summary.numberAdult, summary.numberChild, summary.numberInfant}) {
        if (count >= 0 && count <= mostOfOneType) continue;
        DecodeError error(notUnderstood, "counts travellers that no booking has");
        error.within("data.availabilitySummary");
        throw error;
    }
}

} // namespace ombrivane
