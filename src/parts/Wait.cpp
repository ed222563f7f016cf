#include "parts/Wait.h"

#include "platform/Platform.h"
#include "words/Words.h"

namespace ombrivane {

Wait::Wait(Fields& owner, std::function<std::optional<Awaited>()> awaited) :
    awaited_(std::move(awaited)),
    waitText(owner, "waitText", [this] { return told(Stage::words, &Awaited::what); }),
    waitHint(owner, "waitHint", [this] { return told(Stage::wayOut, &Awaited::wayOut); }) {
    restart();
}

/// Another number for each thing that is waited for, -1 for none.
int Wait::awaitedNow() const {
    const auto now = awaited_();
    return now ? static_cast<int>(now->what) : -1;
}

void Wait::restart() {
    if (stage_ != static_cast<int>(Stage::shapes)) stage_ = static_cast<int>(Stage::shapes);
    words_.cancel();
    wayOut_.cancel();
    if (!awaited_()) return;
    words_ = mainQueue().after(untilWords, [this] { stage_ = static_cast<int>(Stage::words); });
    wayOut_ = mainQueue().after(untilWayOut, [this] { stage_ = static_cast<int>(Stage::wayOut); });
}

std::string Wait::told(Stage from, Text Awaited::*text) const {
    const auto now = awaited_();
    return now && stage_ >= static_cast<int>(from) ? said(*now.*text) : "";
}

} // namespace ombrivane
