#include "session/Reservations.h"

#include "base/SharedInstance.h"
#include "platform/Platform.h"

#include <utility>

namespace ombrivane {

Reservations& Reservations::shared() { return SharedInstance<Reservations>::get(); }

std::optional<Dictionary> Reservations::take() {
    std::optional<Dictionary> oldest;
    {
        const std::lock_guard lock(mutex_);
        if (waiting_.empty()) return std::nullopt;
        oldest = std::move(waiting_.front());
        waiting_.pop_front();
    }
    tell();
    return oldest;
}

std::size_t Reservations::pending() const {
    const std::lock_guard lock(mutex_);
    return waiting_.size();
}

Subscription Reservations::observe(Observer observer) {
    auto subscription = changes_->observe(std::move(observer));
    if (pending() > 0) tell();
    return subscription;
}

void Reservations::keep(Dictionary reservation) {
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(reservation));
    }
    tell();
}

void Reservations::tell() {
    mainQueue().async([changes = std::weak_ptr(changes_)] {
        if (const auto living = changes.lock()) living->notify();
    });
}

} // namespace ombrivane
