#pragma once

#include <functional>
#include <vector>

namespace ombrivane::bench {

/// Work that is measured: `prepare` runs before each round and `cleanUp` after it, outside of the
/// measurement.
struct Timed {
    std::function<void()> run;
    std::function<void()> prepare = [] {};
    std::function<void()> cleanUp = [] {};
};

/// What the processor has spent on this thread, in seconds: a machine that also does something else does not
/// count.
double processorSeconds();

/// The middle one. `values` must not be empty.
double median(std::vector<double> values);

/// The median seconds of processor time of each, all run in turn in every round, so that a machine that slows
/// down or has its caches taken away does so to all alike.
std::vector<double> interleavedMedians(const std::vector<Timed>& works, std::size_t rounds);

} // namespace ombrivane::bench
