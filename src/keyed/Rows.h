#pragma once

#include "base/Api.h"
#include "base/Uuid.h"
#include "keyed/Observable.h"
#include "keyed/Screen.h"

#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace ombrivane {

/// What stays the same for one row while rows come and go. A list has thousands of them and compares them
/// whenever it changes, so an identity that is a `Uuid` is kept as one.
using RowIdentity = std::variant<std::string, Uuid>;

/// The identity as a text.
OMBRIVANE_API std::string textOf(const RowIdentity& identity);

/// The identities of `records`, or of what they point to, each held by the member `identity`.
template <class Records, class Identity>
std::vector<RowIdentity> identitiesOf(const Records& records, Identity identity) {
    std::vector<RowIdentity> identities;
    identities.reserve(records.size());
    for (const auto& record : records)
        identities.emplace_back(std::invoke(identity, record));
    return identities;
}

/// A list whose rows are small screens of their own, each made when it is drawn.
class OMBRIVANE_API Rows final : public Member {
public:
    /// How many rows there are, counted from fields.
    using Count = std::function<std::size_t()>;
    /// Makes the row at a position.
    using Make = std::function<std::shared_ptr<Screen>(std::size_t)>;
    /// Tells the identities of all rows, in their order, as many as are counted.
    using Identities = std::function<std::vector<RowIdentity>()>;

    /// The list of `owner` under `key`; without an identity a row is its position.
    Rows(Screen& owner, std::string_view key, Count count, Make make, Identities identities = nullptr);

    /// How many rows there are now.
    std::size_t size() const { return core_->count(); }
    /// A fresh screen for the row at `index`, good as long as it is held, also when the list's own screen is
    /// gone from the stack. @throws KeyedError beyond the end.
    std::shared_ptr<Screen> row(std::size_t index) const;
    /// The identities of all rows, in their order.
    std::vector<RowIdentity> identities() const;

    /// The number of rows.
    Json read() const override { return size(); }
    /// Tells at the end of a turn in which something that the number of rows was counted from was assigned.
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
    Identities identities_;
};

} // namespace ombrivane
