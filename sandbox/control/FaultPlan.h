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

    /// More faults, beside those in force. One of a scenario that is in force already is not added again.
    void add(std::vector<Fault> faults);

    /// The faults that a request of that path meets, in the order in which they were given; counts the
    /// request.
    std::vector<Fault> due(std::string_view path);

    /// A fault and what came of it so far.
    struct Entry {
        Fault fault;
        std::size_t seen = 0; ///< requests of its path

        /// How many of them it has met.
        [[nodiscard]] std::size_t met() const;
        /// Whether it meets no request any more.
        [[nodiscard]] bool isOver() const { return met() == fault.times; }
    };

    /// All faults, also those that are over, in the order in which they were given.
    [[nodiscard]] std::vector<Entry> entries() const;

private:
    mutable std::mutex mutex_;
    std::vector<Entry> entries_;
};

} // namespace ombrivane::sandbox
