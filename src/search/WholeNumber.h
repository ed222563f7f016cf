#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ombrivane {

/// `value` without its fraction. One that is not finite or lies outside of 64 bits is a fault that names
/// `what`.
std::int64_t wholeNumber(double value, const std::string& what);

/// The sum of two amounts. An overflow is a fault.
std::int64_t sumOf(std::int64_t one, std::int64_t other);

/// Whether `amount` is more than the wallet holds, its balance truncated to whole units; without a balance
/// there is no limit.
bool exceedsBalance(std::int64_t amount, const std::optional<double>& walletBalance);

} // namespace ombrivane
