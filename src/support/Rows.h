#pragma once

#include "support/Api.h"
#include "support/Observable.h"
#include "support/Screen.h"

#include <functional>
#include <memory>
#include <string>

namespace ombrivane {

/// A list whose rows are small screens of their own, each made when it is drawn.
class OMBRIVANE_API Rows final : public Member {
public:
    /// How many rows there are, counted from fields.
    using Count = std::function<std::size_t()>;
    /// Makes the row at a position.
    using Make = std::function<std::shared_ptr<Screen>(std::size_t)>;
    /// What stays the same for one row while rows come and go.
    using Identity = std::function<std::string(std::size_t)>;

    /// The list of `owner` under `key`; without an identity a row is its position.
    Rows(Screen& owner, std::string_view key, Count count, Make make, Identity identity = nullptr);

    /// How many rows there are now.
    std::size_t size() const { return core_->count(); }
    /// A fresh screen for the row at `index`, good as long as it is held, also when the list's own screen is
    /// gone from the stack. @throws KeyedError beyond the end.
    std::shared_ptr<Screen> row(std::size_t index) const;
    /// The identity of the row at `index`, which is below `size`.
    std::string identity(std::size_t index) const;

    /// The number of rows.
    Json read() const override { return size(); }
    /// Tells whenever something that the number of rows was counted from is assigned.
    Subscription observe(Observer observer) override;

private:
    struct Core final : Observable {
        explicit Core(Count counting) : count(std::move(counting)) {}
        void follow();

        Count count;
        std::vector<Subscription> sources;
    };

    Screen& owner_;
    std::shared_ptr<Core> core_;
    Make make_;
    Identity identity_;
};

} // namespace ombrivane
