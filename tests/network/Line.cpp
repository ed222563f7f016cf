#include "network/Line.h"

#include <future>
#include <thread>

namespace ombrivane::network {

using std::chrono::milliseconds;

HttpAnswer awaited(const Starting& start) {
    const auto promise = std::make_shared<std::promise<HttpAnswer>>();
    auto answer = promise->get_future();
    start([promise](HttpAnswer arrived) { promise->set_value(std::move(arrived)); });
    if (answer.wait_for(std::chrono::seconds(30)) != std::future_status::ready) return {{}, noAnswer};
    return answer.get();
}

HttpCompletion Tally::completion() {
    return [answers = answers_, errors = errors_](const HttpAnswer& answer) {
        ++*answers;
        if (answer.error) ++*errors;
    };
}

Line::Line(const std::vector<std::string>& faults) {
    server_.setFaults(faults);
    server_.start();
    network_ = std::make_unique<CurlNetwork>(CurlSettings{.caFile = server_.caFile()});
}

HttpRequest Line::reservation() const {
    HttpRequest request;
    request.url = url("/api/b2b/v2/reservation");
    request.method = "POST";
    request.headers = {{"Content-Type", "application/json"},
                       {"Authorization", std::string("Bearer ") + accessToken}};
    request.body = passengers;
    request.timeoutInterval = std::chrono::seconds(2);
    return request;
}

HttpAnswer Line::send(const HttpRequest& request) {
    return awaited([&](HttpCompletion completion) { network_->send(request, std::move(completion)); });
}

HttpAnswer Line::fetchPicture(const std::string& path) {
    return awaited(
        [&](HttpCompletion completion) { network_->fetchPicture(url(path), std::move(completion)); });
}

bool Line::serverHasRead(std::size_t count) const {
    for (int i = 0; i < 1000 && server_.requests().size() < count; ++i)
        std::this_thread::sleep_for(milliseconds(10));
    return server_.requests().size() == count;
}

bool Line::serverHasAccepted(std::size_t count) const {
    for (int i = 0; i < 1000 && server_.counters().connections < count; ++i)
        std::this_thread::sleep_for(milliseconds(10));
    return server_.counters().connections == count;
}

} // namespace ombrivane::network
