#include "events/Reporter.h"

#include "platform/ElapsedTime.h"

#include <utility>

namespace ombrivane {

void Reporter::asks() { sent_ = elapsedTime(); }

void Reporter::sent(EventKind kind) {
    asks();
    happened({.kind = kind});
}

void Reporter::answered(Event event) const {
    event.took = elapsedTime() - sent_;
    happened(std::move(event));
}

void Reporter::happened(Event event) const {
    event.opening = opening_;
    HostEvents::shared().tell(event);
}

} // namespace ombrivane
