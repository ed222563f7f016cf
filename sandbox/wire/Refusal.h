// A request that the service turns down: the sentence for the customer and the HTTP status beside it.
#pragma once

#include <stdexcept>
#include <string>

namespace ombrivane::sandbox {

class Refusal : public std::runtime_error {
public:
    explicit Refusal(const std::string& message, int status = 422) :
        std::runtime_error(message), status_(status) {}

    [[nodiscard]] int status() const { return status_; }

private:
    int status_;
};

} // namespace ombrivane::sandbox
