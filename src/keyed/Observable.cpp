#include "keyed/Observable.h"

#include "base/Turn.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace ombrivane {
namespace {

/// The reads of one tracked computation.
struct Tracking {
    std::vector<Observable*> seen;
    std::vector<std::shared_ptr<Observable>> sources;
};

// Of the thread: a client may read a field on its caller's thread while the main thread derives.
thread_local Tracking* currentTracking = nullptr;
std::deque<std::weak_ptr<Observable>> pending;
bool delivering = false;

template <class T> class Restored {
public:
    Restored(T& variable, T value) : variable_(variable), before_(variable) { variable_ = value; }
    Restored(const Restored&) = delete;
    Restored& operator=(const Restored&) = delete;
    ~Restored() { variable_ = before_; }

private:
    T& variable_;
    T before_;
};

} // namespace

Observer settled(Observer told) {
    struct Waiting {
        Observer told;
        bool isWaiting = false;
    };
    auto waiting = std::make_shared<Waiting>(Waiting{std::move(told)});
    return [waiting = std::move(waiting)] {
        if (std::exchange(waiting->isWaiting, true)) return;
        Turn::atEnd([weak = std::weak_ptr<Waiting>(waiting)] {
            const auto still = weak.lock();
            if (!still) return;
            still->isWaiting = false;
            still->told();
        });
    };
}

Subscription Observable::observe(Observer observer) {
    auto slot = std::make_shared<Slot>(Slot{std::move(observer)});
    std::erase_if(slots_, [](const auto& weak) { return weak.expired(); });
    slots_.push_back(slot);
    return Subscription(std::move(slot));
}

bool Observable::isObserved() const {
    return std::any_of(slots_.begin(), slots_.end(), [](const auto& weak) { return !weak.expired(); });
}

void Observable::notify() {
    const Turn turn; // an assignment outside of any step is a step of its own
    pending.push_back(weak_from_this());
    if (delivering) return;
    const Restored<bool> deliveringNow(delivering, true);
    while (!pending.empty()) {
        const auto next = pending.front().lock();
        pending.pop_front();
        if (next) next->deliver();
    }
}

void Observable::deliver() {
    const Restored<Tracking*> untracked(currentTracking, nullptr);
    const auto told = slots_;
    for (const auto& weak : told) {
        if (const auto slot = weak.lock()) slot->observer();
    }
}

void Observable::noteRead() {
    if (currentTracking == nullptr) return;
    auto& seen = currentTracking->seen;
    if (std::find(seen.begin(), seen.end(), this) != seen.end()) return;
    seen.push_back(this);
    currentTracking->sources.push_back(shared_from_this());
}

std::vector<Subscription> Observable::track(const std::function<void()>& computation,
                                            const Observer& changed) {
    Tracking tracking;
    {
        const Restored<Tracking*> tracked(currentTracking, &tracking);
        computation();
    }
    std::vector<Subscription> subscriptions;
    subscriptions.reserve(tracking.sources.size());
    for (const auto& source : tracking.sources)
        subscriptions.push_back(source->observe(changed));
    return subscriptions;
}

} // namespace ombrivane
