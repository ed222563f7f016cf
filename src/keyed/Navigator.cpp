#include "keyed/Navigator.h"

#include "keyed/Deeds.h"

#include <algorithm>

namespace ombrivane {
namespace {

bool contains(const std::vector<std::shared_ptr<Screen>>& screens, const std::shared_ptr<Screen>& screen) {
    return std::find(screens.begin(), screens.end(), screen) != screens.end();
}

void collect(const std::shared_ptr<Screen>& screen, std::vector<std::shared_ptr<Screen>>& screens) {
    screens.push_back(screen);
    for (const Part* part : screen->parts()) {
        if (const auto inner = part->screen()) collect(inner, screens);
    }
}

/// True while the stack is being brought in step; ends with the turn, be it by a fault, unless the navigator
/// died.
class Synchronising {
public:
    Synchronising(std::shared_ptr<Navigator*> navigator, bool& flag) :
        navigator_(std::move(navigator)), flag_(flag) {
        flag_ = true;
    }
    Synchronising(const Synchronising&) = delete;
    Synchronising& operator=(const Synchronising&) = delete;
    ~Synchronising() {
        if (*navigator_ != nullptr) flag_ = false;
    }

private:
    std::shared_ptr<Navigator*> navigator_;
    bool& flag_;
};

} // namespace

Navigator::Navigator(std::shared_ptr<Screen> root) {
    root->shownBy_ = self_;
    stack_.push_back({std::move(root), Presentation::push, nullptr});
}

Navigator::~Navigator() {
    *self_ = nullptr;
    followed_.clear();
    for (auto screen = inView_.rbegin(); screen != inView_.rend(); ++screen)
        (*screen)->disappear();
    while (!stack_.empty()) {
        stack_.back().screen->covered_ = true; // whoever still holds it taps in vain
        stack_.back().screen->dismissal_ = nullptr;
        stack_.pop_back();
    }
}

void Navigator::start() {
    running_ = true;
    synchronise();
}

std::vector<std::shared_ptr<Screen>> Navigator::withParts(const std::shared_ptr<Screen>& screen) {
    std::vector<std::shared_ptr<Screen>> screens;
    collect(screen, screens);
    return screens;
}

bool Navigator::back() {
    if (stack_.size() < 2) return false;
    if (Deeds::areHeard()) Deeds::tell(*top(), {});
    stack_.back().link->flag().set(false);
    return true;
}

std::shared_ptr<Screen> Navigator::find(std::string_view name) const {
    for (auto entry = stack_.rbegin(); entry != stack_.rend(); ++entry) {
        for (const auto& screen : withParts(entry->screen)) {
            if (screen->name() == name) return screen;
        }
    }
    return nullptr;
}

/// Observes every flag and every part of what is on the stack, covered or not: a deep screen is taken away by
/// the flag of a shallow one.
void Navigator::follow() {
    const std::weak_ptr<Navigator*> self = self_;
    const auto changed = settled([self] {
        const auto navigator = self.lock();
        if (navigator && *navigator != nullptr) (*navigator)->synchronise();
    });
    followed_ = Observable::track(
        [this] {
            for (const auto& entry : stack_) {
                for (const auto& screen : withParts(entry.screen)) {
                    for (const Link* link : screen->links())
                        link->flag().get();
                }
            }
        },
        changed);
}

void Navigator::synchronise() {
    if (!running_) return;
    if (synchronising_) {
        again_ = true;
        return;
    }
    const auto self = self_;
    const Synchronising turn(self, synchronising_);
    do {
        again_ = false;
        while (removeOne() || showOne()) {
        }
        follow();
        updateView();
        if (*self == nullptr) return;
    } while (again_);
    changes_->notify();
}

bool Navigator::isLive(const Link* link, std::size_t below) const {
    for (std::size_t i = 0; i < below; ++i) {
        for (const auto& screen : withParts(stack_[i].screen)) {
            const auto& links = screen->links();
            if (std::find(links.begin(), links.end(), link) != links.end()) return true;
        }
    }
    return false;
}

bool Navigator::removeOne() {
    for (std::size_t i = 1; i < stack_.size(); ++i) {
        const Link* link = stack_[i].link;
        if (isLive(link, i) && link->flag().get()) continue;
        truncate(i);
        return true;
    }
    return false;
}

void Navigator::truncate(std::size_t size) {
    std::vector<Entry> removed(stack_.begin() + static_cast<std::ptrdiff_t>(size), stack_.end());
    stack_.resize(size);
    for (auto entry = removed.rbegin(); entry != removed.rend(); ++entry) {
        entry->screen->dismissal_ = nullptr;
        entry->screen->covered_ = true;
        for (const auto& screen : withParts(entry->screen)) {
            const auto position = std::find(inView_.begin(), inView_.end(), screen);
            if (position == inView_.end()) continue;
            inView_.erase(position);
            screen->disappear();
        }
        // What lay above falls with what lay below; a flag that still says "shown" would bring it back.
        const bool ownerIsLeft = isLive(entry->link, size);
        if (ownerIsLeft && entry->link->flag().get()) entry->link->flag().set(false);
    }
}

bool Navigator::showOne() {
    for (const auto& entry : std::vector<Entry>(stack_)) {
        for (const auto& screen : withParts(entry.screen)) {
            for (const Link* link : screen->links()) {
                const bool shown = std::any_of(
                    stack_.begin(), stack_.end(), [link](const Entry& other) { return other.link == link; });
                if (shown || !link->flag().get()) continue;
                const auto destination = link->makeDestination();
                destination->dismissal_ = [link, self = std::weak_ptr<Screen>(screen)] {
                    if (const auto owner = self.lock()) link->flag().set(false);
                };
                destination->shownBy_ = self_;
                stack_.push_back({destination, link->presentation(), link});
                return true;
            }
        }
    }
    return false;
}

/// In view is the topmost pushed screen with the sheets and alerts over it.
void Navigator::updateView() {
    std::size_t first = stack_.size() - 1;
    while (first > 0 && stack_[first].presentation != Presentation::push)
        --first;

    std::vector<std::shared_ptr<Screen>> now;
    for (std::size_t i = 0; i < stack_.size(); ++i) {
        stack_[i].screen->covered_ = i + 1 < stack_.size();
        if (i < first) continue;
        for (const auto& screen : withParts(stack_[i].screen))
            now.push_back(screen);
    }
    const auto before = std::move(inView_);
    inView_ = now;
    for (auto screen = before.rbegin(); screen != before.rend(); ++screen) {
        if (!contains(now, *screen)) (*screen)->disappear();
    }
    const auto self = self_;
    for (const auto& screen : now) {
        if (!contains(before, screen)) screen->appear();
        if (*self == nullptr) return;
    }
}

} // namespace ombrivane
