#include "sandbox/control/FaultPlan.h"

#include <algorithm>
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
    for (Fault& fault : faults) {
        const bool isInForce = std::any_of(entries_.begin(), entries_.end(), [&](const Entry& entry) {
            return entry.fault.scenario == fault.scenario && entry.fault.written == fault.written &&
                   !entry.isOver();
        });
        if (!isInForce) entries_.push_back({std::move(fault)});
    }
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

std::size_t FaultPlan::Entry::met() const {
    return seen > fault.after ? std::min(seen - fault.after, fault.times) : 0;
}

std::vector<FaultPlan::Entry> FaultPlan::entries() const {
    const std::lock_guard lock(mutex_);
    return entries_;
}

} // namespace ombrivane::sandbox
