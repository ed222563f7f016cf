#include "results/TimeBucket.h"

#include <charconv>

namespace ombrivane {

const TimeBucket* timeBucket(const std::string& key) {
    for (const auto& bucket : timeBuckets) {
        if (key == bucket.key) return &bucket;
    }
    return nullptr;
}

std::optional<std::int64_t> departureHour(const std::string& time) {
    const std::string_view piece = std::string_view(time).substr(0, time.find(':'));
    if (piece.empty()) return std::nullopt;
    std::int64_t hour = 0;
    const char* end = piece.data() + piece.size();
    const auto [stop, failure] = std::from_chars(piece.data(), end, hour);
    return failure == std::errc() && stop == end ? hour : 0;
}

} // namespace ombrivane
