// The faults in force and how often each has happened.
#pragma once

#include "sandbox/control/Faults.h"

#include <mutex>
#include <string_view>
#include <vector>

namespace ombrivane::sandbox {

/// Safe from every thread.
class FaultPlan {
public:
    /// Replaces all faults and forgets what was counted.
    void replace(std::vector<Fault> faults);

    /// More faults, beside those in force.
    void add(std::vector<Fault> faults);

    /// The faults that a request of that path meets, in the order in which they were given; counts the
    /// request.
    std::vector<Fault> due(std::string_view path);

private:
    struct Entry {
        Fault fault;
        std::size_t seen = 0;
    };

    std::mutex mutex_;
    std::vector<Entry> entries_;
};

} // namespace ombrivane::sandbox
