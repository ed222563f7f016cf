#include "Stopwatch.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>

namespace ombrivane::bench {
namespace {

/// Lets the allocator do now what it put off while the last work freed its memory: a large request makes it
/// merge and sort what is free, which the next work would pay for otherwise.
void settleHeap() {
    constexpr std::size_t large = 1 << 16;
    constexpr int requests = 64; // each sorts a limited number of pieces
    for (int i = 0; i < requests; ++i) {
        void* volatile piece = std::malloc(large);
        std::free(piece);
    }
}

} // namespace

double processorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

std::vector<double> interleavedMedians(const std::vector<Timed>& works, std::size_t rounds) {
    std::vector<std::vector<double>> seconds(works.size());
    // The first round warms up and is not counted.
    for (std::size_t round = 0; round <= rounds; ++round) {
        for (std::size_t i = 0; i < works.size(); ++i) {
            works[i].prepare();
            settleHeap();
            const double start = processorSeconds();
            works[i].run();
            const double took = processorSeconds() - start;
            works[i].cleanUp();
            if (round > 0) seconds[i].push_back(took);
        }
    }
    std::vector<double> medians;
    for (auto& taken : seconds)
        medians.push_back(median(std::move(taken)));
    return medians;
}

} // namespace ombrivane::bench
