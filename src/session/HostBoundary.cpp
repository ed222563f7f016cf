#include "session/HostBoundary.h"

#include "base/Attempted.h"
#include "base/Fault.h"
#include "events/HostEvents.h"
#include "platform/Platform.h"
#include "services/ErrorWords.h"
#include "session/Reservations.h"

namespace ombrivane {
namespace {

bool exitOf(const Dictionary& dictionary) {
    const auto exit = dictionary.is_object() ? dictionary.find("exit") : dictionary.end();
    if (exit == dictionary.end() || !exit->is_boolean()) {
        fatalFault("a completion dictionary has no boolean \"exit\"");
    }
    return exit->get<bool>();
}

} // namespace

CompletionCallback HostBoundary::internalCallback() {
    return [self = shared_from_this()](std::optional<Dictionary> dictionary, std::optional<Error> error) {
        self->receive(std::move(dictionary), std::move(error));
    };
}

/// Whether the component was open until now; it is not any more, and the host hears whose doing that is.
bool HostBoundary::endUse(State ended, ClosedBy who, const std::optional<Error>& error) {
    {
        const std::lock_guard lock(mutex_);
        const State before = state_;
        if (before == State::open || ended == State::dropped) state_ = ended;
        if (before != State::open) return false;
    }
    if (opening_.empty()) return true;
    Event event{.kind = EventKind::closed, .opening = opening_, .closedBy = who};
    if (error) event.error = kindOf(*error);
    HostEvents::shared().tell(event);
    return true;
}

/// A host may drop its view as soon as it is called, before the step of closing runs.
void HostBoundary::closeIf(bool open) {
    if (!open) return;
    mainQueue().async([self = shared_from_this()] {
        if (!self->isDropped() && self->close_) self->close_();
    });
}

bool HostBoundary::isDropped() {
    const std::lock_guard lock(mutex_);
    return state_ == State::dropped;
}

bool HostBoundary::isOpen() {
    const std::lock_guard lock(mutex_);
    return state_ == State::open;
}

void HostBoundary::receive(std::optional<Dictionary> dictionary, std::optional<Error> error) {
    if (error) {
        const bool open = endUse(State::closed, ClosedBy::error, error);
        if (open) callHost(std::nullopt, inCustomersWords(*std::move(error)));
        return closeIf(open);
    }
    if (!dictionary) return closeIf(endUse(State::closed, ClosedBy::customer));

    if (exitOf(*dictionary)) {
        const bool open = endUse(State::closed, ClosedBy::reservation);
        Reservations::shared().keep(*dictionary);
        callHost(std::move(dictionary), std::nullopt);
        return closeIf(open);
    }
    bool open = false;
    {
        const std::lock_guard lock(mutex_);
        open = state_ == State::open;
    }
    if (open) callHost(std::move(dictionary), std::nullopt);
}

/// Its exception is the host's own, says nothing of the component, and may name what is not to be printed.
void HostBoundary::callHost(std::optional<Dictionary> dictionary, std::optional<Error> error) {
    if (!callback_) return;
    const auto thrown = attempted([&] { callback_(std::move(dictionary), std::move(error)); });
    if (thrown) platform().diagnostics->print("callback: the host's callback has thrown an exception");
}

void HostBoundary::drop() { endUse(State::dropped, ClosedBy::host); }

} // namespace ombrivane
