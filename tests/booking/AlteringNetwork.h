#pragma once

#include "platform/Network.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace ombrivane {

/// In front of the network that the wallet answers for: changes what it answers.
class AlteringNetwork final : public Network {
public:
    /// From an operation and its honest answer to what arrives.
    using Alter = std::function<std::string(const std::string& operation, const std::string& text)>;

    AlteringNetwork(std::shared_ptr<Network> inner, Alter alter) :
        inner_(std::move(inner)), alter_(std::move(alter)) {}
    void send(HttpRequest request, HttpCompletion completion) override {
        const std::string operation = request.url.substr(request.url.find_last_of('/') + 1);
        inner_->send(std::move(request),
                     [completion = std::move(completion), alter = alter_, operation](HttpAnswer answer) {
                         if (answer.data) answer.data = alter(operation, *answer.data);
                         completion(std::move(answer));
                     });
    }
    void fetchPicture(const std::string& url, HttpCompletion completion) override {
        inner_->fetchPicture(url, std::move(completion));
    }

private:
    std::shared_ptr<Network> inner_;
    Alter alter_;
};

} // namespace ombrivane
