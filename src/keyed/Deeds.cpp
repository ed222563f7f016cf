#include "keyed/Deeds.h"

#include "base/Attempted.h"

namespace ombrivane {
namespace {

using Listeners = std::vector<std::weak_ptr<const Deeds::Listener>>;

Listeners& listeners() {
    static Listeners listening;
    return listening;
}

int actionsUnderWay = 0;

} // namespace

std::shared_ptr<const void> Deeds::listen(Listener listener) {
    std::erase_if(listeners(), [](const auto& gone) { return gone.expired(); });
    auto listening = std::make_shared<const Listener>(std::move(listener));
    listeners().push_back(listening);
    return listening;
}

void Deeds::tell(const Screen& screen, std::string_view key, const std::vector<Json>& arguments) {
    const Listeners told = listeners(); // one may begin to listen meanwhile
    for (const auto& weak : told) {
        if (const auto listener = weak.lock()) (void)attempted([&] { (*listener)(screen, key, arguments); });
    }
}

bool Deeds::areHeard() { return actionsUnderWay == 0 && !listeners().empty(); }

ActionUnderWay::ActionUnderWay() { ++actionsUnderWay; }
ActionUnderWay::~ActionUnderWay() { --actionsUnderWay; }

} // namespace ombrivane
