#include "sandbox/control/FaultPlan.h"

#include <utility>

namespace ombrivane::sandbox {

void FaultPlan::replace(std::vector<Fault> faults) {
    const std::lock_guard lock(mutex_);
    entries_.clear();
    for (Fault& fault : faults)
        entries_.push_back({std::move(fault)});
}

void FaultPlan::add(std::vector<Fault> faults) {
    const std::lock_guard lock(mutex_);
    for (Fault& fault : faults)
        entries_.push_back({std::move(fault)});
}

std::vector<Fault> FaultPlan::due(std::string_view path) {
    const std::lock_guard lock(mutex_);
    std::vector<Fault> found;
    for (Entry& entry : entries_) {
        if (entry.fault.path != "*" && entry.fault.path != path) continue;
        const std::size_t position = entry.seen++;
        if (position >= entry.fault.after && position - entry.fault.after < entry.fault.times)
            found.push_back(entry.fault);
    }
    return found;
}

} // namespace ombrivane::sandbox
