// Puts an answer on the wire, in order or as a fault wants it.
#pragma once

#include "sandbox/control/Faults.h"
#include "sandbox/wire/HttpMessage.h"
#include "sandbox/wire/TlsConnection.h"

#include <chrono>
#include <cstdint>
#include <vector>

namespace ombrivane::sandbox {

struct DeliveryPlan {
    enum class Manner { Whole, Short, Drop, Reset, HalfStatusLine, Silence, Huge, Endless, Trickle };

    Manner manner = Manner::Whole;
    std::chrono::milliseconds latency{0}; ///< before the first byte
    std::chrono::milliseconds pace{0};    ///< between two bytes of a trickle
    std::uint64_t size = 0;               ///< of a huge answer
    bool keepConnection = false;
};

/// What the faults want of the wire. Latencies add up; of several manners the first counts.
DeliveryPlan planDelivery(const std::vector<Fault>& faults);

/// Sends the answer and, unless the plan keeps the connection, ends it. Returns whether another request may
/// follow.
bool deliver(const HttpAnswer& answer, const DeliveryPlan& plan, TlsConnection& connection);

} // namespace ombrivane::sandbox
