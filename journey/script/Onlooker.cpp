#include "Onlooker.h"

#include "keyed/Rows.h"

#include <algorithm>

namespace ombrivane::journey {
namespace {

/// As many as a tall phone draws.
constexpr std::size_t drawnRows = 8;

} // namespace

void Onlooker::follow(Navigator* navigator) {
    navigator_ = navigator;
    watch_ = navigator != nullptr ? navigator->observe([this] { update(); }) : Subscription();
    update();
}

void Onlooker::update() {
    std::vector<std::shared_ptr<Look>> now;
    const auto keepOrLook = [&](const std::shared_ptr<Screen>& screen) {
        const auto held = std::find_if(
            looks_.begin(), looks_.end(), [&](const auto& look) { return look->screen == screen; });
        now.push_back(held != looks_.end() ? *held : lookAt(screen));
    };
    if (navigator_ != nullptr) {
        for (const auto& entry : navigator_->stack()) {
            for (const auto& screen : Navigator::withParts(entry.screen))
                keepOrLook(screen);
        }
    }
    looks_ = std::move(now);
}

std::shared_ptr<Onlooker::Look> Onlooker::lookAt(std::shared_ptr<Screen> screen) {
    auto look = std::make_shared<Look>();
    look->screen = std::move(screen);
    observe(look->screen->fields, look);
    return look;
}

void Onlooker::observe(const Fields& fields, const std::shared_ptr<Look>& look) {
    for (Member* member : fields.members()) {
        if (const Fields* model = member->model()) {
            observe(*model, look);
            continue;
        }
        const bool isList = member->kind() == MemberKind::rows;
        const auto see = [member, isList, weak = std::weak_ptr<Look>(look)] {
            const auto held = weak.lock();
            if (!held) return;
            (void)member->read();
            if (isList) draw(*member, *held);
        };
        look->members.push_back(member->observe(settled(see)));
        see();
    }
}

void Onlooker::draw(const Member& list, Look& look) {
    const auto& rows = static_cast<const Rows&>(list);
    std::vector<std::shared_ptr<Look>> drawn;
    for (std::size_t index = 0; index < std::min(rows.size(), drawnRows); ++index)
        drawn.push_back(lookAt(rows.row(index)));
    look.rows[&list] = std::move(drawn);
}

} // namespace ombrivane::journey
