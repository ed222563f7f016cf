#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ombrivane {

/// `value` without its fraction. One that is not finite or lies outside of 64 bits is a fault that names
/// `what`.
std::int64_t wholeNumber(double value, const std::string& what);

/// `amount` as a double that is a 64-bit number again: the largest are not exact, and would round up beyond.
double amountOf(std::int64_t amount);

/// The sum of two amounts, or the amount next to it that there is.
std::int64_t sumOf(std::int64_t one, std::int64_t other);

/// By how much `one` is more than `other`, or the amount next to it that there is.
std::int64_t differenceOf(std::int64_t one, std::int64_t other);

/// Whether `amount` is more than the wallet holds, its balance truncated to whole units; without a balance
/// there is no limit.
bool exceedsBalance(std::int64_t amount, const std::optional<double>& walletBalance);

} // namespace ombrivane
