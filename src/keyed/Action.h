#pragma once

#include "base/Fault.h"
#include "keyed/Deeds.h"
#include "keyed/Derived.h"
#include "keyed/Fields.h"
#include "keyed/Keyed.h"
#include "keyed/Screen.h"

#include <functional>
#include <tuple>
#include <utility>

namespace ombrivane {

/// A named operation behind a control: what a tap does. While its control is hidden, disabled or covered, it
/// does nothing. Its screen is held until it is done.
template <class... Arguments> class Action final : public Member {
public:
    using Run = std::function<void(Arguments...)>;
    using Condition = std::function<bool()>;

    Action(Screen& owner, std::string_view key, Run run, Condition enabled = nullptr) :
        Member(owner.fields, key, MemberKind::action),
        owner_(owner),
        run_(std::move(run)),
        enabled_(std::move(enabled)) {}

    /// Whether a tap does anything now.
    bool isEnabled() const { return isAllowed() && owner_.takesInput(); }
    /// Whether its own condition allows it, whatever lies over its screen: what a control is drawn by.
    bool isAllowed() const { return !enabled_ || enabled_(); }

    void operator()(Arguments... arguments) {
        const auto hold = owner_.weak_from_this().lock();
        if (!isEnabled()) return;
        if (Deeds::areHeard())
            Deeds::tell(owner_, key(), {Keyed<std::decay_t<Arguments>>::toJson(arguments)...});
        const ActionUnderWay underWay;
        guarded([&] { run_(arguments...); });
    }

    Json read() const override { return Json{{"enabled", isEnabled()}}; }

    void trigger(const std::vector<Json>& arguments) override {
        if (arguments.size() != sizeof...(Arguments)) {
            refuse("wants " + std::to_string(sizeof...(Arguments)) + " arguments");
        }
        triggerWith(arguments, std::index_sequence_for<Arguments...>());
    }

    /// Tells when its own condition has begun or ceased to allow it.
    Subscription observe(Observer observer) override {
        if (!condition_)
            condition_ = std::make_unique<Derived<bool>>(unkeyed_, key(), [this] { return isAllowed(); });
        return condition_->observe(std::move(observer));
    }

private:
    template <std::size_t... Index>
    void triggerWith(const std::vector<Json>& arguments, std::index_sequence<Index...> /*indices*/) {
        std::tuple<std::decay_t<Arguments>...> values{
            Keyed<std::decay_t<Arguments>>::fromJson(arguments[Index])...};
        (*this)(std::get<Index>(values)...);
    }

    Screen& owner_;
    Run run_;
    Condition enabled_;
    Fields unkeyed_;
    std::unique_ptr<Derived<bool>> condition_;
};

} // namespace ombrivane
