#include "EventLog.h"

#include "Matching.h"

#include <algorithm>
#include <cstdio>

namespace ombrivane::journey {
void EventLog::print(const Json& line) {
    const std::string text = line.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

Json callbackEvent(const std::optional<Dictionary>& dictionary, const std::optional<Error>& error) {
    Json event{{"event", "callback"}, {"dictionary", nullptr}, {"error", nullptr}};
    if (dictionary) event["dictionary"] = *dictionary;
    if (error) {
        event["error"] = Json{{"domain", error->domain},
                              {"code", error->code},
                              {"localizedDescription", error->localizedDescription}};
    }
    return event;
}

void EventLog::answer(const Json& line) {
    const std::lock_guard lock(mutex_);
    print(line);
}

void EventLog::event(Json line) {
    {
        const std::lock_guard lock(mutex_);
        print(line);
        waiting_.push_back(std::move(line));
    }
    wake_();
}

bool EventLog::take(const std::string& name, const Json& wanted) {
    const std::lock_guard lock(mutex_);
    const auto found = std::find_if(waiting_.begin(), waiting_.end(), [&](const Json& event) {
        return event.at("event") == name && matches(event, wanted);
    });
    if (found == waiting_.end()) return false;
    waiting_.erase(found);
    return true;
}

Json EventLog::waiting(const std::string& name) {
    const std::lock_guard lock(mutex_);
    Json events = Json::array();
    for (const auto& event : waiting_) {
        if (event.at("event") == name) events.push_back(event);
    }
    return events;
}

} // namespace ombrivane::journey
