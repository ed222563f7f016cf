#pragma once

namespace ombrivane {

/// The online check that every client makes before it builds its request.
class Reachability {
public:
    /// Measured afresh on the calling thread. True when the network is reachable and no connection has to be
    /// made first; no other property of the route is looked at.
    static bool isConnectedToNetwork();
};

} // namespace ombrivane
