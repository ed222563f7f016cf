#include "support/Rows.h"

namespace ombrivane {
namespace {

/// A row reads from the screens around it, so whoever holds the row holds them. The row itself goes first.
struct RowWithHosts {
    std::vector<std::shared_ptr<Screen>> hosts;
    std::shared_ptr<Screen> row;
};

} // namespace

Rows::Rows(Screen& owner, std::string_view key, Count count, Make make, Identity identity) :
    Member(owner.fields, key, MemberKind::rows),
    owner_(owner),
    core_(std::make_shared<Core>(std::move(count))),
    make_(std::move(make)),
    identity_(std::move(identity)) {}

std::shared_ptr<Screen> Rows::row(std::size_t index) const {
    if (index >= size()) refuse("has no row " + std::to_string(index));
    const auto held = std::make_shared<RowWithHosts>();
    held->row = make_(index);
    held->row->setHost(owner_.weak_from_this());
    for (auto host = held->row->host(); host; host = host->host())
        held->hosts.push_back(host);
    return {held, held->row.get()};
}

std::string Rows::identity(std::size_t index) const {
    return identity_ ? identity_(index) : std::to_string(index);
}

Subscription Rows::observe(Observer observer) {
    auto subscription = core_->observe(std::move(observer));
    core_->follow();
    return subscription;
}

void Rows::Core::follow() {
    const std::weak_ptr<Observable> weak = weak_from_this();
    sources = track([this] { count(); },
                    [weak] {
                        const auto hold = weak.lock();
                        if (!hold) return;
                        auto& core = static_cast<Core&>(*hold);
                        core.follow();
                        core.notify();
                    });
}

} // namespace ombrivane
