#include "services/FlightsSummarySlots.h"

#include "base/SharedInstance.h"

#include <mutex>

namespace ombrivane {
namespace {

/// Written on a thread of the network and read on the main thread.
template <class Summary> struct Slot {
    std::mutex mutex;
    std::optional<Summary> summary;
};

template <class Summary> std::optional<Summary> read() {
    auto& slot = SharedInstance<Slot<Summary>>::get();
    const std::lock_guard lock(slot.mutex);
    return slot.summary;
}

template <class Summary> void write(const Summary& summary) {
    auto& slot = SharedInstance<Slot<Summary>>::get();
    const std::lock_guard lock(slot.mutex);
    slot.summary = summary;
}

} // namespace

std::optional<FlightsSummary> owFlightsSummary() { return read<FlightsSummary>(); }

std::optional<RTFlightsSummary> rtFlightsSummary() { return read<RTFlightsSummary>(); }

void storeFlightsSummary(const FlightsSummary& summary) { write(summary); }

void storeFlightsSummary(const RTFlightsSummary& summary) { write(summary); }

} // namespace ombrivane
