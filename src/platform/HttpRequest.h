#pragma once

#include "support/Error.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ombrivane {

/// One request to the booking service.
struct HttpRequest {
    std::string url;
    std::string method = "GET";
    std::vector<std::pair<std::string, std::string>> headers; ///< name and value, in their order
    std::optional<std::string> body;
    std::chrono::seconds timeoutInterval{60}; ///< the longest silence
    std::chrono::seconds wholeInterval{180};  ///< the longest duration in all
};

/// What came back. The status is not part of it: no status code is ever read.
struct HttpAnswer {
    std::optional<std::string> data;
    std::optional<Error> error;
};

/// Called exactly once, on a thread of the network.
using HttpCompletion = std::function<void(HttpAnswer)>;

} // namespace ombrivane
