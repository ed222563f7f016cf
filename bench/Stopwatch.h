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

/// The median seconds of each, all run in turn in every round, so that what else the machine does meets them
/// alike.
std::vector<double> interleavedMedians(const std::vector<Timed>& works, std::size_t rounds);

} // namespace ombrivane::bench
