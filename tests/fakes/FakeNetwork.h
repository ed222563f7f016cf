#pragma once

#include "platform/Network.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ombrivane::fakes {

/// A network that answers when the test says so, and keeps what was sent.
class FakeNetwork final : public Network {
public:
    void send(HttpRequest request, HttpCompletion completion) override;
    void fetchPicture(const std::string& url, HttpCompletion completion) override;

    /// Every request in the order of sending, answered or not; a picture's has the method "PICTURE".
    const std::vector<HttpRequest>& sent() const { return sent_; }
    const HttpRequest& last() const { return sent_.back(); }
    std::size_t outstanding() const { return open_.size(); }
    /// The requests that wait for an answer, oldest first.
    const HttpRequest& waiting(std::size_t index = 0) const { return open_.at(index).request; }

    /// Answers the request that has waited longest, or the one at `index` among those that wait.
    void answer(std::string data, std::size_t index = 0);
    void fail(Error error, std::size_t index = 0);
    void complete(HttpAnswer answer, std::size_t index = 0);

private:
    struct Open {
        HttpRequest request;
        HttpCompletion completion;
    };
    std::vector<HttpRequest> sent_;
    std::vector<Open> open_;
};

} // namespace ombrivane::fakes
