#include "search/WholeNumber.h"

#include "support/Fault.h"

#include <cmath>

namespace ombrivane {

std::int64_t wholeNumber(double value, const std::string& what) {
    constexpr double bound = 9223372036854775808.0; // 2^63
    if (!std::isfinite(value) || value < -bound || value >= bound) fatalFault(what + " is no 64-bit number");
    return static_cast<std::int64_t>(value);
}

std::int64_t sumOf(std::int64_t one, std::int64_t other) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(one, other, &sum)) fatalFault("the sum of two fares overflows");
    return sum;
}

bool exceedsBalance(std::int64_t amount, const std::optional<double>& walletBalance) {
    return walletBalance && amount > wholeNumber(*walletBalance, "the wallet's balance");
}

} // namespace ombrivane
