#pragma once

#include "base/ErrorKind.h"
#include "state/CompletionCallback.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace ombrivane {
class HostBoundary;
} // namespace ombrivane

namespace ombrivane::kit {

/// Which booking a stand-in hands over. Every text and every amount of its dictionary differs from every
/// other one (but for what nobody pays, which is 0), so that a wallet that mixes two of them up is found out.
struct Booked {
    bool isRoundTrip = false; ///< "returnFlight" is a flight, and not null
    bool isAbroad = false;    ///< from Kathmandu to Doha, and not to Pokhara
    std::size_t adults = 1;   ///< of the passengers
    std::size_t children = 0; ///< of the passengers
    std::size_t infants = 0;  ///< of the passengers
    bool hasCashBack = false; ///< the fare grants some: a number with a fraction
    bool hasTotalCost = true; ///< "totalCost" is a number; without, it is the empty text
};

/// Takes the place of the component in a test of a wallet: it has no screens and asks no service, and brings
/// about any outcome of the contract (`docs/contract.md`) as the component does. What it hands over is
/// written by the component's own code, and passes the same boundary: a reservation comes to `Reservations`
/// first, then to the callback, and the close is a step of the main queue.
///
/// Each is an opening: `HostEvents` tells that it has opened, and by whom it was closed: by the
/// host where this goes first.
///
/// Wants an installed `Platform`, of which it uses the main queue. Main thread. After an outcome that closes
/// another one is delivered as what it is, a late one: a reservation still comes, nothing else does.
class StandIn {
public:
    /// @param callback the wallet's, as given to the component
    /// @param close called when the component wants to be taken off the screen
    explicit StandIn(CompletionCallback callback, std::function<void()> close = nullptr);
    ~StandIn();
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;

    /// A reservation was made: a dictionary with "exit" true, then the close.
    void reserved(const Booked& booked = {});

    /// A payment inside of the component was confirmed: "exit" false, and it stays. No screen leads there
    /// today.
    void paid(const Booked& booked = {});

    /// The opening failed: an error of that kind, then the close. On a thread of its own where the component
    /// would be on one of the network; it has ended when this returns.
    void failed(ErrorKind kind);

    /// A reservation was sent and no answer came: the component stays and its callback is not called; whoever
    /// listens to `HostEvents` hears `reservationUnknown`. @param kind why nothing is known
    void outcomeUnknown(ErrorKind kind = ErrorKind::timedOut);

    /// The customer left the search: the close without a call.
    void closed();

    /// The host drops the view: from here on nothing comes but a reservation that was under way.
    void drop();

private:
    std::shared_ptr<HostBoundary> boundary_;
};

/// The dictionary that `StandIn::reserved` hands over.
Dictionary reservation(const Booked& booked = {});

/// The dictionary that `StandIn::paid` hands over.
Dictionary confirmation(const Booked& booked = {});

/// An error of that kind, with a domain, a code and the words that the component gives it; where the words
/// are the service's, with some of them. `kindOf` of it is `kind`.
Error errorOf(ErrorKind kind);

} // namespace ombrivane::kit
