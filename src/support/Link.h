#pragma once

#include "support/Derived.h"
#include "support/Field.h"
#include "support/Screen.h"

#include <functional>
#include <memory>

namespace ombrivane {

enum class Presentation { push, sheet, alert };

/// Pairs a boolean field with what it shows: while the flag is true, the destination is on the stack.
class Link {
public:
    using Make = std::function<std::shared_ptr<Screen>()>;

    Link(Screen& owner, Presentation presentation, Field<bool>& flag, Make make) :
        presentation_(presentation), flag_(flag), make_(std::move(make)) {
        owner.links_.push_back(this);
    }
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    Presentation presentation() const { return presentation_; }
    Field<bool>& flag() const { return flag_; }
    std::shared_ptr<Screen> makeDestination() const { return make_(); }

private:
    Presentation presentation_;
    Field<bool>& flag_;
    Make make_;
};

/// A screen shown inside of another: the form of the chosen tab, the cards of a booking session.
class Part {
public:
    using Current = std::function<std::shared_ptr<Screen>()>;

    /// `current` computes from fields which screen stands here now; nullptr for none.
    Part(Screen& owner, std::string_view key, Current current) :
        owner_(owner), key_(key), current_(std::move(current)) {
        owner.parts_.push_back(this);
    }
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;

    std::string_view key() const { return key_; }
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
