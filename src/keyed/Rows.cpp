#include "keyed/Rows.h"

namespace ombrivane {
namespace {

/// A row reads from the screens around it, so whoever holds the row holds them. The row itself goes first.
struct RowWithHosts {
    std::vector<std::shared_ptr<Screen>> hosts;
    std::shared_ptr<Screen> row;
};

} // namespace

std::string textOf(const RowIdentity& identity) {
    const auto* uuid = std::get_if<Uuid>(&identity);
    return uuid != nullptr ? uuid->text() : std::get<std::string>(identity);
}

Rows::Rows(Screen& owner, std::string_view key, Count count, Make make, Identities identities) :
    Member(owner.fields, key, MemberKind::rows),
    owner_(owner),
    core_(std::make_shared<Core>(std::move(count))),
    make_(std::move(make)),
    identities_(std::move(identities)) {}

std::shared_ptr<Screen> Rows::row(std::size_t index) const {
    if (index >= size()) refuse("has no row " + std::to_string(index));
    const auto held = std::make_shared<RowWithHosts>();
    held->row = make_(index);
    held->row->setHost(owner_.weak_from_this());
    held->row->setPlace({key(), index});
    for (auto host = held->row->host(); host; host = host->host())
        held->hosts.push_back(host);
    return {held, held->row.get()};
}

std::vector<RowIdentity> Rows::identities() const {
    if (identities_) return identities_();
    std::vector<RowIdentity> positions;
    for (std::size_t index = 0; index < size(); ++index)
        positions.emplace_back(std::to_string(index));
    return positions;
}

Subscription Rows::observe(Observer observer) {
    auto subscription = core_->observe(std::move(observer));
    core_->follow();
    return subscription;
}

void Rows::Core::follow() {
    const std::weak_ptr<Observable> weak = weak_from_this();
    sources = track([this] { count(); }, settled([weak] {
                        const auto hold = weak.lock();
                        if (!hold) return;
                        auto& core = static_cast<Core&>(*hold);
                        core.follow();
                        core.notify();
                    }));
}

} // namespace ombrivane
