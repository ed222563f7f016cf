#pragma once

#include "keyed/Derived.h"
#include "keyed/Field.h"
#include "keyed/Screen.h"

#include <functional>
#include <memory>

namespace ombrivane {

enum class Presentation { push, sheet, alert };

/// Pairs a boolean field with what it shows: while the flag is true, the destination is on the stack.
class Link {
public:
    /// Makes a fresh destination each time that it is shown.
    using Make = std::function<std::shared_ptr<Screen>()>;

    /// Shows what `make` makes while `flag` is true; taking it away writes false.
    Link(Screen& owner, Presentation presentation, Field<bool>& flag, Make make) :
        presentation_(presentation), flag_(flag), make_(std::move(make)) {
        owner.links_.push_back(this);
    }
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    /// How the destination comes.
    Presentation presentation() const { return presentation_; }
    /// What shows the destination and takes it away.
    Field<bool>& flag() const { return flag_; }
    /// A fresh destination; for the navigator.
    std::shared_ptr<Screen> makeDestination() const { return make_(); }

private:
    Presentation presentation_;
    Field<bool>& flag_;
    Make make_;
};

/// A screen shown inside of another: the form of the chosen tab, the cards of a booking session.
class Part {
public:
    /// Computes which screen stands here.
    using Current = std::function<std::shared_ptr<Screen>()>;

    /// `current` computes from fields which screen stands here now; nullptr for none.
    Part(Screen& owner, std::string_view key, Current current) :
        owner_(owner), key_(key), current_(std::move(current)) {
        owner.parts_.push_back(this);
    }
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;

    /// Its name, as a path spells it.
    std::string_view key() const { return key_; }
    /// The screen that stands here now, hosted by the owner; nullptr for none.
    std::shared_ptr<Screen> screen() const {
        auto screen = current_();
        if (screen) screen->setHost(owner_.weak_from_this());
        return screen;
    }

private:
    Screen& owner_;
    std::string_view key_;
    Current current_;
};

} // namespace ombrivane
