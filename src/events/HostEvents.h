#pragma once

#include "base/Api.h"
#include "events/Event.h"

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace ombrivane {

/// What happens inside of the component, beside the callback and never in its place: for a host's figures,
/// and for whoever looks for a fault. Those of the process; they outlive every view.
///
/// Listeners are called where something happens: on the main thread, but for the end of an opening whose
/// token was refused and for ended calls, which come on a thread of the network. No lock is held meanwhile,
/// and what a listener throws ends there.
class OMBRIVANE_API HostEvents {
public:
    using EventListener = std::function<void(const Event&)>;    ///< is told of an event
    using CallListener = std::function<void(const EndedCall&)>; ///< is told of a request
    /// Listens while it lives; a call that has begun on another thread may still come to its end.
    using Listening = std::shared_ptr<const void>;

    /// Those of the process.
    static HostEvents& shared();

    /// Listens from here on. Either function may be empty. Any thread.
    [[nodiscard]] Listening listen(EventListener happened, CallListener callEnded = nullptr);

    /// For the component: an opening begins, and is the one that what follows belongs to. Any thread.
    /// @return what names it; random, and the same for nothing else
    std::string beginOpening();
    /// For the component: what names the opening that began last. Any thread.
    std::string opening() const;
    /// For the component: something happened. Any thread.
    void tell(const Event& event) const;
    /// For the component: a request ended. Any thread.
    void tell(const EndedCall& call) const;

private:
    struct Listener {
        EventListener happened;
        CallListener callEnded;
    };
    std::vector<std::shared_ptr<const Listener>> listeners() const;

    mutable std::mutex mutex_;
    std::string opening_;
    std::vector<std::weak_ptr<const Listener>> listeners_;
};

} // namespace ombrivane
