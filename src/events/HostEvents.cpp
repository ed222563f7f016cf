#include "events/HostEvents.h"

#include "base/Attempted.h"
#include "base/SharedInstance.h"
#include "base/Uuid.h"

#include <algorithm>
#include <utility>

namespace ombrivane {
namespace {

/// What a listener throws ends with it: it only looks on. A fault goes on.
template <class Told> void tellOne(const std::function<void(const Told&)>& listener, const Told& told) {
    if (listener) (void)attempted([&] { listener(told); });
}

/// So that one which another lets go of, while they are told, is told no more.
template <class Listener>
std::vector<std::weak_ptr<Listener>> weakly(const std::vector<std::shared_ptr<Listener>>& living) {
    return {living.begin(), living.end()};
}

} // namespace

HostEvents& HostEvents::shared() { return SharedInstance<HostEvents>::get(); }

HostEvents::Listening HostEvents::listen(EventListener happened, CallListener callEnded) {
    auto listener = std::make_shared<const Listener>(Listener{std::move(happened), std::move(callEnded)});
    const std::lock_guard lock(mutex_);
    std::erase_if(listeners_, [](const auto& gone) { return gone.expired(); });
    listeners_.push_back(listener);
    return listener;
}

std::string HostEvents::beginOpening() {
    const std::string name = Uuid::random().text();
    const std::lock_guard lock(mutex_);
    return opening_ = name;
}

std::string HostEvents::opening() const {
    const std::lock_guard lock(mutex_);
    return opening_;
}

std::vector<std::shared_ptr<const HostEvents::Listener>> HostEvents::listeners() const {
    std::vector<std::shared_ptr<const Listener>> living;
    const std::lock_guard lock(mutex_);
    for (const auto& listener : listeners_) {
        if (auto one = listener.lock()) living.push_back(std::move(one));
    }
    return living;
}

void HostEvents::tell(const Event& event) const {
    for (const auto& each : weakly(listeners())) {
        if (const auto listener = each.lock()) tellOne(listener->happened, event);
    }
}

void HostEvents::tell(const EndedCall& call) const {
    for (const auto& each : weakly(listeners())) {
        if (const auto listener = each.lock()) tellOne(listener->callEnded, call);
    }
}

} // namespace ombrivane
