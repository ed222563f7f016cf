#include "base/WholeNumber.h"

#include "base/Fault.h"

#include <algorithm>
#include <cmath>

namespace ombrivane {

std::int64_t wholeNumber(double value, const std::string& what) {
    constexpr double bound = 9223372036854775808.0; // 2^63
    if (!std::isfinite(value) || value < -bound || value >= bound) fatalFault(what + " is no 64-bit number");
    return static_cast<std::int64_t>(value);
}

double amountOf(std::int64_t amount) {
    constexpr double most = 9223372036854774784.0; // 2^63 - 1024
    return std::min(static_cast<double>(amount), most);
}

std::int64_t sumOf(std::int64_t one, std::int64_t other) {
    std::int64_t sum = 0;
    if (!__builtin_add_overflow(one, other, &sum)) return sum;
    return one > 0 ? INT64_MAX : INT64_MIN;
}

std::int64_t differenceOf(std::int64_t one, std::int64_t other) {
    std::int64_t difference = 0;
    if (!__builtin_sub_overflow(one, other, &difference)) return difference;
    return one > other ? INT64_MAX : INT64_MIN;
}

bool exceedsBalance(std::int64_t amount, const std::optional<double>& walletBalance) {
    return walletBalance && amount > wholeNumber(*walletBalance, "the wallet's balance");
}

} // namespace ombrivane
