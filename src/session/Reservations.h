#pragma once

#include "base/Api.h"
#include "keyed/Observable.h"
#include "state/CompletionCallback.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>

namespace ombrivane {

/// The reservations that the wallet has not taken yet. They outlive every view: one that is made after the
/// host dropped its view waits here until somebody takes it, in the order in which they were made.
///
/// Every reservation comes here once, whether or not a callback or a signal tells of it too, and `take` hands
/// each of them out once, whoever asks.
class OMBRIVANE_API Reservations {
public:
    /// Those of the process.
    static Reservations& shared();

    /// Hands out the reservation that has waited longest; nothing where none waits. Any thread.
    std::optional<Dictionary> take();
    /// How many wait. Any thread.
    std::size_t pending() const;

    /// `observer` is told, as a step of the main queue, after each reservation that came or was taken, and
    /// once after this call where one waits already. Main thread.
    [[nodiscard]] Subscription observe(Observer observer);

    /// For the component: a reservation was made. Any thread.
    void keep(Dictionary reservation);

private:
    struct Changes final : Observable {};
    void tell();

    mutable std::mutex mutex_;
    std::deque<Dictionary> waiting_;
    std::shared_ptr<Changes> changes_ = std::make_shared<Changes>();
};

} // namespace ombrivane
