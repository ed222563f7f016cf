#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ombrivane {

/// Bits of a reachability flag word that decide something.
inline constexpr std::uint32_t reachableFlag = 2;
inline constexpr std::uint32_t connectionRequiredFlag = 4;

/// Asks the device whether there is a way to a service; sends no packet.
class ReachabilityMeasure {
public:
    ReachabilityMeasure() = default;
    ReachabilityMeasure(const ReachabilityMeasure&) = delete;
    ReachabilityMeasure& operator=(const ReachabilityMeasure&) = delete;
    virtual ~ReachabilityMeasure() = default;

    /// The flag word, measured afresh; nothing when the device gives none. Any thread; may block.
    /// @param host where a request is about to go: a name or an address, without brackets. A service on this
    ///        machine needs no network.
    virtual std::optional<std::uint32_t> flags(const std::string& host) = 0;
};

} // namespace ombrivane
