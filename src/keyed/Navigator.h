#pragma once

#include "base/Api.h"
#include "keyed/Link.h"
#include "keyed/Observable.h"
#include "keyed/Screen.h"

#include <memory>
#include <string_view>
#include <vector>

namespace ombrivane {

/// Keeps the stack of screens in step with the flags of their links: a flag that turns true makes the
/// destination and shows it, one that turns false takes it away with everything above it. What several
/// assignments of one turn say together is done when the turn ends. Main thread only.
class OMBRIVANE_API Navigator {
public:
    /// One screen of the stack.
    struct Entry {
        std::shared_ptr<Screen> screen;                 ///< never nullptr
        Presentation presentation = Presentation::push; ///< how it lies over the one below
        const Link* link = nullptr;                     ///< what shows the screen; nullptr for the root
    };

    /// A stack of `root` alone.
    explicit Navigator(std::shared_ptr<Screen> root);
    Navigator(const Navigator&) = delete;
    Navigator& operator=(const Navigator&) = delete;
    /// Every screen in view disappears; no flag is written.
    ~Navigator();

    /// Brings the root into view. Until then nothing appears and no flag is followed.
    void start();

    /// The root first, the topmost screen last.
    const std::vector<Entry>& stack() const { return stack_; }
    /// The topmost screen.
    const std::shared_ptr<Screen>& top() const { return stack_.back().screen; }

    /// The system's back gesture: writes false into the flag of the topmost screen. False when only the root
    /// is left.
    bool back();

    /// The topmost screen with `name`, looking into the parts of each; nullptr when none is on the stack.
    std::shared_ptr<Screen> find(std::string_view name) const;

    /// A screen and the parts shown inside of it, itself first.
    static std::vector<std::shared_ptr<Screen>> withParts(const std::shared_ptr<Screen>& screen);

    /// Tells after the stack or the parts in view have changed.
    Subscription observe(Observer observer) { return changes_->observe(std::move(observer)); }

private:
    struct Changes final : Observable {};

    void follow();
    void synchronise();
    bool removeOne();
    bool showOne();
    bool isLive(const Link* link, std::size_t below) const;
    void truncate(std::size_t size);
    void updateView();

    std::vector<Entry> stack_;
    std::vector<std::shared_ptr<Screen>> inView_;
    std::vector<Subscription> followed_;
    std::shared_ptr<Changes> changes_ = std::make_shared<Changes>();
    std::shared_ptr<Navigator*> self_ = std::make_shared<Navigator*>(this);
    bool running_ = false;
    bool synchronising_ = false;
    bool again_ = false;
};

} // namespace ombrivane
