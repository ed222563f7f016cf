#pragma once

#include "keyed/Fields.h"
#include "keyed/Keyed.h"
#include "keyed/Observable.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace ombrivane {

/// A text, a flag or a list computed from fields: what a screen shows. It is computed at every read; while it
/// is observed it follows whatever its computation read last, and when the turn that changed some of it ends,
/// it is computed once and tells when its value differs from the one told before.
template <class T> class Derived final : public Member {
public:
    /// A value under `key`; `compute` reads fields and other derived values and writes nothing.
    Derived(Fields& owner, std::string_view key, std::function<T()> compute) :
        Member(owner, key, MemberKind::derived), core_(std::make_shared<Core>(std::move(compute))) {}

    /// Computed anew. Main thread.
    T get() const { return core_->compute(); }

    Json read() const override { return Keyed<T>::toJson(get()); }
    Subscription observe(Observer observer) override {
        auto subscription = core_->observe(std::move(observer));
        core_->follow();
        return subscription;
    }

private:
    struct Core final : Observable {
        explicit Core(std::function<T()> computation) : compute(std::move(computation)) {}

        void follow() {
            const std::weak_ptr<Observable> weak = weak_from_this();
            sources = track([this] { told = compute(); }, settled([weak] {
                                if (const auto core = weak.lock()) static_cast<Core&>(*core).sourceChanged();
                            }));
        }

        void sourceChanged() {
            if (!isObserved()) {
                sources.clear();
                return;
            }
            const std::optional<T> before = std::move(told);
            follow();
            if (before != told) notify();
        }

        std::function<T()> compute;
        std::optional<T> told;
        std::vector<Subscription> sources;
    };

    std::shared_ptr<Core> core_;
};

} // namespace ombrivane
