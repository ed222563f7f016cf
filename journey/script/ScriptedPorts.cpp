#include "ScriptedPorts.h"

namespace ombrivane::journey {

void ReportedDiagnostics::callFailed(const FailedCall& call) {
    print(call.line());
    log_->event(Json{{"event", "failed-call"},
                     {"endpoint", call.endpoint},
                     {"domain", call.domain},
                     {"code", call.code},
                     {"developer", call.developerText}});
}

std::optional<std::uint32_t> ScriptedReachability::flags(const std::string& host) {
    const std::int64_t word = said_;
    return word == measured ? route_.flags(host) : static_cast<std::uint32_t>(word);
}

void ScriptedPhotos::present(Handler handler) {
    open_ = std::make_shared<const Handler>(std::move(handler));
    answer();
}

void ScriptedPhotos::pick(Picked picked) {
    answers_.push_back(std::move(picked));
    answer();
}

void ScriptedPhotos::answer() {
    if (!open_ || answers_.empty()) return;
    mainQueue().async([open = std::weak_ptr(open_), picked = answers_.front()] {
        if (const auto handler = open.lock()) (*handler)(picked);
    });
    answers_.pop_front();
}

} // namespace ombrivane::journey
