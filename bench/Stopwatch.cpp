#include "Stopwatch.h"

#include <algorithm>
#include <ctime>

namespace ombrivane::bench {
namespace {

/// What the processor spent on this thread: a machine that also does something else does not count.
double processorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

} // namespace

std::vector<double> interleavedMedians(const std::vector<Timed>& works, std::size_t rounds) {
    std::vector<std::vector<double>> seconds(works.size());
    // The first round warms up and is not counted.
    for (std::size_t round = 0; round <= rounds; ++round) {
        for (std::size_t i = 0; i < works.size(); ++i) {
            works[i].prepare();
            const double start = processorSeconds();
            works[i].run();
            const double took = processorSeconds() - start;
            works[i].cleanUp();
            if (round > 0) seconds[i].push_back(took);
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
