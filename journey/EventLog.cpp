#include "EventLog.h"

#include <algorithm>
#include <cstdio>

namespace ombrivane::journey {

void EventLog::print(const Json& line) {
    const std::string text = line.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

void EventLog::answer(const Json& line) {
    const std::lock_guard lock(mutex_);
    print(line);
}

void EventLog::event(Json line) {
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(line.at("event").get<std::string>());
        print(line);
    }
    wake_();
}

bool EventLog::take(const std::string& name) {
    const std::lock_guard lock(mutex_);
    const auto found = std::find(waiting_.begin(), waiting_.end(), name);
    if (found == waiting_.end()) return false;
    waiting_.erase(found);
    return true;
}

} // namespace ombrivane::journey
