#include "Stopwatch.h"

#include <algorithm>
#include <chrono>

namespace ombrivane::bench {

std::vector<double> interleavedMedians(const std::vector<Timed>& works, std::size_t rounds) {
    using Clock = std::chrono::steady_clock;
    std::vector<std::vector<double>> seconds(works.size());
    // The first round warms up and is not counted.
    for (std::size_t round = 0; round <= rounds; ++round) {
        for (std::size_t i = 0; i < works.size(); ++i) {
            works[i].prepare();
            const auto start = Clock::now();
            works[i].run();
            const std::chrono::duration<double> took = Clock::now() - start;
            works[i].cleanUp();
            if (round > 0) seconds[i].push_back(took.count());
        }
    }
    std::vector<double> medians;
    for (auto& taken : seconds) {
        const auto middle = taken.begin() + static_cast<std::ptrdiff_t>(taken.size() / 2);
        std::nth_element(taken.begin(), middle, taken.end());
        medians.push_back(*middle);
    }
    return medians;
}

} // namespace ombrivane::bench
